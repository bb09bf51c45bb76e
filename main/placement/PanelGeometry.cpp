// SPDX-License-Identifier: MIT

#include "placement/PanelGeometry.h"

#include <algorithm>

namespace ambrelle::PanelGeometry {

namespace {

/// The start of a span of `length` that lies in [low, high] if it can, and in [outerLow, outerHigh] in any case.
double placed(double start, double length, double low, double high, double outerLow, double outerHigh)
{
    const double wanted = std::max(low, std::min(start, high - length));
    return std::max(outerLow, std::min(wanted, outerHigh - length));
}

} // namespace

QRectF panelFrame(const QRectF& widget)
{
    return {widget.x() - margin, widget.y() - margin, std::max(widget.width(), toolbarWidth) + 2 * margin,
        widget.height() + toolbarHeight + margin};
}

QPointF widgetOrigin(QPointF panelOrigin)
{
    return panelOrigin + QPointF(margin, margin);
}

QRectF faceArea(const QSizeF& widget)
{
    return {QPointF(margin, toolbarHeight), widget};
}

QRectF toolbarArea(const QRectF& widget, const QRectF& room)
{
    const QRectF panel = panelFrame(widget);
    QRectF strip((panel.width() - toolbarWidth) / 2, 0, toolbarWidth, toolbarHeight);
    if (room.isEmpty())
        return strip;
    const double roomLeft = room.left() - panel.left();
    const double roomTop = panel.bottom() - room.bottom(); // window points: the y axis is turned over
    strip.moveLeft(placed(strip.left(), toolbarWidth, roomLeft, roomLeft + room.width(), 0, panel.width()));
    const double below = panel.height() - toolbarHeight;
    if (roomTop > 0 && below + toolbarHeight <= roomTop + room.height()) {
        strip.moveTop(below);
        return strip;
    }
    strip.moveTop(placed(strip.top(), toolbarHeight, roomTop, roomTop + room.height(), 0, panel.height()));
    return strip;
}

bool coversFace(const QRectF& toolbar, const QSizeF& widget)
{
    return (toolbar & faceArea(widget)).height() > toolbarHeight - margin;
}

} // namespace ambrelle::PanelGeometry
