// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"

#include <cmath>

namespace ambrelle {

namespace {

/// The side of one dot of the picture in pixels: the desktop is 1440 dots wide.
int unitOf(const Painting& painting)
{
    return std::max(1, static_cast<int>(std::lround(painting.width() / 1440)));
}

/// Outside the quarter disc that rounds a corner; the place is counted in dots from the nearest edges.
bool isCutOff(int column, int row)
{
    constexpr int radius = 8;
    if (column >= radius || row >= radius)
        return false;
    const double x = radius - column - 0.5;
    const double y = radius - row - 0.5;
    return x * x + y * y > radius * radius;
}

} // namespace

void paintClassicWallpaper(Painting& painting, SeededRandom&)
{
    const int unit = unitOf(painting);
    const double width = painting.width();
    const double height = painting.height();
    painting.raster(painting.all(), 1, [=](double x, double y) {
        const double across = x * height;
        const double up = y * height;
        const int column = static_cast<int>(across) / unit;
        const int row = static_cast<int>(up) / unit;
        const int columnFromEdge = static_cast<int>(std::min(across, width - across)) / unit;
        const int rowFromEdge = static_cast<int>(std::min(up, height - up)) / unit;
        return (column + row) % 2 == 0 || isCutOff(columnFromEdge, rowFromEdge) ? black() : white();
    });
}

} // namespace ambrelle
