// SPDX-License-Identifier: MIT

#include "platform/x11/window/X11Canvas.h"

#include "platform/toolkit/PixelGrid.h"

#include <QPainter>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

/// Of the part that are painted in one go, in points.
int rowsOf(const QRect& part, double ratio, const PixelGrid& grid, int mostPixels)
{
    const double pixelsOfRow = part.width() * ratio * ratio;
    return std::max(1, static_cast<int>(mostPixels / pixelsOfRow) / grid.step()) * grid.step();
}

} // namespace

X11Canvas::X11Canvas(X11Parts& parts, Ground ground, bool translucent, int mostPixels)
    : m_parts(parts)
    , m_ground(ground)
    , m_translucent(translucent)
    , m_mostPixels(mostPixels)
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
    const double ratio = surface.devicePixelRatio();
    const PixelGrid grid(ratio);
    QList<QRect> together;
    int pixels = 0;
    for (const QRect& part : parts) {
        const int rows = rowsOf(part, ratio, grid, m_mostPixels);
        for (int top = part.top(); top <= part.bottom(); top += rows) {
            const QRect area = QRect(part.left(), top, part.width(), rows) & part;
            const int more = static_cast<int>(area.width() * area.height() * ratio * ratio);
            if (pixels + more > m_mostPixels && !together.isEmpty()) {
                if (!paintTogether(surface, grid, std::exchange(together, {}), paint))
                    return;
                pixels = 0;
            }
            together.append(area);
            pixels += more;
        }
    }
    if (!together.isEmpty())
        paintTogether(surface, grid, together, paint);
}

/// Each wait for the server costs as much as painting some thousand pixels.
bool X11Canvas::paintTogether(
    RasterSurface& surface, const PixelGrid& grid, const QList<QRect>& areas, const Paint& paint)
{
    const QPoint corner = nativeCorner(surface);
    QList<QRect> below;
    QList<QSize> sizes;
    QList<QPoint> places;
    for (const QRect& area : areas) {
        const QRect part = grid.pixels(area);
        below.append(part.translated(corner));
        sizes.append(part.size());
        places.append(part.topLeft());
    }
    QList<QImage> images = showsGround() ? m_parts.picture.ground(m_parts.buffer, below) : m_parts.buffer.blank(sizes);
    for (qsizetype index = 0; index < images.size(); ++index) {
        QImage& image = images[index];
        const QRectF part = grid.points(QRect(places[index], sizes[index]));
        image.setDevicePixelRatio(surface.devicePixelRatio());
        QPainter painter(&image);
        painter.translate(-part.topLeft());
        painter.setClipRect(part);
        if (showsGround() && m_ground == Ground::pictureAndShades) {
            for (const GroundShade* each : m_parts.shades)
                each->shade(painter, corner);
        }
        if (!paint(painter, areas[index]))
            return false;
    }
    const auto window = static_cast<xcb_window_t>(surface.winId());
    if (m_depth == 0)
        m_depth = m_parts.buffer.depthOf(window);
    m_parts.buffer.show(images, places, window, m_depth);
    return true;
}

} // namespace ambrelle
