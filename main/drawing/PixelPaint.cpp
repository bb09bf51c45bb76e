// SPDX-License-Identifier: MIT

#include "drawing/PixelPaint.h"

#include "drawing/PixelMask.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

constexpr double thin = 3; // points up to which a shape keeps its thickness rather than its two edges

int whole(double value)
{
    return static_cast<int>(std::lround(value));
}

} // namespace

int pixelGrid(double scale)
{
    constexpr double rounding = 1e-6;
    return scale >= 1 && std::abs(scale - std::round(scale)) < rounding ? whole(scale) : 1;
}

PixelPaint::PixelPaint(QPainter& painter, Finish finish)
    : m_painter(painter)
    , m_finish(finish)
{
    constexpr double rounding = 1e-6;
    const QTransform device = painter.deviceTransform();
    m_linear = {device.m11(), device.m12(), device.m21(), device.m22(), 0, 0};
    m_scale = std::hypot(device.m11(), device.m12());
    m_upright = std::abs(device.m11() - m_scale) < rounding && std::abs(device.m22() - m_scale) < rounding;
    m_unit = std::max(1, whole(m_scale));
    m_grid = pixelGrid(m_scale);
    m_origin = QPoint(whole(device.dx()), whole(device.dy()));
}

QRect PixelPaint::pixels(const QRectF& box) const
{
    const auto span = [this](double from, double length) {
        const auto snapped = [this](double points) { return whole(points * m_scale / m_grid) * m_grid; };
        const int start = snapped(from);
        const int end = length <= thin ? start + snapped(length) : snapped(from + length);
        return std::pair(start, std::max(m_grid, end - start));
    };
    const auto [x, width] = span(box.x(), box.width());
    const auto [y, height] = span(box.y(), box.height());
    return {x, y, width, height};
}

QTransform PixelPaint::inSteps(int pixels) const
{
    return m_linear * QTransform::fromScale(1.0 / pixels, 1.0 / pixels);
}

QBrush PixelPaint::printed(const QBrush& brush, const QTransform& steps, int unit) const
{
    if (m_finish == Finish::oneBit && brush.style() != Qt::NoBrush) {
        const QColor colour = brush.gradient() ? brush.gradient()->stops().first().second : brush.color();
        const bool pure = colour == QColor(Qt::black) || colour == QColor(Qt::white);
        return pure ? QBrush(colour) : QBrush(ditherTile(colour, unit));
    }
    const QGradient* gradient = brush.gradient();
    const bool inPoints =
        gradient ? gradient->coordinateMode() == QGradient::LogicalMode : brush.style() == Qt::TexturePattern;
    if (!inPoints)
        return brush;
    QBrush placed = brush;
    placed.setTransform(brush.transform() * steps);
    return placed;
}

template <typename Draw> void PixelPaint::inPixels(Draw draw)
{
    m_painter.save();
    m_painter.setTransform(m_painter.deviceTransform().inverted() * m_painter.transform());
    m_painter.translate(m_origin);
    m_painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform, false);
    draw();
    m_painter.restore();
}

void PixelPaint::inUnits(const QRectF& bounds, const std::function<void(QPainter&)>& draw)
{
    if (m_unit == 1) {
        inPixels([&] { draw(m_painter); });
        return;
    }
    const QRect area = bounds.toAlignedRect().adjusted(-1, -1, 1, 1);
    QImage steps(area.size(), QImage::Format_ARGB32_Premultiplied);
    steps.fill(Qt::transparent);
    QPainter painter(&steps);
    painter.translate(-area.topLeft());
    draw(painter);
    painter.end();
    inPixels([&] { m_painter.drawImage(QRect(area.topLeft() * m_unit, area.size() * m_unit), steps); });
}

void PixelPaint::fill(const QRectF& box, const QBrush& brush)
{
    if (!m_upright) {
        QPainterPath path;
        path.addRect(box);
        fill(path, brush);
        return;
    }
    inPixels([&] { m_painter.fillRect(pixels(box), printed(brush, inSteps(1), m_unit)); });
}

void PixelPaint::fill(const QPainterPath& path, const QBrush& brush)
{
    const QTransform toSteps = inSteps(m_unit);
    const QPainterPath steps = toSteps.map(path);
    inUnits(steps.boundingRect(), [&](QPainter& painter) { painter.fillPath(steps, printed(brush, toSteps, 1)); });
}

QPen PixelPaint::penInUnits(const QPen& pen) const
{
    QPen inked = pen;
    inked.setBrush(printed(pen.brush(), inSteps(m_unit), 1));
    inked.setWidth(std::max(1, whole(pen.widthF() * m_scale / m_unit)));
    return inked;
}

void PixelPaint::stroke(const QPainterPath& path, const QPen& pen)
{
    const QPainterPath steps = inSteps(m_unit).map(path);
    const QPen inked = penInUnits(pen);
    const double reach = inked.widthF();
    inUnits(steps.boundingRect().adjusted(-reach, -reach, reach, reach),
        [&](QPainter& painter) { painter.strokePath(steps, inked); });
}

void PixelPaint::frame(const QRectF& box, const QBrush& brush, double thickness)
{
    if (!m_upright) {
        const double half = thickness / 2;
        QPainterPath path;
        path.addRect(box.adjusted(half, half, -half, -half));
        stroke(path, QPen(brush, thickness));
        return;
    }
    const QRect outer = pixels(box);
    const int line = std::max(1, whole(thickness)) * m_unit;
    const QBrush ink = printed(brush, inSteps(1), m_unit);
    inPixels([&] {
        m_painter.fillRect(outer.x(), outer.y(), outer.width(), line, ink);
        m_painter.fillRect(outer.x(), outer.y() + outer.height() - line, outer.width(), line, ink);
        m_painter.fillRect(outer.x(), outer.y() + line, line, outer.height() - 2 * line, ink);
        m_painter.fillRect(outer.x() + outer.width() - line, outer.y() + line, line, outer.height() - 2 * line, ink);
    });
}

bool PixelPaint::blocks(QPainter& painter, const QPainterPath& path, const QColor& colour)
{
    constexpr int corners = 5; // elements of a rectangle in a path
    constexpr double rounding = 1e-3;
    const QTransform device = painter.deviceTransform();
    if (colour.alpha() < 255 || device.type() > QTransform::TxScale || path.elementCount() % corners != 0)
        return false;
    thread_local QList<QRect> pixels;
    pixels.clear();
    for (int index = 0; index < path.elementCount(); index += corners) {
        // Every one is made of squares; all of them have to lie on pixels.
        const QRectF block = device.mapRect(QRectF(path.elementAt(index), path.elementAt(index + 2)));
        const QRect whole(block.topLeft().toPoint(), block.bottomRight().toPoint() - QPoint(1, 1));
        const QPointF off = block.topLeft() - whole.topLeft();
        const QSizeF more = block.size() - whole.size();
        if (std::max({std::abs(off.x()), std::abs(off.y()), std::abs(more.width()), std::abs(more.height())})
            > rounding)
            return false;
        pixels.append(whole);
    }
    const QTransform before = painter.transform();
    painter.setTransform(device.inverted() * before);
    for (const QRect& block : std::as_const(pixels))
        painter.fillRect(block, colour);
    painter.setTransform(before);
    return true;
}

void PixelPaint::squares(const QPainterPath& path, const QBrush& brush, double side)
{
    if (m_upright && brush.style() == Qt::SolidPattern && blocks(m_painter, path, brush.color()))
        return;
    // At a whole scale the squares' edges lie on those of pixels.
    const bool exact = m_upright && (m_grid > 1 || m_scale == 1);
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing, exact || !m_upright || side * m_scale < 1);
    m_painter.fillPath(path, brush);
    m_painter.restore();
}

void PixelPaint::clip(const QPainterPath& shape)
{
    QRegion inside;
    for (const QRect& run : coveredRuns(inSteps(m_unit).map(shape)))
        inside += QRect(run.topLeft() * m_unit, run.size() * m_unit);
    const QTransform before = m_painter.transform();
    m_painter.setTransform(m_painter.deviceTransform().inverted() * before);
    m_painter.setClipRegion(inside.translated(m_origin), Qt::IntersectClip);
    m_painter.setTransform(before);
}

void PixelPaint::picture(const QRectF& box, const QImage& image, const QRectF& source)
{
    if (!m_upright) {
        m_painter.save();
        m_painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
        m_painter.drawImage(box, image, source);
        m_painter.restore();
        return;
    }
    const QRect target = pixels(box);
    const double grow = target.width() / source.width() / m_unit; // steps of a pixel of the picture
    if (m_finish != Finish::oneBit && grow >= 1) {
        inPixels([&] { m_painter.drawImage(QRectF(target), image, source); });
        return;
    }
    // The whole picture is reduced, so that the result can be kept by the picture's key; the crop is taken from it.
    const QSize size = (QSizeF(image.size()) * grow).toSize().expandedTo({1, 1});
    const QImage steps = m_finish == Finish::oneBit ? dithered(image, size) : reduced(image, size);
    const QRect part(
        whole(source.x() * grow), whole(source.y() * grow), target.width() / m_unit, target.height() / m_unit);
    inPixels([&] { m_painter.drawImage(target, steps, part); });
}

} // namespace ambrelle
