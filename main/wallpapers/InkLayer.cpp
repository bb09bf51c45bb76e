// SPDX-License-Identifier: MIT

#include "wallpapers/InkLayer.h"

#include <array>
#include <cstring>

namespace ambrelle {

namespace {

/// Most of a stencil is empty: skips that eight pixels at a time.
bool isClear(const uchar* coverage, std::size_t count)
{
    std::uint64_t eight = 0;
    while (count >= sizeof eight) {
        std::memcpy(&eight, coverage, sizeof eight);
        if (eight != 0)
            return false;
        coverage += sizeof eight;
        count -= sizeof eight;
    }
    return std::all_of(coverage, coverage + count, [](uchar value) { return value == 0; });
}

} // namespace

InkLayer::InkLayer(Ink ink, QSize picture)
    : m_ink(std::move(ink))
    , m_picture(picture)
    , m_area(QPoint(), picture)
{
}

InkLayer::InkLayer(Ink ink, QSize picture, QImage stencil, QPoint corner)
    : m_ink(std::move(ink))
    , m_picture(picture)
    , m_stencil(std::move(stencil))
    , m_area(corner, m_stencil.size())
{
}

void InkLayer::paint(Tile& tile) const
{
    const QRect area = m_area & tile.area();
    std::array<Pixel, Tile::width> inked;
    for (int row = area.top(); row <= area.bottom(); ++row) {
        const double y = m_picture.height() - row - 0.5;
        const auto [from, to] = m_ink.columns(y, m_picture.width());
        const int first = std::max(from, area.left());
        const int count = std::min(to, area.right() + 1) - first;
        if (count <= 0)
            continue;
        const std::span<Pixel> source(inked.data(), static_cast<std::size_t>(count));
        const uchar* coverage =
            m_stencil.isNull() ? nullptr : m_stencil.constScanLine(row - m_area.top()) + (first - m_area.left());
        if (coverage && isClear(coverage, source.size()))
            continue;
        m_ink.fill(source, first, y);
        Pixel* target = tile.at(first, row);
        for (std::size_t i = 0; i < source.size(); ++i)
            lay(target[i], coverage ? source[i] * (static_cast<float>(coverage[i]) / 255) : source[i]);
    }
}

} // namespace ambrelle
