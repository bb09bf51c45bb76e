// SPDX-License-Identifier: MIT

#include "wallpapers/RasterLayer.h"

#include <array>
#include <cmath>

namespace ambrelle {

namespace {

bool isWhole(double value)
{
    return value == std::floor(value);
}

} // namespace

RasterLayer::RasterLayer(QSize picture, const QRectF& area, double scale, Shader shader)
    : m_picture(picture)
    , m_area(area)
    , m_samples(
          std::max(1, static_cast<int>(area.width() / scale)), std::max(1, static_cast<int>(area.height() / scale)))
    , m_shader(std::move(shader))
    , m_exact(QSizeF(m_samples) == area.size() && isWhole(area.x()) && isWhole(area.y()))
{
}

void RasterLayer::paint(Tile& tile) const
{
    // The pixels whose centres lie inside.
    const auto edge = [](double value) { return static_cast<int>(std::ceil(value - 0.5)); };
    const QRect inside(
        QPoint(edge(m_area.left()), edge(m_area.top())), QPoint(edge(m_area.right()) - 1, edge(m_area.bottom()) - 1));
    const QRect part = inside & tile.area();
    if (part.isEmpty())
        return;
    if (m_exact)
        paintExactly(tile, part);
    else
        paintBetween(tile, part);
}

void RasterLayer::shade(int row, int first, std::span<Pixel> samples) const
{
    const double height = m_picture.height();
    const double middle = m_area.top() + (row + 0.5) * m_area.height() / m_samples.height();
    m_shader({.first = first,
                 .origin = m_area.left() / height,
                 .step = m_area.width() / m_samples.width() / height,
                 .y = (height - middle) / height},
        samples);
}

void RasterLayer::paintExactly(Tile& tile, const QRect& part) const
{
    const QPoint corner = m_area.topLeft().toPoint();
    std::array<Pixel, Tile::width> buffer;
    const std::span<Pixel> samples(buffer.data(), static_cast<std::size_t>(part.width()));
    for (int y = part.top(); y <= part.bottom(); ++y) {
        shade(y - corner.y(), part.left() - corner.x(), samples);
        Pixel* target = tile.at(part.left(), y);
        for (const Pixel& sample : samples)
            lay(*target++, sample);
    }
}

RasterLayer::Between RasterLayer::between(int pixel, double start, double perPixel, int count)
{
    const double place = std::clamp((pixel + 0.5 - start) * perPixel - 0.5, 0.0, count - 1.0);
    const int sample = std::clamp(static_cast<int>(place), 0, std::max(0, count - 2));
    return {sample, static_cast<float>(place - sample)};
}

void RasterLayer::paintBetween(Tile& tile, const QRect& part) const
{
    const double perColumn = m_samples.width() / m_area.width();
    const double perRow = m_samples.height() / m_area.height();
    const auto column = [&](int x) { return between(x, m_area.left(), perColumn, m_samples.width()); };
    const auto line = [&](int y) { return between(y, m_area.top(), perRow, m_samples.height()); };

    const int first = column(part.left()).sample;
    const int wide = std::min(column(part.right()).sample + 2, m_samples.width()) - first;
    const int top = line(part.top()).sample;
    const int tall = std::min(line(part.bottom()).sample + 2, m_samples.height()) - top;
    const auto stride = static_cast<std::size_t>(wide);
    std::vector<Pixel> samples(stride * static_cast<std::size_t>(tall));
    for (int row = 0; row < tall; ++row)
        shade(top + row, first, std::span(samples).subspan(static_cast<std::size_t>(row) * stride, stride));

    std::vector<Pixel> blend(stride + 1); // one line of samples between two rows; the last is there twice
    std::vector<Between> columns;
    columns.reserve(static_cast<std::size_t>(part.width()));
    for (int x = part.left(); x <= part.right(); ++x) {
        columns.push_back(column(x));
        columns.back().sample -= first;
    }
    for (int y = part.top(); y <= part.bottom(); ++y) {
        const Between place = line(y);
        const Pixel* upper = samples.data() + static_cast<std::size_t>(place.sample - top) * stride;
        const Pixel* lower = place.sample - top + 1 < tall ? upper + stride : upper;
        for (std::size_t i = 0; i < stride; ++i)
            blend[i] = upper[i] + (lower[i] - upper[i]) * place.next;
        blend[stride] = blend[stride - 1];
        Pixel* target = tile.at(part.left(), y);
        for (const Between& between : columns) {
            const Pixel* sample = blend.data() + between.sample;
            lay(*target++, sample[0] + (sample[1] - sample[0]) * between.next);
        }
    }
}

} // namespace ambrelle
