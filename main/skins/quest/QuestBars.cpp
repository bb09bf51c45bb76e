// SPDX-License-Identifier: MIT

#include "skins/quest/QuestBars.h"

#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "skins/quest/QuestSprites.h"
#include "skins/quest/QuestStyle.h"

#include <algorithm>
#include <cmath>

namespace ambrelle::quest {

using namespace Qt::StringLiterals;

namespace {

constexpr int heartRow = 5;
constexpr double barPitch = 6; // of rates
constexpr double barGap = 2;

/// A square that light falls on from the upper left.
void block(Canvas& canvas, const Box& box, const QColor& colour)
{
    canvas.fill(box, darker(colour));
    canvas.fill(box.adjusted(0, 0, -cornerStep, -cornerStep), lighter(colour));
    canvas.fill(box.adjusted(cornerStep, cornerStep, -cornerStep, -cornerStep), colour);
}

/// Rates as bars that stand on a line or hang from it.
struct RateBars {
    const QList<double>& rates;
    double left = 0;
    double foot = 0; ///< height of the line
    double scale = 1; ///< points of a byte a second
    bool upwards = true;
};

/// The newest bar in ink.
void rateBars(Canvas& canvas, const SkinStyle& style, const RateBars& bars, const QColor& colour)
{
    QPainterPath older;
    QPainterPath ends;
    Box bar;
    double x = std::round(bars.left);
    for (const double rate : bars.rates) {
        older.addRect(bar);
        const double reach = std::max(barGap, std::floor(rate * bars.scale / barGap) * barGap);
        bar = Box(x, bars.upwards ? bars.foot - reach : bars.foot, barPitch - barGap, reach);
        if (reach > barGap)
            ends.addRect(bars.upwards ? Box(bar).cutTop(barGap) : Box(bar).cutBottom(barGap));
        x += barPitch;
    }
    canvas.fill(older, colour);
    canvas.fill(ends, lighter(colour));
    canvas.fill(bar, style.ink);
}

} // namespace

void blockBar(
    Canvas& canvas, const Box& box, int count, const std::function<std::optional<QColor>(int index)>& colourOf)
{
    const Box trough = whole(box);
    const Box inside = trough.inset(cornerStep);
    const double gap = trough.height() > barHeight - 2 ? 2 : 1;
    const double pitch = std::floor((inside.width() + gap) / count);
    const double left = std::round(inside.center().x() - (count * pitch - gap) / 2);
    canvas.fill(steppedPath(trough, cornerStep, 1), night);
    for (int index = 0; index < count; ++index) {
        const std::optional<QColor> colour = colourOf(index);
        const Box place(left + index * pitch, inside.top(), pitch - gap, inside.height());
        canvas.fill(place, colour ? *colour : hollow);
        if (colour && place.height() > 2 * cornerStep)
            canvas.fill(Box(place).cutTop(cornerStep), lighter(*colour));
    }
}

void blockBar(Canvas& canvas, const Box& box, double fraction, const QColor& colour)
{
    constexpr double pitch = 6;
    const int count = std::max(1, static_cast<int>((box.width() - 2 * cornerStep + 1) / pitch));
    const int lit = fraction > 0 ? std::max(1, litOf(fraction, count)) : 0;
    blockBar(canvas, box, count, [&](int index) { return index < lit ? std::optional(colour) : std::nullopt; });
}

void blockColumns(Canvas& canvas, const SkinStyle& style, const Box& box, const History& history, const QColor& newest)
{
    constexpr int count = 20;
    constexpr double pitch = 6;
    constexpr double gap = 2;
    constexpr double high = 0.85;
    const double across = std::floor((box.width() + gap) / count);
    const int rows = std::max(1, static_cast<int>((box.height() + gap) / pitch));
    const double left = std::round(box.center().x() - (count * across - gap) / 2);
    const double foot = std::round(box.bottom());
    const auto add = [&](QPainterPath& path, int column, int row) {
        path.addRect(left + column * across, foot - row * pitch - pitch + gap, across - gap, pitch - gap);
    };
    const Box places(left, foot - rows * pitch, count * across, rows * pitch);
    canvas.still(
        u"places"_s, places,
        [&](Canvas& layer) {
            QPainterPath all;
            for (int column = 0; column < count; ++column) {
                for (int row = 0; row < rows; ++row)
                    add(all, column, row);
            }
            layer.fill(all, faded(night, 0.55));
        },
        rows, across);
    const QList<double> columns = binned(history, count);
    QPainterPath usual;
    QPainterPath above;
    QPainterPath last;
    for (int column = 0; column < count; ++column) {
        const int height = std::max(1, litOf(columns[column], rows));
        for (int row = 0; row < std::min(height, rows); ++row)
            add(column == count - 1 ? last : columns[column] > high ? above : usual, column, row);
    }
    canvas.fill(usual, style.accent3);
    canvas.fill(above, style.warn);
    canvas.fill(last, newest);
}

void mirroredBars(Canvas& canvas, const SkinStyle& style, const Box& box, const NetworkReading& reading)
{
    constexpr double gap = barGap;
    const int count = static_cast<int>((box.width() + gap) / barPitch);
    const QList<double> down = binned(reading.downHistory, count);
    const QList<double> up = binned(reading.upHistory, count);
    // One scale for both, and as much room for each as it needs.
    const double highest = std::max(std::ranges::max(down), reading.peak * 0.01);
    const double lowest = std::max(std::ranges::max(up), reading.peak * 0.01);
    const double share = std::clamp(highest / (highest + lowest), 0.3, 0.7);
    const double top = std::max({reading.peak, highest / share, lowest / (1 - share)});
    const double room = box.height() - 3 * gap; // beside the axis
    const double axis = std::round(box.top() + room * share + gap);
    rateBars(canvas, style, {.rates = down, .left = box.left(), .foot = axis - gap, .scale = room / top}, style.down);
    rateBars(canvas, style,
        {.rates = up, .left = box.left(), .foot = axis + 2 * gap, .scale = room / top, .upwards = false}, style.up);
    canvas.fill(Box(box.x(), axis, box.width(), gap), bevel);
}

QColor partColour(const SkinStyle& style, qsizetype index)
{
    const QColor colours[] = {style.accent, style.accent2, style.accent3};
    return colours[index % 3];
}

void blockKey(Canvas& canvas, const SkinStyle& style, const Box& box, const QList<Share>& parts)
{
    constexpr double pitch = 20;
    constexpr double side = 8;
    rows(box, parts.size(), pitch, [&](const Box& row, qsizetype index) {
        Box place = row;
        const Box swatch = whole(place.cutLeft(side).centred(side, side));
        canvas.fill(swatch.inset(-1), night);
        canvas.fill(swatch, partColour(style, index));
        place.cutLeft(Bands::gap);
        keyLine(canvas, place, parts, index, style.row(), style.caption());
    });
}

Box blockRing(Canvas& canvas, const Box& box, double fraction, const QColor& colour)
{
    constexpr int count = 16;
    constexpr double side = 12;
    const Box square = box.square();
    const Gauge gauge = Gauge::in(square, 0, 360);
    const int lit = fraction > 0 ? std::max(1, litOf(fraction, count)) : 0;
    for (int index = 0; index < count; ++index) {
        const QPointF middle = gauge.at(static_cast<double>(index) / count, gauge.radius - side / 2);
        const Box place(std::round(middle.x() - side / 2), std::round(middle.y() - side / 2), side, side);
        canvas.fill(place, night);
        if (index < lit) {
            block(canvas, place.inset(1), colour);
        } else {
            canvas.fill(place.inset(1), lost);
            canvas.fill(place.inset(cornerStep), night);
        }
    }
    return square.inset(side);
}

void hearts(Canvas& canvas, const Box& box, double level, bool charging)
{
    constexpr double pixel = 2;
    constexpr int count = 2 * heartRow;
    const int halves = level > 0 ? std::max(1, litOf(level, 2 * count)) : 0;
    const auto place = [&](int index) { return box.row(index / heartRow, 2, 2).column(index % heartRow, heartRow, 2); };
    const auto halvesOf = [&](int index) { return std::clamp(halves - 2 * index, 0, 2); };
    canvas.still(
        u"hearts"_s, box.inset(-1),
        [&](Canvas& layer) {
            for (int index = 0; index < count; ++index)
                heart(halvesOf(index)).draw(layer, place(index), pixel);
        },
        halves);
    const int next = halves / 2;
    if (!charging || next >= count)
        return;
    canvas.moving(place(next).inset(-1), Motion::steady(2), [=](Canvas& frame, double time) {
        if (std::fmod(std::floor(time * 2), 2) != 0)
            heart(2).draw(frame, place(next), pixel);
    });
}

} // namespace ambrelle::quest
