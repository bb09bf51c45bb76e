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

    // The terminator is half an ellipse whose width goes with the cosine of the phase angle (Meeus, Astronomical
    // Algorithms, chapter 48, seen face on).
    const double width = disc.width() * std::abs(std::cos(2 * std::numbers::pi * fraction));
    QPainterPath terminator;
    terminator.addEllipse(disc.centred(width, disc.height()));
    const bool waxing = fraction < 0.5;
    QPainterPath half;
    half.addRect(waxing ? QRectF(disc.center().x(), disc.top(), disc.width() / 2, disc.height())
                        : QRectF(disc.left(), disc.top(), disc.width() / 2, disc.height()));
    half = half.intersected(whole);
    const bool gibbous = fraction > 0.25 && fraction < 0.75;
    canvas.fill(gibbous ? half.united(terminator) : half.subtracted(terminator), lit);
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
