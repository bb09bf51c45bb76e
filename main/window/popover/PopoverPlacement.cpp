// SPDX-License-Identifier: MIT

#include "window/popover/PopoverPlacement.h"

#include "placement/ScreenPlacement.h"

#include <array>

namespace ambrelle {

namespace {

constexpr double popoverGap = 12; // between widget and popover
constexpr double screenMargin = 8; // kept free at the edges of the screen

} // namespace

std::optional<double> popoverRoom(const QRectF& widget, const QList<ScreenInfo>& screens)
{
    const auto screen = ScreenPlacement::screenNear(widget, screens);
    return screen ? std::optional(ScreenPlacement::room(*screen).height() - 2 * screenMargin) : std::nullopt;
}

QRectF popoverFrame(const QRectF& widget, const QSizeF& size, const QList<ScreenInfo>& screens)
{
    const double top = widget.y() + widget.height() - size.height(); // for level upper edges
    const QRectF right({widget.right() + popoverGap, top}, size);
    const auto screen = ScreenPlacement::screenNear(widget, screens);
    if (!screen)
        return right;
    const QRectF area =
        ScreenPlacement::room(*screen).adjusted(screenMargin, screenMargin, -screenMargin, -screenMargin);
    const std::array sides{right, QRectF({widget.left() - popoverGap - size.width(), top}, size),
        QRectF({widget.left(), widget.y() - popoverGap - size.height()}, size),
        QRectF({widget.left(), widget.y() + widget.height() + popoverGap}, size)};
    for (const QRectF& side : sides) {
        const QRectF placed = ScreenPlacement::movedInto(side, area);
        if (area.contains(placed) && !placed.intersects(widget))
            return placed;
    }
    return ScreenPlacement::movedInto(right, area);
}

} // namespace ambrelle
