// SPDX-License-Identifier: MIT

#include "skins/neon/NeonPieces.h"

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "skins/neon/NeonStyle.h"

#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle::neon {

using namespace Qt::StringLiterals;

namespace {

constexpr int lightStrokes = 5;
constexpr double lightAlpha = 0.07;
constexpr double lightReach = 4.5; // points beyond the glass
constexpr double coreShare = 0.36; // of a tube's width
constexpr double hairTube = 1.5; // up to this width a tube is all core

constexpr double signInset = 3; // from the plate's edge to its tube
constexpr double signWidth = 1.4;
constexpr double socketSize = 4;
constexpr double socketGap = 6;
constexpr double spill = 4; // of the sign's light beyond the plate
constexpr double spillInside = 11;

constexpr double lean = 12; // degrees

InkGlow lightOf(const QColor& colour, double width, double brightness)
{
    return {.colour = colour,
        .strokes = lightStrokes,
        .alpha = lightAlpha * brightness,
        .spread = (width + 2 * lightReach) / lightStrokes};
}

/// From the right socket at the lower left corner counterclockwise to the left one.
QPainterPath signPath(const Box& box, double radius)
{
    const double round = 2 * radius;
    const double left = box.left() + radius + socketSize;
    QPainterPath path({left + socketGap + socketSize, box.bottom()});
    path.arcTo({box.right() - round, box.bottom() - round, round, round}, 270, 90);
    path.arcTo({box.right() - round, box.top(), round, round}, 0, 90);
    path.arcTo({box.left(), box.top(), round, round}, 90, 90);
    path.arcTo({box.left(), box.bottom() - round, round, round}, 180, 90);
    path.lineTo(left, box.bottom());
    return path;
}

/// Gas that is `lit` when it burns fully, in a tube of that colour.
QColor burning(const QColor& tube, const QColor& lit, double brightness)
{
    return blended(blended(plateColour, tube, 0.4), lit, brightness);
}

void burningSign(Canvas& canvas, const Box& face, double corner, const QColor& colour, double brightness)
{
    const Box box = face.inset(signInset);
    const QPainterPath path = signPath(box, corner - signInset);
    canvas.lightAround(path, lightOf(colour, signWidth, brightness));
    // The glass itself.
    canvas.lightAround(path, {.colour = colour, .strokes = 4, .alpha = 0.14 * brightness, .spread = 1.5});
    canvas.stroke(path, roundPen(burning(colour, pale(colour), brightness), signWidth));
    const QPointF first = path.elementAt(0);
    const QPointF last = path.currentPosition();
    for (const QPointF end : {first - QPointF(socketSize / 2, 0), last + QPointF(socketSize / 2, 0)}) {
        const Box cap = Box(end.x(), end.y(), 0, 0).centred(socketSize, socketSize);
        canvas.fill(cap, socket, 1);
        canvas.frame(cap, QPen(blended(socket, pale(colour), 0.4), 0.6), 1);
    }
}

} // namespace

void tube(Canvas& canvas, const QPainterPath& path, const QColor& colour, double width, double brightness)
{
    canvas.lightAround(path, lightOf(colour, width, brightness));
    if (width <= hairTube) {
        canvas.stroke(path, roundPen(blended(colour, pale(colour), 0.5), width));
        return;
    }
    canvas.stroke(path, roundPen(burning(colour, colour, brightness), width));
    canvas.stroke(path, roundPen(burning(colour, pale(colour), brightness), width * coreShare));
}

void levelTube(Canvas& canvas, const Box& box, double fraction, const QColor& unlit, const QColor& colour)
{
    constexpr double width = 4;
    const QPointF from(box.left() + width / 2, box.center().y());
    const QPointF to(box.right() - width / 2, box.center().y());
    canvas.line(from, to, roundPen(unlit, width));
    if (bounded(fraction) <= 0)
        return;
    QPainterPath lit(from);
    lit.lineTo(from + (to - from) * std::max(0.005, bounded(fraction)));
    tube(canvas, lit, colour, width);
}

void partTubes(Canvas& canvas, const Box& box, const QList<TubePart>& parts, const QColor& unlit)
{
    constexpr double width = 5;
    constexpr double gap = 2;
    constexpr double least = 0.1; // a round dot
    const double y = box.center().y();
    const double right = box.right() - width / 2;
    double x = box.left() + width / 2;
    const double whole = right - x;
    canvas.line({x, y}, {right, y}, roundPen(unlit, width));
    for (qsizetype index = 0; index < parts.size(); ++index) {
        const double length = whole * bounded(parts[index].fraction);
        if (length <= 0)
            continue;
        const bool followed = index + 1 < parts.size() && parts[index + 1].fraction > 0;
        const double end = std::min(right, x + length - (followed ? width + gap : 0));
        QPainterPath lit({x, y});
        lit.lineTo(std::max(x + least, end), y);
        tube(canvas, lit, parts[index].colour, width);
        x = std::min(right, x + length);
    }
}

void spark(Canvas& canvas, QPointF centre, double radius, const QColor& colour)
{
    canvas.disc(centre, radius * 2.8, halo(centre, radius * 2.8, colour, 0.5));
    canvas.disc(centre, radius, colour);
    canvas.disc(centre, radius * 0.5, pale(colour));
}

void signTube(Canvas& canvas, const Box& face, double corner, const QColor& colour, int seed)
{
    Box rest = face.inset(-spill);
    const double thickness = spill + spillInside;
    const std::array strips{
        rest.cutTop(thickness), rest.cutBottom(thickness), rest.cutLeft(thickness), rest.cutRight(thickness)};
    const Motion motion = Motion::bursts(flickerPeriod, seed, flickerLength, flickerRate);
    for (std::size_t index = 0; index < strips.size(); ++index) {
        canvas.moving(strips[index], motion, [&](Canvas& moving, double time) {
            const double brightness = Wave::flicker(time, seed, flickerPeriod);
            const auto piece = [&](Canvas& layer) {
                // Cut, or what the strips share of a pixel would add up where they meet.
                layer.within(
                    roundedPath(strips[index], 0), [&] { burningSign(layer, face, corner, colour, brightness); });
            };
            moving.still(u"sign"_s, strips[index], piece, static_cast<int>(index), brightness);
        });
    }
}

void floorGrid(Canvas& canvas, const Box& box, const QColor& colour)
{
    constexpr int towards = 3; // lines to the vanishing point on either side of the middle one
    constexpr double pitch = 0.3; // of these lines at the lower edge, in parts of the width
    constexpr double far = 0.34; // of it at the horizon
    constexpr int across = 4;
    const QPen pen(colour, 1);
    const double half = box.width() / 2;
    for (int index = -towards; index <= towards; ++index) {
        const double near = index * pitch * box.width();
        const double distant = near * far;
        const double way = std::min(1.0, (half - std::abs(distant)) / std::max(1.0, std::abs(near - distant)));
        const double middle = box.center().x();
        canvas.line({middle + distant, box.top()},
            {middle + distant + (near - distant) * way, box.top() + box.height() * way}, pen);
    }
    for (int index = 0; index < across; ++index) {
        const double closeness = static_cast<double>(index) / (across - 1);
        const double y = box.top() + box.height() * closeness * closeness;
        canvas.line({box.left(), y}, {box.right(), y}, pen);
    }
}

void polished(Canvas& canvas, const Box& box, const Units::Pair& value, const FigureStyle& figure)
{
    constexpr double reach = 8; // of the light around it
    canvas.still(
        u"chrome"_s, box.inset(-reach), [&](Canvas& layer) { layer.figure(box, value.value, value.unit, figure); },
        value.value, value.unit, figure.cap, figure.tabular);
}

void sunset(Canvas& canvas, const Box& box, const QColor& upper, const QColor& lower)
{
    constexpr int bars = 5;
    constexpr double thickness = 1.5;
    for (int index = 0; index < bars; ++index) {
        const double depth = static_cast<double>(index) / (bars - 1);
        const double y = box.top() + (box.height() - thickness) * (0.6 * depth + 0.4 * depth * depth);
        const QColor colour = faded(blended(upper, lower, depth), 0.95 - 0.75 * depth);
        const Box bar(box.left(), y, box.width(), thickness);
        canvas.fill(bar, across(bar, {{0, colour}, {0.5, colour}, {1, faded(colour, 0)}}), thickness / 2);
    }
}

QPainterPath leaning(const Box& box, double radius, QPointF about)
{
    QTransform shear = QTransform::fromTranslate(about.x(), about.y());
    shear.shear(-std::tan(lean * std::numbers::pi / 180), 0);
    shear.translate(-about.x(), -about.y());
    return shear.map(roundedPath(box, radius));
}

} // namespace ambrelle::neon
