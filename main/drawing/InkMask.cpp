// SPDX-License-Identifier: MIT

#include "drawing/InkMask.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

InkMask::InkMask(const QRect& pixels, double edge, const QRect& seen)
    : m_origin(pixels.topLeft())
    , m_pixels(pixels & seen)
    , m_edge(edge)
    , m_cover(static_cast<qsizetype>(m_pixels.width()) * m_pixels.height(), uchar{0})
{
}

void InkMask::add(const QPolygonF& points, const QList<double>& widths)
{
    const QPointF corner = m_origin;
    for (qsizetype index = 1; index < points.size(); ++index)
        addPiece(points[index - 1] - corner, points[index] - corner, widths[index - 1] / 2, widths[index] / 2);
}

void InkMask::addPiece(QPointF from, QPointF to, double fromRadius, double toRadius)
{
    const double reach = std::max(fromRadius, toRadius) + m_edge / 2;
    const QRect room = m_pixels.translated(-m_origin);
    const int left = std::max(room.left(), static_cast<int>(std::floor(std::min(from.x(), to.x()) - reach)));
    const int right = std::min(room.right(), static_cast<int>(std::ceil(std::max(from.x(), to.x()) + reach)));
    const int top = std::max(room.top(), static_cast<int>(std::floor(std::min(from.y(), to.y()) - reach)));
    const int bottom = std::min(room.bottom(), static_cast<int>(std::ceil(std::max(from.y(), to.y()) + reach)));
    const auto wayX = static_cast<float>(to.x() - from.x());
    const auto wayY = static_cast<float>(to.y() - from.y());
    const float perLength = 1 / std::max(1e-6F, wayX * wayX + wayY * wayY);
    const auto start = static_cast<float>(fromRadius + m_edge / 2);
    const auto perEdge = static_cast<float>(1 / m_edge);
    const auto growth = static_cast<float>(toRadius - fromRadius);
    for (int y = top; y <= bottom; ++y) {
        uchar* row = m_cover.data() + static_cast<qsizetype>(y - room.top()) * m_pixels.width();
        const float down = static_cast<float>(y) + 0.5F - static_cast<float>(from.y());
        for (int x = left; x <= right; ++x) {
            const float across = static_cast<float>(x) + 0.5F - static_cast<float>(from.x());
            const float along = std::clamp((across * wayX + down * wayY) * perLength, 0.0F, 1.0F);
            const float asideX = across - along * wayX;
            const float asideY = down - along * wayY;
            const float cover = start + growth * along - std::sqrt(asideX * asideX + asideY * asideY);
            if (cover > 0)
                row[x - room.left()] =
                    std::max(row[x - room.left()], static_cast<uchar>(std::min(1.0F, cover * perEdge) * 255));
        }
    }
}

QImage InkMask::tinted(const QColor& colour, const std::array<double, 256>& opacities) const
{
    std::array<QRgb, 256> tints{};
    for (std::size_t cover = 1; cover < tints.size(); ++cover) {
        QColor tint = colour;
        tint.setAlphaF(colour.alphaF() * static_cast<float>(opacities[cover]));
        tints[cover] = qPremultiply(tint.rgba());
    }
    QImage image(m_pixels.size(), QImage::Format_ARGB32_Premultiplied);
    for (int y = 0; y < m_pixels.height(); ++y)
        std::transform(row(y), row(y) + m_pixels.width(), reinterpret_cast<QRgb*>(image.scanLine(y)),
            [&](uchar cover) { return tints[cover]; });
    return image;
}

} // namespace ambrelle
