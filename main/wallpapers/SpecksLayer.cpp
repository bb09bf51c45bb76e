// SPDX-License-Identifier: MIT

#include "wallpapers/SpecksLayer.h"

#include <cmath>

namespace ambrelle {

namespace {

/// How much of the pixel that begins at `place` lies between `from` and `to`.
double covered(int place, double from, double to)
{
    return std::max(0.0, std::min(to, place + 1.0) - std::max(from, static_cast<double>(place)));
}

} // namespace

SpecksLayer::SpecksLayer(QSize picture)
    : m_picture(picture)
    , m_rows(static_cast<std::size_t>((picture.height() + Tile::height - 1) / Tile::height))
{
}

void SpecksLayer::add(const QRectF& area, const RGBA& colour)
{
    const QRectF visible = area & QRectF(QPointF(), m_picture);
    if (visible.isEmpty())
        return;
    const auto first = static_cast<std::size_t>(visible.top()) / Tile::height;
    const auto last = static_cast<std::size_t>(std::ceil(visible.bottom()) - 1) / Tile::height;
    for (std::size_t row = first; row <= last; ++row)
        m_rows[row].push_back({visible, pixel(colour)});
}

void SpecksLayer::paint(Tile& tile) const
{
    for (const Speck& speck : m_rows[static_cast<std::size_t>(tile.area().top() / Tile::height)]) {
        const QRect area = speck.area.toAlignedRect() & tile.area();
        for (int y = area.top(); y <= area.bottom(); ++y) {
            const double tall = covered(y, speck.area.top(), speck.area.bottom());
            for (int x = area.left(); x <= area.right(); ++x) {
                const double part = tall * covered(x, speck.area.left(), speck.area.right());
                lay(*tile.at(x, y), speck.colour * static_cast<float>(part));
            }
        }
    }
}

} // namespace ambrelle
