#include "window/PopoverPlacement.h"

#include "desktop/ScreenPlacement.h"

#include <array>

namespace ambrelle {

namespace {

constexpr double gap = 12; // between widget and popover
constexpr double edge = 8; // kept free at the edges of the screen

} // namespace

QRectF popoverFrame(const QRectF& widget, const QSizeF& size, const QList<ScreenInfo>& screens)
{
    const double top = widget.y() + widget.height() - size.height(); // for level upper edges
    const QRectF right({widget.right() + gap, top}, size);
    const auto screen = ScreenPlacement::screenNear(widget, screens);
    if (!screen)
        return right;
    const QRectF room = screen->visibleFrame.adjusted(edge, edge, -edge, -edge);
    const std::array sides{right, QRectF({widget.left() - gap - size.width(), top}, size),
        QRectF({widget.left(), widget.y() - gap - size.height()}, size),
        QRectF({widget.left(), widget.y() + widget.height() + gap}, size)};
    for (const QRectF& side : sides) {
        const QRectF placed = ScreenPlacement::movedInto(side, room);
        if (room.contains(placed) && !placed.intersects(widget))
            return placed;
    }
    return ScreenPlacement::movedInto(right, room);
}

} // namespace ambrelle
