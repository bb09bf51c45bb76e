// SPDX-License-Identifier: MIT

#include "faces/StyledDial.h"

#include "drawing/Fraction.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr double top = 90; // degrees, Qt's way: counterclockwise from three o'clock
constexpr int segments = 24;
constexpr double segmentGap = 3; // degrees
constexpr int ticks = 60;

QPainterPath arc(const Box& circle, double fromTurn, double turns)
{
    QPainterPath path;
    path.arcMoveTo(circle, top - fromTurn * 360);
    path.arcTo(circle, top - fromTurn * 360, -turns * 360);
    return path;
}

void drawRing(Canvas& canvas, const Box& circle, const StyledDial& dial, double fraction)
{
    canvas.stroke(arc(circle, 0, 1), QPen(dial.track, dial.width));
    if (fraction > 0)
        canvas.stroke(arc(circle, 0, fraction), QPen(dial.value, dial.width, Qt::SolidLine, Qt::RoundCap));
}

void drawSegments(Canvas& canvas, const Box& circle, const StyledDial& dial, double fraction)
{
    const long lit = std::lround(fraction * segments);
    const double gap = segmentGap / 360;
    for (int index = 0; index < segments; ++index) {
        const double from = static_cast<double>(index) / segments + gap / 2;
        const QColor& colour = index < lit ? dial.value : dial.track;
        canvas.stroke(arc(circle, from, 1.0 / segments - gap), QPen(colour, dial.width, Qt::SolidLine, Qt::FlatCap));
    }
}

void drawTicks(Canvas& canvas, const Box& circle, const StyledDial& dial, double fraction)
{
    const long lit = std::lround(fraction * ticks);
    const double outer = circle.width() / 2 + dial.width / 2;
    for (int index = 0; index < ticks; ++index) {
        const double angle = 2 * std::numbers::pi * index / ticks;
        const bool on = index < lit;
        const double length = (index % 5 == 0 ? dial.width : dial.width * 0.7) - (on ? 0 : 2);
        const QPointF way(std::sin(angle), -std::cos(angle));
        canvas.line(circle.center() + way * (outer - length), circle.center() + way * outer,
            QPen(on ? dial.value : dial.track, 1.4));
    }
}

} // namespace

Box StyledDial::draw(Canvas& canvas, const Box& box, double fraction) const
{
    fraction = bounded(fraction);
    const Box circle = box.square().inset(width / 2);
    switch (flavor) {
    case DialFlavor::ring: drawRing(canvas, circle, *this, fraction); break;
    case DialFlavor::segments: drawSegments(canvas, circle, *this, fraction); break;
    case DialFlavor::ticks: drawTicks(canvas, circle, *this, fraction); break;
    }
    return circle.inset(width / 2 + 2);
}

} // namespace ambrelle
