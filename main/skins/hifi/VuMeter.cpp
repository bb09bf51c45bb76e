// SPDX-License-Identifier: MIT

#include "skins/hifi/VuMeter.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"

#include <array>
#include <cmath>
#include <numbers>

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
constexpr double idle = 0.002; // below it the needle leans on its pin
constexpr double needleContrast = 4.5;

} // namespace

double VuMeter::radius() const
{
    return window.height() + depth - labelRoom;
}

QPointF VuMeter::pivot() const
{
    return {window.center().x(), window.bottom() + depth};
}

QPointF VuMeter::at(double fraction, double distance, double tremble) const
{
    const double degrees = (fraction * 2 - 1) * sweep + tremble;
    const double angle = degrees * std::numbers::pi / 180;
    return pivot() + QPointF(std::sin(angle), -std::cos(angle)) * distance;
}

void VuMeter::arc(Canvas& canvas, double from, double to, double distance, const QPen& pen) const
{
    const Box circle(pivot().x() - distance, pivot().y() - distance, distance * 2, distance * 2);
    const double start = 90 + sweep - from * sweep * 2;
    QPainterPath path;
    path.arcMoveTo(circle, start);
    path.arcTo(circle, start, -(to - from) * sweep * 2);
    canvas.stroke(path, pen);
}

void VuMeter::scale(Canvas& canvas) const
{
    constexpr int percentSteps = 20;
    const double r = radius();
    const GroundScope ground(canvas, paper);
    arc(canvas, 0, 1, r, QPen(print, 0.9));
    arc(canvas, redZone, 1, r + 1.4, QPen(pointerRed, 2.8, Qt::SolidLine, Qt::FlatCap));
    for (int step = 0; step <= percentSteps; ++step) {
        const double place = static_cast<double>(step) / percentSteps;
        canvas.line(at(place, r - (step % 5 ? 2 : 3.5)), at(place, r), QPen(faded(print, 0.7), 0.6));
    }
    const TextStyle label = TextStyle{.face = style.title.tracked(0), .size = 9}.aligned(Align::centre).asAxis();
    const Box corner = Box(window).inset(8, 5).cutBottom(10);
    canvas.text(corner, u"VU"_s, label.coloured(print).aligned(Align::right));
    for (const Mark& mark : marks) {
        const bool red = mark.place >= redZone;
        canvas.line(at(mark.place, r), at(mark.place, r + 4), QPen(red ? pointerRed : print, 1));
        const QPointF centre = at(mark.place, r + labelDistance);
        const Box box = Box(centre.x() - 8, centre.y() - 5, 16, 10);
        canvas.text(box, QString::fromUtf16(mark.label), label.coloured(red ? pointerRed.darker(130) : print));
    }
}

void VuMeter::drawNeedle(Canvas& canvas, double fraction, double tremble) const
{
    // It comes up from below the window's lower edge.
    const double hidden = depth / std::cos(((fraction * 2 - 1) * sweep + tremble) * std::numbers::pi / 180);
    const QPointF foot = at(fraction, hidden + 0.5, tremble);
    const QPointF tip = at(fraction, radius() + needleBeyond, tremble);
    const QPointF drop(1.6, 2);
    canvas.line(foot + QPointF(1.6, 0), tip + drop, QPen(faded(print, 0.25), 1.8, Qt::SolidLine, Qt::FlatCap));
    const QColor colour = legible(style.accent, print, paper, needleContrast);
    canvas.line(foot, tip, QPen(colour, 1.2, Qt::SolidLine, Qt::FlatCap));
}

void VuMeter::needle(Canvas& canvas, double fraction, int seed) const
{
    const double value = bounded(fraction);
    if (value < idle) {
        drawNeedle(canvas, value, 0);
        return;
    }
    QPolygonF way;
    for (const double side : {-2 * trembling, 2 * trembling})
        way << at(value, depth, side) << at(value, radius() + needleBeyond, side);
    const Box area = Box(way.boundingRect()).inset(-3).intersected(window);
    canvas.moving(area, Motion::steady(15), [&](Canvas& moving, double t) {
        // Counted from its place at time 0, where the needle stands on its value.
        const double tremble = (Wave::wobble(t, seed) - Wave::wobble(0, seed)) * trembling;
        drawNeedle(moving, value, std::clamp(tremble, -2 * trembling, 2 * trembling));
    });
}

} // namespace ambrelle::hifi
