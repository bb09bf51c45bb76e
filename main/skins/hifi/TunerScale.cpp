// SPDX-License-Identifier: MIT

#include "skins/hifi/TunerScale.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Pens.h"
#include "skins/hifi/Cabinet.h"

namespace ambrelle::hifi {

using namespace Qt::StringLiterals;

namespace {

constexpr double pointerWidth = 1.8;

} // namespace

void TunerScale::draw(Canvas& canvas, const Box& box) const
{
    canvas.fill(Box(box.x(), box.bottom() - 1, box.width(), 1), faded(colour, 0.75));
    for (int step = 0; step <= steps; ++step) {
        const bool major = step % every == 0;
        const double x = box.left() + 0.4 + (box.width() - 0.8) * step / steps;
        const double height = box.height() * (major ? 0.75 : 0.42);
        canvas.line({x, box.bottom() - 0.5}, {x, box.bottom() - height}, QPen(faded(colour, major ? 0.8 : 0.45), 0.8));
    }
}

void pointer(Canvas& canvas, const Box& box, double fraction)
{
    const double x = box.left() + pointerWidth / 2 + (box.width() - pointerWidth) * bounded(fraction);
    const Box line(x - pointerWidth / 2, box.y(), pointerWidth, box.height());
    canvas.fill(line.inset(-2, -0.5), faded(pointerRed, 0.25), 2);
    canvas.fill(line, pointerRed.lighter(115), pointerWidth / 2);
}

void dayDial(Canvas& canvas, const SkinStyle& style, const Box& box, double fraction)
{
    constexpr int hours = 24;
    const Box scale = box.inset(8, 9);
    canvas.still(u"day"_s, box.inset(-1), [&](Canvas& layer) { window(layer, box, style.accent, 5); });
    const double x = scale.left() + 20;
    canvas.line({x, scale.top()}, {x, scale.bottom()}, QPen(faded(champagne, 0.7), 0.8));
    const GroundScope ground(canvas, tubeDark);
    for (int hour = 0; hour <= hours; ++hour) {
        const double y = scale.bottom() - scale.height() * hour / hours;
        const bool major = hour % 6 == 0;
        canvas.line({x, y}, {x + (major ? 12 : hour % 3 ? 5 : 8), y}, QPen(faded(champagne, major ? 0.9 : 0.5), 0.8));
        if (major) {
            const TextStyle label = style.caption().sized(9).aligned(Align::right).asAxis();
            canvas.text({scale.left() - 2, y - 6, 18, 12}, QString::number(hour), label.coloured(champagne));
        }
    }
    const double y = scale.bottom() - scale.height() * bounded(fraction);
    const Box line(x - 2, y - pointerWidth / 2, scale.right() - x + 4, pointerWidth);
    canvas.fill(line.inset(-0.5, -2), faded(pointerRed, 0.25), 2);
    canvas.fill(line, pointerRed.lighter(115), pointerWidth / 2);
}

Box tickDial(Canvas& canvas, const SkinStyle& style, const Box& box, double fraction, const QColor& lit)
{
    constexpr int steps = 40;
    constexpr double length = 9;
    const Box circle = box.square();
    const Gauge gauge = Gauge::in(circle.inset(1));
    const int litTicks = bounded(fraction) > 0 ? litOf(fraction, steps) + 1 : 0;
    const QString name = u"ticks %1 %2"_s.arg(litTicks).arg(lit.name());
    canvas.still(name, circle.inset(-4), [&](Canvas& layer) {
        const auto ticks = [&](bool on, const QPen& pen) {
            gauge.ticks(layer, steps, [&](int index) {
                const double reach = index % 5 == 0 ? length : length * 0.65;
                return Tick{(index < litTicks) == on ? reach : 0, pen};
            });
        };
        ticks(false, QPen(style.faint.lighter(125), 1.4, Qt::SolidLine, Qt::FlatCap));
        ticks(true, roundPen(faded(lit, 0.12), 6));
        ticks(true, roundPen(faded(lit, 0.22), 3.4));
        ticks(true, QPen(lit, 1.6, Qt::SolidLine, Qt::FlatCap));
    });
    gauge.needle(canvas, fraction,
        {.length = gauge.radius - 1, .tail = length + 8 - gauge.radius, .width = 2, .round = true, .fill = pale});
    return circle.inset(length + 8);
}

} // namespace ambrelle::hifi
