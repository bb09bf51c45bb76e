// SPDX-License-Identifier: MIT

#include "faces/StyledDial.h"

#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Gradients.h"

namespace ambrelle {

namespace {

constexpr int usualSegments = 24;
constexpr int usualTicks = 60;
constexpr double tickLine = 1.4; // points
constexpr double shortTick = 0.7; // in parts of a long one
constexpr double litTick = 2; // points by which a lit tick is longer

Gauge gaugeOf(const DialMeasures& measures, const Box& square)
{
    return Gauge::in(square, measures.start, measures.sweep);
}

} // namespace

void StyledDial::drawRing(Canvas& canvas, const Box& square, double fraction) const
{
    const Gauge gauge = gaugeOf(measures, square);
    const double middle = gauge.radius - measures.width / 2;
    const Qt::PenCapStyle ends = measures.roundEnds ? Qt::RoundCap : Qt::FlatCap;
    const auto pen = [&](const QBrush& brush) { return QPen(brush, measures.width, Qt::SolidLine, ends); };
    canvas.stroke(gauge.arc(0, 1, middle), pen(track));
    if (fraction <= 0)
        return;
    const double from = measures.start / 360;
    const QBrush light = along.isEmpty() ? value : alongArc(gauge.centre, from, fraction * measures.sweep / 360, along);
    canvas.stroke(gauge.arc(0, fraction, middle), pen(light));
}

void StyledDial::drawSegments(Canvas& canvas, const Box& square, double fraction) const
{
    const int count = measures.count > 0 ? measures.count : usualSegments;
    const int lit = litOf(fraction, count);
    gaugeOf(measures, square)
        .blocks(
            canvas, count, measures.gap, measures.width, [&](int index) { return index < lit ? value : track; },
            measures.slant);
}

void StyledDial::drawTicks(Canvas& canvas, const Box& square, double fraction) const
{
    const Gauge gauge = gaugeOf(measures, square);
    const int steps = measures.count > 0 ? measures.count : usualTicks;
    // A scale with two ends has a tick for nothing too, which is lit as soon as there is anything.
    const int lit = litOf(fraction, steps) + (!gauge.isFull() && fraction > 0 ? 1 : 0);
    gauge.ticks(canvas, steps, [&](int index) {
        const bool on = index < lit;
        const double length = index % measures.every == 0 ? measures.width : measures.width * shortTick;
        return Tick{length - (on ? 0 : litTick), QPen(on ? value : track, tickLine)};
    });
}

Box StyledDial::draw(Canvas& canvas, const Box& box, double fraction) const
{
    const Box square = box.square();
    const double reached = bounded(fraction);
    switch (flavor) {
    case DialFlavor::ring: drawRing(canvas, square, reached); break;
    case DialFlavor::segments: drawSegments(canvas, square, reached); break;
    case DialFlavor::ticks: drawTicks(canvas, square, reached); break;
    }
    return square.inset(measures.width + 2);
}

} // namespace ambrelle
