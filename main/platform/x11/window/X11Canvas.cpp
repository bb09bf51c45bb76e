// SPDX-License-Identifier: MIT

#include "platform/x11/window/X11Canvas.h"

#include "platform/toolkit/PixelGrid.h"

#include <QPainter>
#include <QScreen>

#include <algorithm>

namespace ambrelle {

namespace {

// Painted at once: what a panel needs at twice the usual pixel ratio. Meanwhile this program and the server hold as
// many.
constexpr int mostPixels = 1 << 19;

} // namespace

X11Canvas::X11Canvas(X11Parts& parts, Ground ground, bool translucent)
    : m_parts(parts)
    , m_ground(ground)
    , m_translucent(translucent)
{
}

QPoint X11Canvas::nativeCorner(const RasterSurface& surface)
{
    // A screen keeps its native place under scaling; only distances from there are scaled.
    // While a window manager takes the window over, position() passes through places that no move event tells of.
    const QPointF corner = surface.screen()->geometry().topLeft();
    return (corner + (QPointF(surface.place().topLeft()) - corner) * surface.devicePixelRatio()).toPoint();
}

void X11Canvas::paint(RasterSurface& surface, const QList<QRect>& parts, const Paint& paint)
{
    for (const QRect& part : parts) {
        if (!paintArea(surface, part, paint))
            return;
    }
}

bool X11Canvas::paintArea(RasterSurface& surface, const QRect& area, const Paint& paint)
{
    const double ratio = surface.devicePixelRatio();
    const PixelGrid grid(ratio);
    const double pixelsOfRow = area.width() * ratio * ratio;
    const int rows = std::max(1, static_cast<int>(mostPixels / pixelsOfRow) / grid.step()) * grid.step();
    for (int top = area.top(); top <= area.bottom(); top += rows) {
        if (!paintPart(surface, grid, QRect(area.left(), top, area.width(), rows) & area, paint))
            return false;
    }
    return true;
}

bool X11Canvas::paintPart(RasterSurface& surface, const PixelGrid& grid, const QRect& area, const Paint& paint)
{
    const QRect part = grid.pixels(area);
    const QPoint corner = nativeCorner(surface);
    QImage image = showsGround() ? m_parts.picture.ground(m_parts.buffer, part.translated(corner))
                                 : m_parts.buffer.blank(part.size());
    if (image.isNull())
        return true;
    image.setDevicePixelRatio(surface.devicePixelRatio());
    QPainter painter(&image);
    painter.translate(-grid.points(part).topLeft());
    painter.setClipRect(grid.points(part));
    if (showsGround() && m_ground == Ground::pictureAndShades) {
        for (const GroundShade* each : m_parts.shades)
            each->shade(painter, corner);
    }
    const bool goesOn = paint(painter, area);
    painter.end();
    const auto window = static_cast<xcb_window_t>(surface.winId());
    if (m_depth == 0)
        m_depth = m_parts.buffer.depthOf(window);
    m_parts.buffer.show(image, part.topLeft(), window, m_depth);
    return goesOn;
}

} // namespace ambrelle
