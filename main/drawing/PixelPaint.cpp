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
    const QTransform device = painter.deviceTransform();
    m_scale = device.m11();
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

QBrush PixelPaint::printed(const QBrush& brush, int unit) const
{
    const QColor colour = brush.gradient() ? brush.gradient()->stops().first().second : brush.color();
    if (m_finish != Finish::oneBit || brush.style() == Qt::NoBrush)
        return brush;
    if (colour == QColor(Qt::black) || colour == QColor(Qt::white))
        return colour;
    return QBrush(ditherTile(colour, unit));
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
    inPixels([&] { m_painter.fillRect(pixels(box), printed(brush, m_unit)); });
}

void PixelPaint::fill(const QPainterPath& path, const QBrush& brush)
{
    const QPainterPath steps = QTransform::fromScale(m_scale / m_unit, m_scale / m_unit).map(path);
    inUnits(steps.boundingRect(), [&](QPainter& painter) { painter.fillPath(steps, printed(brush, 1)); });
}

QPen PixelPaint::penInUnits(const QPen& pen) const
{
    QPen inked = pen;
    inked.setBrush(printed(pen.brush(), 1));
    inked.setWidth(std::max(1, whole(pen.widthF() * m_scale / m_unit)));
    return inked;
}

void PixelPaint::stroke(const QPainterPath& path, const QPen& pen)
{
    const QPainterPath steps = QTransform::fromScale(m_scale / m_unit, m_scale / m_unit).map(path);
    const QPen inked = penInUnits(pen);
    const double reach = inked.widthF();
    inUnits(steps.boundingRect().adjusted(-reach, -reach, reach, reach),
        [&](QPainter& painter) { painter.strokePath(steps, inked); });
}

void PixelPaint::frame(const QRectF& box, const QBrush& brush, double thickness)
{
    const QRect outer = pixels(box);
    const int line = std::max(1, whole(thickness)) * m_unit;
    const QBrush ink = printed(brush, m_unit);
    inPixels([&] {
        m_painter.fillRect(outer.x(), outer.y(), outer.width(), line, ink);
        m_painter.fillRect(outer.x(), outer.y() + outer.height() - line, outer.width(), line, ink);
        m_painter.fillRect(outer.x(), outer.y() + line, line, outer.height() - 2 * line, ink);
        m_painter.fillRect(outer.x() + outer.width() - line, outer.y() + line, line, outer.height() - 2 * line, ink);
    });
}

void PixelPaint::picture(const QRectF& box, const QImage& image, const QRectF& source)
{
    const QRect target = pixels(box);
    if (m_finish != Finish::oneBit) {
        inPixels([&] {
            m_painter.setRenderHint(QPainter::SmoothPixmapTransform);
            m_painter.drawImage(target, image, source);
        });
        return;
    }
    // The whole picture is dithered, so that the result can be kept by the picture's key; the crop is taken from it.
    const double grow = target.width() / source.width() / m_unit;
    const QImage bits = dithered(image, (QSizeF(image.size()) * grow).toSize().expandedTo({1, 1}));
    const QRect part(
        whole(source.x() * grow), whole(source.y() * grow), target.width() / m_unit, target.height() / m_unit);
    inPixels([&] { m_painter.drawImage(target, bits, part); });
}

} // namespace ambrelle
