// SPDX-License-Identifier: MIT

#include "skins/overdrive/OverdrivePieces.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/overdrive/OverdriveStyle.h"

#include <algorithm>
#include <cmath>

namespace ambrelle::overdrive {

using namespace Qt::StringLiterals;

namespace {

constexpr double plateCut = 16; // points
constexpr double stripHeight = 5;
constexpr double stripPitch = 12;
constexpr double serialSize = 9; // pixels
constexpr double serialRise = 5; // of its baseline above the plate's lower edge

constexpr double glitchPeriod = 7; // seconds
constexpr double glitchLength = 0.30;
constexpr double glitchRate = 24; // frames a second
constexpr double mostAside = 4; // points by which a slice is moved
constexpr double ghostAside = 2; // from its slice
constexpr double ghostAlpha = 0.6;

/// A part of a figure that stands aside, both in points.
struct Slice {
    Box strip;
    double aside = 0;
};

/// One slice in each third of the capitals' height.
QList<Slice> slicesOf(const Box& area, double cap, SeededRandom& random)
{
    constexpr int count = 3;
    QList<Slice> slices;
    for (int index = 0; index < count; ++index) {
        const Box third = area.centred(area.width(), cap).row(index, count);
        const double height = third.height() * random.in(0.4, 0.7);
        const double top = third.top() + (third.height() - height) * random.in(0, 1);
        const double aside = random.in(mostAside / 2, mostAside);
        slices.append(
            {Box(area.x(), std::round(top), area.width(), std::round(height)), random.next(2) == 0 ? aside : -aside});
    }
    return slices;
}

/// The figure and its unit in one translucent colour.
FigureStyle ghostOf(const FigureStyle& figure, const QColor& colour)
{
    FigureStyle ghost = figure.filled(faded(colour, ghostAlpha));
    ghost.unitColour.reset();
    return ghost;
}

} // namespace

QPainterPath slabPath(const Box& box, double cut)
{
    QPainterPath path(box.topLeft());
    path.lineTo(box.topRight());
    path.lineTo(box.bottomRight() - QPointF(0, cut));
    path.lineTo(box.bottomRight() - QPointF(cut, 0));
    path.lineTo(box.bottomLeft());
    path.closeSubpath();
    return path;
}

void slab(Canvas& canvas, const Box& box, double cut, const QColor& colour, bool lit, double line)
{
    // A cut that is parallel to the outer one lies nearer to the corner.
    const double inner = cut - line * (1 - std::sqrt(0.5));
    if (lit)
        canvas.fill(slabPath(box, cut), colour);
    else
        canvas.stroke(slabPath(box.inset(line / 2), inner), flatPen(colour, line));
}

void hazardStrip(Canvas& canvas, const Box& box, const QColor& colour)
{
    canvas.fill(box, Qt::black);
    QPainterPath bars;
    for (double x = box.left() - stripPitch; x < box.right(); x += stripPitch) {
        const Box bar(x, box.top(), stripPitch / 2, box.height());
        const QPointF lean(box.height(), 0);
        bars.addPolygon(QPolygonF{
            bar.bottomLeft(), bar.topLeft() + lean, bar.topRight() + lean, bar.bottomRight(), bar.bottomLeft()});
    }
    canvas.fill(bars.intersected(roundedPath(box, 0)), colour);
}

void hazardPlate(Canvas& canvas, const SkinStyle& style, const Box& bounds, const QString& serial)
{
    slab(canvas, bounds, plateCut, plateColour, true);
    hazardStrip(canvas, Box(bounds).cutTop(stripHeight), style.accent);
    slab(canvas, bounds, plateCut, style.accent, false);
    const TextStyle number = style.caption().sized(serialSize).coloured(blended(style.faint, style.soft, 0.45));
    stamped(canvas, bounds.bottomLeft() + QPointF(style.inset, -serialRise), number, serial);
}

void stamped(Canvas& canvas, QPointF start, const TextStyle& text, const QString& letters)
{
    canvas.fill(outlineOf(*shape(text.face, text.size, letters)).translated(start), text.colour);
}

void brackets(Canvas& canvas, const Box& box, const QColor& colour)
{
    constexpr double leg = 8;
    const Box line = box.inset(0.5);
    QPainterPath corners;
    for (const double down : {1.0, -1.0}) {
        for (const double in : {1.0, -1.0}) {
            const QPointF corner(in > 0 ? line.left() : line.right(), down > 0 ? line.top() : line.bottom());
            corners.addPath(straightLine({corner + QPointF(0, down * leg), corner, corner + QPointF(in * leg, 0)}));
        }
    }
    canvas.stroke(corners, flatPen(colour, 1));
}

int BlockRow::lit(double fraction) const
{
    return bounded(fraction) > 0 ? std::max(1, litOf(fraction, count)) : 0;
}

void BlockRow::draw(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const int reached = lit(fraction);
    blocks(canvas, box, count, gap, [&](int index) { return index < reached ? colour : unlit; }, {.slant = slant});
}

void BarGraph::draw(Canvas& canvas, const Box& box, const History& history) const
{
    constexpr double least = 1; // so that nothing is a base line
    // Bars on whole points are sharp, and cost a tenth of others.
    const int count = static_cast<int>((box.width() + gap) / (width + gap));
    const QList<double> values = binned(history, count);
    Box room = box.centred(count * (width + gap) - gap, box.height());
    for (int index = 0; index < count; ++index) {
        Box column = room.cutLeft(width);
        room.cutLeft(gap);
        const double fraction = bounded(values[index] / top);
        const double height = std::max(least, std::round(column.height() * fraction));
        const QColor& solid = fraction > limit ? red : colour;
        canvas.fill(hanging ? column.cutTop(height) : column.cutBottom(height),
            index + 1 < count ? faded(solid, older) : solid);
    }
}

void Glitch::draw(Canvas& canvas, const Box& box, const Units::Pair& value, const FigureStyle& figure) const
{
    const Motion motion = Motion::bursts(glitchPeriod, seed, glitchLength, glitchRate);
    const Box area = box.inset(-(mostAside + ghostAside), 0);
    canvas.moving(area, motion, [&](Canvas& moving, double time) {
        const std::optional<double> phase = motion.phase(time);
        if (!phase)
            return;
        const GroundScope scope(moving, ground);
        const auto copy = [&](double aside, const FigureStyle& style) {
            moving.mapped(
                QTransform::fromTranslate(aside, 0), [&] { moving.figure(box, value.value, value.unit, style); });
        };
        const auto frame = static_cast<std::uint64_t>(*phase * glitchLength * glitchRate);
        SeededRandom random{static_cast<std::uint64_t>(seed) << 8U | frame};
        for (const Slice& slice : slicesOf(area, figure.cap, random)) {
            moving.within(roundedPath(slice.strip, 0), [&] {
                moving.fill(slice.strip, ground);
                copy(slice.aside - ghostAside, ghostOf(figure, cyan));
                copy(slice.aside + ghostAside, ghostOf(figure, red));
                copy(slice.aside, figure);
            });
        }
    });
}

} // namespace ambrelle::overdrive
