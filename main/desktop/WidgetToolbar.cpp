// SPDX-License-Identifier: MIT

#include "desktop/WidgetToolbar.h"

#include "desktop/WidgetWording.h"
#include "drawing/Canvas.h"

#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

using enum WidgetToolbar::Button;

constexpr std::array everyButton{settings, scale, pin, remove};
constexpr double capsuleInset = 1; // room for the edge's outer half
constexpr double buttonInset = 3;
constexpr double symbolSize = 16;

// White on this is above 7 : 1 over any wallpaper, a white one included.
const QColor toolbarColour(20, 20, 22, 208);
const QColor toolbarEdge(255, 255, 255, 56);
const QColor outerEdge(0, 0, 0, 70);
const QColor toolbarInk(255, 255, 255, 235);
const QColor hoverColour(255, 255, 255, 40);
const QColor pressColour(255, 255, 255, 80);
const QColor removeHover(200, 44, 40);
const QColor removePress(160, 28, 26);

QColor groundOf(WidgetToolbar::Button button, bool pressed)
{
    if (button == remove)
        return pressed ? removePress : removeHover;
    return pressed ? pressColour : hoverColour;
}

} // namespace

std::optional<WidgetToolbar::Button> WidgetToolbar::buttonAt(QPointF point) const
{
    for (const Button button : everyButton) {
        if (buttonArea(button).contains(point))
            return button;
    }
    return std::nullopt;
}

QRectF WidgetToolbar::buttonArea(Button button) const
{
    return Box(m_area).column(static_cast<int>(button), static_cast<int>(everyButton.size()));
}

QString WidgetToolbar::buttonName(Button button) const
{
    switch (button) {
    case settings: return WidgetWording::settings();
    case scale: return Wording::tr("%1: %2").arg(WidgetWording::size(), m_state.scaleTitle);
    case pin: return WidgetWording::pin(m_state.pinned);
    case remove: return WidgetWording::remove();
    }
    return {};
}

std::span<const WidgetToolbar::Button> WidgetToolbar::buttons()
{
    return everyButton;
}

bool WidgetToolbar::hover(std::optional<QPointF> point)
{
    const std::optional<Button> hovered = point ? buttonAt(*point) : std::nullopt;
    return std::exchange(m_hovered, hovered) != hovered;
}

bool WidgetToolbar::press(QPointF point)
{
    const std::optional<Button> pressed = buttonAt(point);
    return std::exchange(m_pressed, pressed) != pressed;
}

std::optional<WidgetToolbar::Button> WidgetToolbar::release(QPointF point)
{
    const std::optional<Button> pressed = std::exchange(m_pressed, std::nullopt);
    return pressed && buttonAt(point) == pressed ? pressed : std::nullopt;
}

bool WidgetToolbar::cancelPress()
{
    return std::exchange(m_pressed, std::nullopt).has_value();
}

void WidgetToolbar::paint(QPainter& painter) const
{
    painter.save();
    Canvas canvas(painter, {});
    const Box capsule = Box(m_area).inset(capsuleInset);
    const double radius = capsule.height() / 2;
    canvas.fill(capsule, m_opaque ? QColor(toolbarColour.rgb()) : toolbarColour, radius);
    canvas.frame(m_area, QPen(outerEdge, 1), m_area.height() / 2);
    canvas.frame(capsule, QPen(toolbarEdge, 1), radius);
    for (const Button button : everyButton)
        paintButton(painter, button);
    painter.restore();
}

void WidgetToolbar::paintButton(QPainter& painter, Button button) const
{
    Canvas canvas(painter, {});
    const Box box = Box(buttonArea(button)).inset(buttonInset);
    const bool pressed = m_pressed == button && m_hovered == button;
    if (pressed || (m_hovered == button && !m_pressed))
        canvas.fill(box, groundOf(button, pressed), box.height() / 2);
    switch (button) {
    case settings: canvas.symbol(box, u"paintpalette.fill"_s, symbolSize, toolbarInk); break;
    case scale:
        canvas.text(box, m_state.scaleTitle,
            {.face = {u"Inter"_s, 600}, .size = 13, .colour = toolbarInk, .align = Align::centre});
        break;
    case pin: canvas.symbol(box, m_state.pinned ? u"pin.slash"_s : u"pin"_s, symbolSize, toolbarInk); break;
    case remove: canvas.symbol(box, u"xmark"_s, symbolSize, toolbarInk); break;
    }
}

} // namespace ambrelle
