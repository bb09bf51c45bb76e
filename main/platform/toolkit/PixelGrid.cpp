// SPDX-License-Identifier: MIT

#include "platform/toolkit/PixelGrid.h"

#include <cmath>

namespace ambrelle {

namespace {

constexpr double tolerance = 1e-6;

/// A ratio as odd as 1.37 gets steps of 20 points, at whose edges a faint seam is then possible.
int stepFor(double ratio)
{
    constexpr int longest = 20;
    for (int step = 1; step < longest; ++step) {
        if (std::abs(step * ratio - std::round(step * ratio)) < tolerance)
            return step;
    }
    return longest;
}

int down(double value, int step)
{
    return static_cast<int>(std::floor(value / step + tolerance)) * step;
}
int up(double value, int step)
{
    return static_cast<int>(std::ceil(value / step - tolerance)) * step;
}

} // namespace

PixelGrid::PixelGrid(double pixelRatio)
    : m_ratio(pixelRatio)
    , m_step(stepFor(pixelRatio))
{
}

QRect PixelGrid::covering(const QRectF& points) const
{
    const QPoint topLeft(down(points.left(), m_step), down(points.top(), m_step));
    const QPoint end(up(points.right(), m_step), up(points.bottom(), m_step));
    return {topLeft, QSize(end.x() - topLeft.x(), end.y() - topLeft.y())};
}

QSize PixelGrid::covering(const QSizeF& points) const
{
    return {up(points.width(), m_step), up(points.height(), m_step)};
}

QRect PixelGrid::pixels(const QRectF& points) const
{
    return QRectF(points.topLeft() * m_ratio, points.size() * m_ratio).toAlignedRect();
}

QRectF PixelGrid::points(const QRect& pixels) const
{
    return {QPointF(pixels.topLeft()) / m_ratio, QSizeF(pixels.size()) / m_ratio};
}

} // namespace ambrelle
