// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Charts.h"
#include "faces/FaceRenderer.h"

#include <functional>

namespace ambrelle {

/// Pieces that the faces of several skins are laid out from. Each takes its place from a box and leaves the rest to the
/// skin; none of them knows a skin.

/// Bands of a face, in points.
namespace Bands {
inline constexpr double hero = 44; ///< a figure of cap 40
inline constexpr double footer = 14;
inline constexpr double gap = 6;
} // namespace Bands

/// The hero figure at the top and a footer at the bottom of `content`; returns the room between them, with gaps.
Box heroAndFooter(Canvas& canvas, const FaceRenderer& skin, Box content, const QString& value, const QString& unit,
    const QString& footer, const FigureStyle& figure);

/// Calls `draw` for as many whole rows of `pitch` points as fit, at most `count`; the rows stand at the top of the box.
void rows(
    const Box& box, qsizetype count, double pitch, const std::function<void(const Box& row, qsizetype index)>& draw);

struct MonthGridStyle {
    TextStyle weekday;
    TextStyle day;
    QBrush todayFill;
    QColor todayInk;
    double todayCorner = 99; ///< radius of the mark of today; large: a disc
};

/// Seven columns of a month under the names of the weekdays, today on a filled mark.
void monthGrid(Canvas& canvas, const Box& box, const CalendarReading& reading, const MonthGridStyle& style);

/// A horizontal bar of the parts of a whole, one brush each, and the empty rest.
void partsBar(Canvas& canvas, const Box& box, const QList<Share>& parts, const QList<QBrush>& fills, const QBrush& rest,
    double radius);
/// One row per part: a swatch, the name, the value.
void partsKey(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const QList<Share>& parts, const QList<QBrush>& fills);

/// "214 GB free".
QString freeText(const DiskReading& reading);

/// A symbol (an arrow) before a figure with its unit.
void markedFigure(Canvas& canvas, const Box& box, const QString& symbol, const QColor& mark, const Units::Pair& pair,
    const FigureStyle& figure);

/// Two histories about one line: the first upwards, the second downwards.
struct MirroredLines {
    QPainterPath upper;
    QPainterPath lower;
    double middle = 0;
};
MirroredLines mirrored(const Box& box, const History& upper, const History& lower, double peak);

/// Rows of events: a bar in the calendar's colour, the title, and its time below.
void eventRows(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const EventsReading& reading, double pitch = 32);

/// Title and artist of a track, one under the other, about the middle of the box.
void trackTexts(
    Canvas& canvas, const Box& box, const NowPlayingReading& reading, const TextStyle& title, const TextStyle& artist);
/// The artwork cropped to the box with round corners; the music symbol on `ground` where there is none.
void artwork(
    Canvas& canvas, const Box& box, const Picture& picture, double radius, const QBrush& ground, const QColor& ink);

/// A picture that covers the box, or fits into it.
void picture(Canvas& canvas, const Box& box, const QImage& image, double radius, bool fills);

} // namespace ambrelle
