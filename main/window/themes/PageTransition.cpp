// SPDX-License-Identifier: MIT

#include "window/themes/PageTransition.h"

#include "window/look/AppLook.h"

#include <QEvent>
#include <QPainter>
#include <QVariantAnimation>

namespace ambrelle {

namespace {

constexpr int pageTime = 180; // milliseconds

QRectF between(const QRectF& from, const QRectF& to, double part)
{
    const auto mixed = [part](double one, double other) { return one + (other - one) * part; };
    return {mixed(from.x(), to.x()), mixed(from.y(), to.y()), mixed(from.width(), to.width()),
        mixed(from.height(), to.height())};
}

} // namespace

PageTransition::PageTransition(QWidget& page)
    : QWidget(&page)
    , m_motion(new QVariantAnimation(this))
{
    setAttribute(Qt::WA_TransparentForMouseEvents);
    setFocusPolicy(Qt::NoFocus);
    hide();
    page.installEventFilter(this);
    m_motion->setStartValue(0.0);
    m_motion->setEndValue(1.0);
    m_motion->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_motion, &QVariantAnimation::valueChanged, this, qOverload<>(&QWidget::update));
    connect(m_motion, &QVariantAnimation::finished, this, &PageTransition::end);
}

bool PageTransition::isWanted() const
{
    return parentWidget()->isVisible() && AppLook::shared().milliseconds(pageTime) > 0;
}

bool PageTransition::isRunning() const
{
    return m_motion->state() == QAbstractAnimation::Running;
}

void PageTransition::run(const QPixmap& before, const std::optional<Picture>& picture)
{
    m_motion->stop();
    m_before = before;
    m_picture = picture;
    setGeometry(parentWidget()->rect());
    raise();
    show();
    m_motion->setDuration(AppLook::shared().milliseconds(pageTime));
    m_motion->start();
}

void PageTransition::end()
{
    m_motion->stop();
    m_before = {};
    m_picture.reset();
    hide();
    Q_EMIT ended();
}

void PageTransition::hideEvent(QHideEvent* event)
{
    QWidget::hideEvent(event);
    if (isRunning())
        end(); // the window is closed
}

bool PageTransition::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && isRunning())
        end(); // all places are others
    return QWidget::eventFilter(watched, event);
}

void PageTransition::paintEvent(QPaintEvent*)
{
    const double part = m_motion->currentValue().toDouble();
    QPainter painter(this);
    painter.setOpacity(1 - part);
    painter.drawPixmap(rect(), m_before);
    if (!m_picture)
        return;
    const QRectF area = between(m_picture->from, m_picture->to, part);
    painter.setOpacity(1);
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    painter.translate(area.topLeft());
    QBrush brush(m_picture->pixmap);
    const QSizeF pixels = m_picture->pixmap.size();
    brush.setTransform(QTransform::fromScale(area.width() / pixels.width(), area.height() / pixels.height()));
    painter.setPen(Qt::NoPen);
    painter.setBrush(brush);
    painter.drawRoundedRect(QRectF({}, area.size()), m_picture->corner, m_picture->corner);
}

} // namespace ambrelle
