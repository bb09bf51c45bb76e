// SPDX-License-Identifier: MIT

#include "wallpapers/Ridge.h"

#include <bit>
#include <numeric>

namespace ambrelle {

Heights ridge(int points, double roughness, SeededRandom& random)
{
    if (points < 2 || !std::has_single_bit(static_cast<unsigned>(points - 1)))
        qFatal("ridge: %d is not a power of two plus one", points);
    const auto count = static_cast<std::size_t>(points);
    Heights heights(count, 0);
    heights.front() = random.in(0, 1) - 0.5;
    heights.back() = random.in(0, 1) - 0.5;
    double amplitude = 1;
    for (std::size_t step = count - 1; step > 1; step /= 2) {
        const std::size_t half = step / 2;
        for (std::size_t i = half; i < count; i += step)
            heights[i] = (heights[i - half] + heights[i + half]) / 2 + (2 * amplitude * random.in(0, 1) - amplitude);
        amplitude *= roughness;
    }
    return heights;
}

Heights smoothed(const Heights& heights, int radius)
{
    if (radius < 0)
        qFatal("smoothed: %d is no radius", radius);
    Heights result;
    result.reserve(heights.size());
    const auto reach = static_cast<std::size_t>(radius);
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const auto first = heights.begin() + static_cast<std::ptrdiff_t>(i - std::min(i, reach));
        const auto last = heights.begin() + static_cast<std::ptrdiff_t>(std::min(i + reach + 1, heights.size()));
        result.push_back(std::accumulate(first, last, 0.0) / static_cast<double>(last - first));
    }
    return result;
}

QPainterPath ridgeLine(const Painting& painting, const Heights& heights, double base, double amplitude)
{
    QPainterPath path;
    for (std::size_t i = 0; i < heights.size(); ++i) {
        const double x = static_cast<double>(i) / static_cast<double>(heights.size() - 1);
        const QPointF place = painting.at(x, base + amplitude * heights[i]);
        if (i == 0)
            path.moveTo(place);
        else
            path.lineTo(place);
    }
    return path;
}

QPainterPath ridgePath(const Painting& painting, const Heights& heights, double base, double amplitude)
{
    QPainterPath path = ridgeLine(painting, heights, base, amplitude);
    path.lineTo(painting.width(), 0);
    path.lineTo(0, 0);
    path.closeSubpath();
    return path;
}

void fillRidge(Painting& painting, const Heights& heights, double base, double amplitude, const Ink& ink)
{
    painting.fill(ridgePath(painting, heights, base, amplitude), ink);
}

} // namespace ambrelle
