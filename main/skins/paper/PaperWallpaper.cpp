// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"

#include <cmath>

namespace ambrelle {

namespace {

void fibres(Painting& painting, SeededRandom& random)
{
    const double thickness = std::max(painting.width() / 2400, 1.0);
    painting.specks(countFor(painting, 260), [&] {
        const RGBA colour = random.in(0, 1) > 0.5 ? black(0.035) : white(0.035);
        const double length = (1 + 3 * random.in(0, 1)) * painting.width() / 1600;
        const double x = random.in(0, painting.width());
        return std::pair{QRectF(x, random.in(0, painting.height()), length, thickness), colour};
    });
}

void centreFold(Painting& painting)
{
    const QPointF from = painting.at(0.47, 0);
    const QPointF to = painting.at(0.53, 0);
    painting.fill(Ink::linear(
        from, to, {{0, black(0)}, {0.48, black(0.05)}, {0.52, white(0.08)}, {1, black(0)}}, Ink::Ends::open));
}

void agedEdges(Painting& painting)
{
    constexpr RGBA tan = rgb(0.8, 0.74, 0.62);
    const double corner = std::hypot(painting.width(), painting.height()) / 2;
    painting.fill(Ink::radial(
        painting.at(0.5, 0.5), corner, {{0.55, tan.withAlpha(0)}, {1, tan.withAlpha(0.45)}}, Ink::Ends::extended));
}

} // namespace

void paintPaperWallpaper(Painting& painting, SeededRandom& random)
{
    painting.fill(rgb(0.955, 0.935, 0.89));
    fibres(painting, random);
    centreFold(painting);
    agedEdges(painting);
}

} // namespace ambrelle
