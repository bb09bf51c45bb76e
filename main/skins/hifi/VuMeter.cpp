// SPDX-License-Identifier: MIT

#include "skins/hifi/VuMeter.h"

#include "drawing/Colours.h"

#include <array>

namespace ambrelle::hifi {

using namespace Qt::StringLiterals;

namespace {

struct Mark {
    double place; ///< 0 to 1 along the arc
    const char16_t* label;
};

constexpr double redZone = 0.85;
constexpr std::array<Mark, 9> marks{{{0, u"20"}, {0.2, u"10"}, {0.34, u"7"}, {0.46, u"5"}, {0.59, u"3"}, {0.72, u"1"},
    {redZone, u"0"}, {0.925, u""}, {1, u"3"}}};
constexpr double labelRoom = 16; // from the arc to the window's upper edge
constexpr double labelDistance = 9; // from the arc to the middle of the labels
constexpr double needleBeyond = 3.5; // of the arc
constexpr double trembling = 1.5; // degrees
constexpr double needleContrast = 4.5;

} // namespace

Gauge VuMeter::gauge() const
{
    return {.centre = {window.center().x(), window.bottom() + depth},
        .radius = window.height() + depth - labelRoom,
        .start = -sweep,
        .sweep = 2 * sweep};
}

Needle VuMeter::pin() const
{
    return {.length = gauge().radius + needleBeyond,
        .tail = -depth,
        .width = 1.2,
        .fill = legible(style.accent, print, paper, needleContrast),
        .shadow = faded(print, 0.25),
        .window = window};
}

void VuMeter::scale(Canvas& canvas) const
{
    const Gauge arc = gauge();
    const double r = arc.radius;
    const GroundScope ground(canvas, paper);
    canvas.stroke(arc.arc(0, 1, r), QPen(print, 0.9));
    canvas.stroke(arc.arc(redZone, 1, r + 1.4), QPen(pointerRed, 2.8, Qt::SolidLine, Qt::FlatCap));
    const QPen percent(faded(print, 0.7), 0.6);
    arc.ticks(canvas, 20, 5, {3.5, percent}, {2, percent});
    const TextStyle label = TextStyle{.face = style.title.tracked(0), .size = 9}.asAxis();
    const Box corner = Box(window).inset(8, 5).cutBottom(10);
    canvas.text(corner, u"VU"_s, label.coloured(print).aligned(Align::right));
    for (const Mark& mark : marks) {
        const bool red = mark.place >= redZone;
        canvas.line(arc.at(mark.place, r), arc.at(mark.place, r + 4), QPen(red ? pointerRed : print, 1));
        arc.numeral(canvas, mark.place, QString::fromUtf16(mark.label), r + labelDistance,
            label.coloured(red ? pointerRed.darker(130) : print));
    }
}

void VuMeter::needle(Canvas& canvas, double fraction, int seed) const
{
    gauge().needle(canvas, fraction, pin(), {.degrees = trembling, .seed = static_cast<double>(seed), .fps = 15});
}

} // namespace ambrelle::hifi
