// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"

#include <cmath>

namespace ambrelle {

namespace {

void horizon(Painting& painting, double thickness)
{
    const QPointF start = painting.at(0.06, 0.62);
    const double y = std::round(start.y()); // on whole pixels: a hairline must not blur
    painting.fill(QRectF(start.x(), y, 0.88 * painting.width(), thickness), white(0.1));
}

/// Its centre is on the hairline. It keeps clear of the edge where the picture is narrower than 16:10.
void circle(Painting& painting, double thickness)
{
    const double radius = std::min(0.28 * painting.height(), 0.175 * painting.width());
    const QPointF centre(0.8 * painting.width(), std::round(0.62 * painting.height()) + thickness / 2);
    QPainterPath outline;
    outline.addEllipse(centre, radius, radius);
    painting.stroke(outline, thickness, white(0.06));
}

} // namespace

void paintMonoWallpaper(Painting& painting, SeededRandom& random)
{
    const double thickness = std::max(std::round(painting.height() / 1200), 1.0);
    painting.fill(black());
    painting.glow(painting.at(0.5, 0.5), 0.7 * painting.height(), white(0.035));
    horizon(painting, thickness);
    circle(painting, thickness);
    painting.grain(0.012, random);
}

} // namespace ambrelle
