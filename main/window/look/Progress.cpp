// SPDX-License-Identifier: MIT

#include "window/look/Progress.h"

#include "window/look/AppLook.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr int turnTime = 1000; // milliseconds
constexpr int ringSide = 16;
constexpr double ringStroke = 2;
constexpr int barWidth = 120; // at least
constexpr int barHeight = 4;
constexpr double barPart = 0.3; // of its length that moves along
constexpr double dotDiameter = 4;

} // namespace

Progress::Progress(Shape shape, const QString& name, QWidget* parent)
    : QProgressBar(parent)
    , m_shape(shape)
{
    setRange(0, 0);
    setTextVisible(false);
    setAccessibleName(name);
    setSizePolicy(shape == Shape::ring ? QSizePolicy::Fixed : QSizePolicy::Expanding, QSizePolicy::Fixed);
    m_turn.setStartValue(0.0);
    m_turn.setEndValue(1.0);
    m_turn.setDuration(turnTime);
    m_turn.setLoopCount(-1);
    connect(&m_turn, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(&AppLook::shared(), &AppLook::changed, this, &Progress::run);
}

void Progress::run()
{
    if (isVisible() && !AppLook::shared().wishes().reducesMotion)
        m_turn.start();
    else
        m_turn.stop();
    update();
}

QSize Progress::sizeHint() const
{
    const int side = AppLook::shared().scaled(ringSide);
    return {m_shape == Shape::ring ? side : barWidth, side};
}

void Progress::showEvent(QShowEvent* event)
{
    QProgressBar::showEvent(event);
    run();
}

void Progress::hideEvent(QHideEvent* event)
{
    QProgressBar::hideEvent(event);
    run();
}

void Progress::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const AppColours& colours = AppLook::shared().colours();
    const QRectF all(rect());
    if (AppLook::shared().wishes().reducesMotion) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours.accent);
        for (const double offset : {-1.5, 0.0, 1.5})
            painter.drawEllipse(all.center() + QPointF(offset * dotDiameter, 0), dotDiameter / 2, dotDiameter / 2);
        return;
    }
    const double turn = m_turn.currentValue().toDouble();
    if (m_shape == Shape::ring) {
        QRectF ring(0, 0, std::min(all.width(), all.height()), std::min(all.width(), all.height()));
        ring.moveCenter(all.center());
        ring.adjust(ringStroke / 2, ringStroke / 2, -ringStroke / 2, -ringStroke / 2);
        painter.setPen(QPen(colours.track, ringStroke));
        painter.drawEllipse(ring);
        painter.setPen(QPen(colours.accent, ringStroke, Qt::SolidLine, Qt::RoundCap));
        painter.drawArc(ring, qRound(-turn * 360 * 16), 100 * 16);
        return;
    }
    QRectF bar(0, 0, all.width(), barHeight);
    bar.moveCenter(all.center());
    QPainterPath outline;
    outline.addRoundedRect(bar, barHeight / 2.0, barHeight / 2.0);
    painter.fillPath(outline, colours.track);
    painter.setClipPath(outline);
    painter.setPen(Qt::NoPen);
    painter.setBrush(colours.accent);
    const double part = bar.width() * barPart;
    painter.drawRoundedRect(QRectF(bar.left() - part + turn * (bar.width() + part), bar.top(), part, barHeight),
        barHeight / 2.0, barHeight / 2.0);
}

} // namespace ambrelle
