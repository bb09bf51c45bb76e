// SPDX-License-Identifier: MIT

#include "wallpapers/TilePrinter.h"

#include <array>
#include <atomic>
#include <thread>

namespace ambrelle {

namespace {

/// The thresholds of ordered dithering, 0 to 1 (Bayer, 1973): which pixels of eight by eight are rounded up when a
/// colour lies between two that the screen knows.
constexpr auto thresholds = [] {
    std::array<std::array<float, 8>, 8> matrix{};
    for (unsigned y = 0; y < 8; ++y) {
        for (unsigned x = 0; x < 8; ++x) {
            unsigned rank = 0;
            for (unsigned bit = 0; bit < 3; ++bit)
                rank |= ((x ^ y) >> bit & 1U) << (5 - 2 * bit) | (y >> bit & 1U) << (4 - 2 * bit);
            matrix[y][x] = (static_cast<float>(rank) + 0.5F) / 64;
        }
    }
    return matrix;
}();

using Whole = int __attribute__((vector_size(16)));

void printTile(Tile& tile, uchar* picture, qsizetype bytesPerLine)
{
    const QRect& area = tile.area();
    for (int y = area.top(); y <= area.bottom(); ++y) {
        const auto& threshold = thresholds[static_cast<std::size_t>(y) % 8];
        const Pixel* source = tile.at(area.left(), y);
        uchar* target = picture + y * bytesPerLine + 3L * area.left();
        for (int x = 0; x < area.width(); ++x, target += 3) {
            const Pixel scattered = source[x] * 255 + threshold[static_cast<std::size_t>(x) % 8];
            const Whole rounded = __builtin_convertvector(scattered, Whole);
            target[0] = static_cast<uchar>(rounded[0]);
            target[1] = static_cast<uchar>(rounded[1]);
            target[2] = static_cast<uchar>(rounded[2]);
        }
    }
}

} // namespace

TilePrinter::TilePrinter(QSize size, const std::vector<std::unique_ptr<Layer>>& layers)
    : m_size(size)
    , m_layers(layers)
{
}

QImage TilePrinter::print(int threads) const
{
    QImage image(m_size, QImage::Format_RGB888);
    if (image.isNull())
        return image;
    uchar* picture = image.bits();
    const qsizetype bytesPerLine = image.bytesPerLine();
    const int across = (m_size.width() + Tile::width - 1) / Tile::width;
    const int down = (m_size.height() + Tile::height - 1) / Tile::height;
    std::atomic<int> next = 0;
    const auto work = [&] {
        for (int number = next++; number < across * down; number = next++) {
            const QPoint corner(number % across * Tile::width, number / across * Tile::height);
            Tile tile(QRect(corner, QSize(Tile::width, Tile::height)) & QRect(QPoint(), m_size));
            for (const std::unique_ptr<Layer>& layer : m_layers)
                layer->paint(tile);
            printTile(tile, picture, bytesPerLine);
        }
    };
    std::vector<std::jthread> helpers;
    for (int i = 1; i < threads; ++i)
        helpers.emplace_back(work);
    work();
    helpers.clear(); // waits for them
    return image;
}

} // namespace ambrelle
