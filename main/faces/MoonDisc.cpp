// SPDX-License-Identifier: MIT

#include "faces/MoonDisc.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

void MoonDisc::draw(Canvas& canvas, const Box& box, double fraction) const
{
    const Box disc = box.square().inset(edge.widthF() / 2);
    QPainterPath whole;
    whole.addEllipse(disc);
    canvas.fill(whole, dark);

    // From the upper horn along the lit edge to the lower one, and back along the terminator: half an ellipse whose
    // width goes with the cosine of the phase angle (Meeus, Astronomical Algorithms, chapter 48, seen face on).
    const double width = disc.width() * std::cos(2 * std::numbers::pi * fraction);
    const double side = fraction < 0.5 ? 1 : -1; // the lit edge's: waxing at the right
    QPainterPath bright;
    bright.arcMoveTo(disc, 90);
    bright.arcTo(disc, 90, -180 * side);
    bright.arcTo(disc.centred(std::abs(width), disc.height()), 270, width > 0 ? 180 * side : -180 * side);
    canvas.fill(bright, lit);
    canvas.stroke(whole, edge);
}

void SunArc::draw(Canvas& canvas, const Box& box, std::optional<double> position) const
{
    constexpr double radius = 4.5;
    const Box sky = box.inset(radius, 0).adjusted(0, radius, 0, -1);
    QPainterPath way;
    way.moveTo(sky.bottomLeft());
    way.cubicTo({sky.left() + sky.width() * 0.25, sky.top() - sky.height() * 0.33},
        {sky.right() - sky.width() * 0.25, sky.top() - sky.height() * 0.33}, sky.bottomRight());
    canvas.stroke(way, arc);
    canvas.line(box.bottomLeft(), box.bottomRight(), horizon);
    if (position)
        canvas.disc(way.pointAtPercent(std::clamp(*position, 0.0, 1.0)), radius, sun);
}

} // namespace ambrelle
