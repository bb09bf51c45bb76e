// SPDX-License-Identifier: MIT

#include "skins/minimal/FieldPicture.h"

#include <QPainter>

#include <cmath>

namespace ambrelle {

namespace {

/// The measures in pixels. All marks stand on the grid, and the grid on whole pixels, so that every dot looks the same.
struct Measures {
    double pitch;
    double thickness;
    QPointF centre; ///< of the ring
    double radius;
    double disc; ///< its radius
};

/// The grid is counted from the lower right corner: the ring keeps two steps away from both edges. A picture narrower
/// than 16:10 gets a smaller ring.
Measures measures(const Painting& painting)
{
    const double height = painting.height();
    const double side = std::min(height, painting.width() / 1.6);
    const double pitch = std::max(std::round(0.022 * height), 4.0);
    const double steps = std::max(std::round(0.31 * side / pitch), 1.0);
    const double inset = (steps + 2) * pitch - 0.5;
    return {.pitch = pitch,
        .thickness = std::max(std::round(0.0012 * height), 1.0),
        .centre = {painting.width() - inset, inset},
        .radius = steps * pitch,
        .disc = 0.03 * side};
}

void dots(Painting& painting, const Measures& m, const RGBA& colour)
{
    const double radius = std::max(0.0011 * painting.height(), 0.6);
    painting.stencil(painting.all(), colour, [&](QPainter& painter) {
        for (double x = std::fmod(m.centre.x(), m.pitch); x < painting.width(); x += m.pitch) {
            for (double y = std::fmod(m.centre.y(), m.pitch); y < painting.height(); y += m.pitch)
                painter.drawEllipse(QPointF(x, y), radius, radius);
        }
    });
}

/// The ring, and cross hairs that go a step beyond it.
void ring(Painting& painting, const Measures& m, const RGBA& colour)
{
    QPainterPath path;
    path.addEllipse(m.centre, m.radius, m.radius);
    const double reach = m.radius + m.pitch;
    path.moveTo(m.centre - QPointF(reach, 0));
    path.lineTo(m.centre + QPointF(reach, 0));
    path.moveTo(m.centre - QPointF(0, reach));
    path.lineTo(m.centre + QPointF(0, reach));
    painting.stroke(path, m.thickness, colour);
}

void disc(Painting& painting, const Measures& m, const RGBA& colour)
{
    QPainterPath path;
    path.addEllipse(m.centre, m.disc, m.disc);
    painting.fill(path, colour);
}

} // namespace

void paintFieldPicture(Painting& painting, const FieldColours& colours)
{
    const Measures m = measures(painting);
    painting.fill(colours.ground);
    dots(painting, m, colours.dots);
    ring(painting, m, colours.lines);
    disc(painting, m, colours.disc);
}

} // namespace ambrelle
