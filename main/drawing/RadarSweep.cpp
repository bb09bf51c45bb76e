// SPDX-License-Identifier: MIT

#include "drawing/RadarSweep.h"

#include "drawing/Arc.h"
#include "drawing/Gradients.h"

#include <cmath>

namespace ambrelle {

namespace {

constexpr double beamWidth = 1.4; // points

} // namespace

void RadarSweep::draw(Canvas& canvas, const Box& box) const
{
    const Box disc = box.square();
    const Box lit = disc.inset(0.75); // antialiased edges stay inside
    const double length = trail / 360;
    // Light on a screen fades quickly at first. The densest colour goes on a little, then ends, so that neither edge of
    // the trail takes the colour of the other.
    const double beyond = (1 + length) / 2;
    const QGradientStops fading{{0, faded(colour, 0)}, {length * 0.6, faded(colour, opacity * 0.3)},
        {length, faded(colour, opacity)}, {beyond, faded(colour, opacity)}, {beyond + 0.001, faded(colour, 0)},
        {1, faded(colour, 0)}};
    canvas.moving(disc, Motion::steady(fps), [&](Canvas& moving, double t) {
        const double from = std::fmod(t, period) / period;
        moving.fill(slice(lit, from, length), conical(disc.center(), from, fading));
        moving.line(disc.center(), pointOn(disc.center(), lit.width() / 2, from + length), QPen(colour, beamWidth));
    });
}

} // namespace ambrelle
