// SPDX-License-Identifier: MIT

#include "window/themes/AccentSwatch.h"

#include "drawing/Colours.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/look/FocusRing.h"
#include "window/look/Transitions.h"
#include "window/look/WindowStyle.h"

#include <QKeyEvent>
#include <QPainter>

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double disc = 26; // across
constexpr double chosenRing = 2; // wide
constexpr double chosenDistance = 1.5; // from the disc
constexpr double focusCorner = 9;
constexpr double wheelHub = 14; // across
constexpr double markSide = 13;
constexpr double hubMarkSide = 9;
constexpr double discLine = 0.18;
constexpr double pointedDiscLine = 0.4;

} // namespace

AccentSwatch::AccentSwatch(QWidget* parent)
    : QRadioButton(parent)
{
    setAttribute(Qt::WA_Hover);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    connect(&AppLook::shared(), &AppLook::changed, this, qOverload<>(&QWidget::update));
}

void AccentSwatch::describe(const QString& name)
{
    setAccessibleName(name);
    setToolTip(name);
    update();
}

void AccentSwatch::setAccent(const QString& name, const std::optional<QColor>& accent, const QColor& shown)
{
    m_isWheel = false;
    m_accent = accent;
    m_shown = shown;
    describe(name);
}

void AccentSwatch::setWheel(const QString& name, const std::optional<QColor>& chosen)
{
    m_isWheel = true;
    m_accent = chosen;
    m_shown = chosen.value_or(QColor());
    describe(name);
}

/// The arrow keys are at home in the row; on the page around it they mean something else.
std::optional<int> AccentSwatch::stepsOf(int key) const
{
    const int forwards = isRightToLeft() ? -1 : 1;
    switch (key) {
    case Qt::Key_Left: return -forwards;
    case Qt::Key_Right: return forwards;
    case Qt::Key_Up: return -1;
    case Qt::Key_Down: return 1;
    default: return std::nullopt;
    }
}

bool AccentSwatch::event(QEvent* event)
{
    if (event->type() == QEvent::ShortcutOverride) {
        const auto* key = static_cast<QKeyEvent*>(event);
        if (stepsOf(key->key()) && key->modifiers() == Qt::NoModifier) {
            event->accept();
            return true;
        }
    }
    return QRadioButton::event(event);
}

void AccentSwatch::keyPressEvent(QKeyEvent* event)
{
    const auto held = event->modifiers() & ~Qt::KeypadModifier;
    if (const std::optional<int> steps = stepsOf(event->key()); steps && held == Qt::NoModifier)
        Q_EMIT moveWanted(*steps);
    else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)
        click();
    else
        QRadioButton::keyPressEvent(event);
}

void AccentSwatch::paintEvent(QPaintEvent*)
{
    const AppColours& colours = AppLook::shared().colours();
    const QPointF middle = QRectF(rect()).center();
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    if (m_isWheel) {
        QConicalGradient wheel(middle, 90);
        for (int hue = 0; hue <= 6; ++hue)
            wheel.setColorAt(hue / 6.0, QColor::fromHsv(hue * 60 % 360, 190, 245));
        painter.setBrush(wheel);
        painter.drawEllipse(middle, disc / 2, disc / 2);
        painter.setBrush(m_shown.isValid() ? m_shown : colours.ground);
        painter.drawEllipse(middle, wheelHub / 2, wheelHub / 2);
    } else {
        painter.setBrush(m_shown);
        painter.drawEllipse(middle, disc / 2, disc / 2);
    }
    painter.setBrush(Qt::NoBrush);
    const double hovered = transition(this, MovingPart::hover, underMouse() ? 1 : 0);
    painter.setPen(QPen(faded(colours.text, std::lerp(discLine, pointedDiscLine, hovered)), 1));
    painter.drawEllipse(middle, disc / 2 - 0.5, disc / 2 - 0.5);
    if (isChecked()) {
        const double radius = disc / 2 + chosenDistance + chosenRing / 2;
        painter.setPen(QPen(colours.accent, chosenRing));
        painter.drawEllipse(middle, radius, radius);
    }
    if (isChecked() || m_isWheel) {
        const double markSize = m_isWheel ? hubMarkSide : markSide;
        QRectF mark(0, 0, markSize, markSize);
        mark.moveCenter(middle);
        paintSymbol(
            painter, mark, isChecked() ? u"checkmark"_s : u"plus"_s, m_shown.isValid() ? inkOn(m_shown) : colours.text);
    }
    if (hasFocus() && FocusRing::shared().isShown()) {
        const double inset = AppLook::shared().ringWidth();
        WindowStyle::drawRing(
            painter, QRectF(rect()).adjusted(inset, inset, -inset, -inset), focusCorner - inset, colours.accent);
    }
}

} // namespace ambrelle
