// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"
#include "wallpapers/Ridge.h"

#include <QPainter>

#include <array>
#include <cmath>
#include <optional>

namespace ambrelle {

namespace {

/// The side of the picture's large square pixels.
int cellOf(const Painting& painting)
{
    return std::max(2, static_cast<int>(std::lround(painting.height() / 270)));
}

/// Rectangles in cells from the lower left corner, gathered to be painted at once.
class Blocks {
public:
    explicit Blocks(const Painting& painting)
        : m_cell(cellOf(painting))
    {
    }

    void add(int x, int y, int width, int height)
    {
        m_all.append(QRect(x * m_cell, y * m_cell, width * m_cell, height * m_cell));
        m_area |= m_all.back();
    }
    void paint(Painting& painting, const RGBA& colour) const
    {
        painting.stencil(m_area, colour, [this](QPainter& painter) {
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.drawRects(m_all);
        });
    }

private:
    int m_cell;
    QList<QRect> m_all;
    QRect m_area;
};

struct Cells {
    int columns;
    int rows;
};

Cells cellsOf(const Painting& painting)
{
    const double cell = cellOf(painting);
    return {
        static_cast<int>(std::ceil(painting.width() / cell)), static_cast<int>(std::ceil(painting.height() / cell))};
}

/// The gradient of the sky in few flat colours; where two meet, one row of each shows the other in every second cell.
void sky(Painting& painting)
{
    constexpr RGBA top = hex(0x5AA8EA);
    constexpr RGBA bottom = hex(0xD6EEFF);
    constexpr int bands = 12;
    painting.verticalGradient(top, bottom);
    const Cells cells = cellsOf(painting);
    for (int band = 0; band < bands; ++band) {
        const int from = band * cells.rows / bands;
        const int to = (band + 1) * cells.rows / bands;
        Blocks blocks(painting);
        blocks.add(0, from, cells.columns, to - from);
        for (int x = 0; x < cells.columns && band > 0; x += 2)
            blocks.add(x, from - 1, 1, 1);
        blocks.paint(painting, bottom.mixed(top, static_cast<double>(band) / (bands - 1)));
    }
}

/// Nine clouds of heaped blocks with a shaded foot.
void clouds(Painting& painting, SeededRandom& random)
{
    constexpr std::array bright{QRect(-1, 1, 22, 1), QRect(0, 2, 20, 1), QRect(1, 3, 17, 1), QRect(3, 4, 8, 2),
        QRect(4, 6, 6, 1), QRect(12, 4, 5, 1), QRect(13, 5, 3, 1)};
    constexpr std::array shade{QRect(1, 0, 18, 1), QRect(11, 1, 10, 1), QRect(9, 4, 2, 2), QRect(16, 3, 2, 1)};
    const Cells cells = cellsOf(painting);
    Blocks light(painting);
    Blocks dark(painting);
    for (int cloud = 0; cloud < 9; ++cloud) {
        const int x = static_cast<int>(random.in(-0.05, 0.95) * cells.columns);
        const int y = static_cast<int>(random.in(0.62, 0.93) * cells.rows);
        const int unit = static_cast<int>(random.in(1, 3.99));
        const auto heap = [&](Blocks& blocks, const QRect& block) {
            blocks.add(x + block.x() * unit, y + block.y() * unit, block.width() * unit, block.height() * unit);
        };
        for (const QRect& block : bright)
            heap(light, block);
        for (const QRect& block : shade)
            heap(dark, block);
    }
    light.paint(painting, hex(0xF6FBFF));
    dark.paint(painting, hex(0xC9E4FA));
}

/// The tops of a range in cells, one for each column.
std::vector<int> skyline(const Painting& painting, const Heights& heights, double base, double amplitude)
{
    const Cells cells = cellsOf(painting);
    std::vector<int> tops;
    tops.reserve(static_cast<std::size_t>(cells.columns));
    for (int column = 0; column < cells.columns; ++column) {
        const double place = (column + 0.5) / cells.columns * static_cast<double>(heights.size() - 1);
        const auto left = static_cast<std::size_t>(place);
        const double height = mix(heights[left], heights[left + 1], place - static_cast<double>(left));
        tops.push_back(static_cast<int>(std::lround((base + amplitude * height) * cells.rows)));
    }
    return tops;
}

/// The slopes turned away from the light: all that lies under the skyline when that is moved to the right and down.
void shade(Painting& painting, const std::vector<int>& tops, int right, int down, const RGBA& colour)
{
    Blocks blocks(painting);
    for (std::size_t column = 0; column < tops.size(); ++column) {
        const std::size_t from = column - std::min(column, static_cast<std::size_t>(right));
        const int top = std::min(tops[column], tops[from] - down);
        blocks.add(static_cast<int>(column), 0, 1, std::max(0, top));
    }
    blocks.paint(painting, colour);
}

/// Snow in tongues, deeper below the high peaks, and blue where it is turned away from the light.
void snow(Painting& painting, const std::vector<int>& tops, int line, const RGBA& colour)
{
    constexpr std::array<int, 23> tongues{0, 0, 2, 3, 5, 6, 4, 3, 1, 1, 3, 4, 2, 0, 1, 4, 7, 8, 6, 3, 2, 1, 0};
    Blocks bright(painting);
    Blocks dark(painting);
    for (std::size_t column = 0; column < tops.size(); ++column) {
        const int top = tops[column];
        const int ragged = tongues[column % tongues.size()] + tongues[column / 2 % tongues.size()] / 2;
        const int low = line + ragged - (top - line) / 3 - 1;
        if (top <= low)
            continue;
        const int x = static_cast<int>(column);
        bright.add(x, low, 1, top - low);
        const std::size_t left = column - std::min<std::size_t>(column, 7);
        const int shaded = std::min(top, tops[left] - 5);
        if (shaded > low)
            dark.add(x, low, 1, shaded - low);
    }
    bright.paint(painting, colour);
    dark.paint(painting, colour.mixed(hex(0x7FA0D8), 0.3));
}

/// A mountain range of `range` points in one colour and its shades, and snow on its peaks if there is a `cap`. Gives
/// the tops of its columns in cells.
std::vector<int> questRange(Painting& painting, SeededRandom& random, int range, double base, double amplitude,
    double roughness, const RGBA& colour, const std::optional<RGBA>& cap)
{
    std::vector<int> tops = skyline(painting, ridge(range, roughness, random), base, amplitude);
    shade(painting, tops, 0, 0, colour.mixed(white(), 0.14));
    shade(painting, tops, cap ? 7 : 1, cap ? 5 : 1, colour);
    shade(painting, tops, 16, 16, colour.scaled(0.95));
    if (cap)
        snow(painting, tops, static_cast<int>((base + 0.4 * amplitude) * cellsOf(painting).rows), *cap);
    return tops;
}

/// Pines of stepped boughs along the last range.
void pines(Painting& painting, const std::vector<int>& tops)
{
    constexpr std::array<int, 11> gaps{9, 14, 7, 22, 10, 8, 30, 12, 7, 17, 9};
    constexpr std::array<int, 7> tiers{3, 4, 3, 2, 4, 3, 5};
    Blocks dark(painting);
    Blocks lit(painting);
    const int columns = static_cast<int>(tops.size());
    int tree = 0;
    for (int x = 6; x < columns; x += gaps[static_cast<std::size_t>(tree++) % gaps.size()]) {
        const int foot = tops[static_cast<std::size_t>(x)] - 1;
        const int count = tiers[static_cast<std::size_t>(tree) % tiers.size()];
        dark.add(x, foot, 1, 3);
        for (int tier = 0; tier < count; ++tier) {
            const int reach = count - tier;
            const int y = foot + 2 + 3 * tier;
            dark.add(x - reach, y, 2 * reach + 1, 2);
            dark.add(x - reach + 1, y + 2, 2 * reach - 1, 1);
            lit.add(x - reach, y, 1, 1);
            lit.add(x - reach + 1, y + 1, 1, 2);
        }
        dark.add(x, foot + 2 + 3 * count, 1, 2);
    }
    dark.paint(painting, hex(0x1D5229));
    lit.paint(painting, hex(0x2B6B38));
}

/// Tufts of grass and a few flowers in the meadow in front.
void meadow(Painting& painting, const std::vector<int>& tops)
{
    SeededRandom places{1};
    Blocks tufts(painting);
    Blocks flowers(painting);
    const int columns = static_cast<int>(tops.size());
    for (int i = 0; i < columns / 3; ++i) {
        const int x = static_cast<int>(places.next(static_cast<std::uint64_t>(columns)));
        const int y = static_cast<int>(places.in(0, std::max(1, tops[static_cast<std::size_t>(x)] - 5)));
        tufts.add(x, y, 1, 2);
        tufts.add(x + 2, y, 1, 2);
        tufts.add(x + 1, y, 1, 1);
        if (i % 6 == 0)
            flowers.add(x + 1, y + 2, 1, 1);
    }
    tufts.paint(painting, hex(0x3B8544));
    flowers.paint(painting, hex(0xFFD23F));
}

} // namespace

void paintQuestWallpaper(Painting& painting, SeededRandom& random)
{
    sky(painting);
    clouds(painting, random);
    questRange(painting, random, 129, 0.42, 0.20, 0.55, hex(0x7FA0D8), white());
    questRange(painting, random, 129, 0.32, 0.16, 0.50, hex(0x5C86B8), hex(0xDDEBFF));
    questRange(painting, random, 65, 0.22, 0.10, 0.45, hex(0x3F8F4A), std::nullopt);
    const auto front = questRange(painting, random, 65, 0.12, 0.06, 0.40, hex(0x2F7438), std::nullopt);
    pines(painting, front);
    meadow(painting, front);
}

} // namespace ambrelle
