// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Charts.h"
#include "faces/FaceRenderer.h"

#include <functional>

namespace ambrelle {

/// Layouts that the faces of several skins are put together from. Each takes its place from a box and draws with the
/// pieces of the skin; none of them knows a skin. Lines named after what they cut ("cuts …") change the box they get.

/// Bands of a face, in points.
namespace Bands {
inline constexpr double hero = 44; ///< a figure of cap 40
inline constexpr double footer = 14;
inline constexpr double gap = 6;
} // namespace Bands

/// The line at the lower edge, deeper where the texts are large; a line of the size of rows.
double footerHeight(const SkinStyle& style);
double rowHeight(const SkinStyle& style);
/// A row of two lines, a row's text over a caption.
double twoLinePitch(const SkinStyle& style);
/// Its two lines, nearer to each other than to other rows.
double upperLine(const SkinStyle& style);
double lowerLine(const SkinStyle& style);

/// The large figure at the top of `content`, at its right end the warning mark if it is `marked`. Cuts its band and the
/// gap below.
void hero(Canvas& canvas, const FaceRenderer& skin, Box& content, const Units::Pair& value, bool marked = false);
void hero(Canvas& canvas, const FaceRenderer& skin, Box& content, const Units::Pair& value, bool marked, double cap);
/// A caption at the bottom of `content`; cuts its line and the gap above.
void footer(Canvas& canvas, const FaceRenderer& skin, Box& content, const QString& text);
/// The hero figure at the top and a footer at the bottom of `content`; returns the room between them, with gaps.
Box heroAndFooter(Canvas& canvas, const FaceRenderer& skin, Box content, const QString& value, const QString& unit,
    const QString& footer, const FigureStyle& figure);

/// A value at the right end of the line and a name that takes what is left.
void named(Canvas& canvas, Box line, const QString& name, const TextStyle& nameStyle, const QString& value,
    const TextStyle& valueStyle);

/// Calls `draw` for as many whole rows of `pitch` points as fit, at most `count`; the rows stand at the top of the box.
using DrawRow = std::function<void(const Box& row, qsizetype index)>;
void rows(const Box& box, qsizetype count, double pitch, const DrawRow& draw);
/// The same for at most `most` rows that fill the box, or fewer where they would be lower than `least` points.
void rows(const Box& box, qsizetype count, int most, double least, const DrawRow& draw);

/// Seven columns of a month under the names of the weekdays, today with the skin's mark.
void monthGrid(Canvas& canvas, const FaceRenderer& skin, const Box& box, const CalendarReading& reading,
    const TextStyle& weekday, const TextStyle& day);
/// A mark of today: fills a square in the cell, round from a `corner` of 10 points on, and returns the number's style.
TextStyle filledDay(Canvas& canvas, const Box& cell, const TextStyle& day, const QColor& fill, double corner);
/// Where a day of the month stands in the grid of that box.
Box monthCell(const Box& box, const CalendarReading& reading, int day);

/// A horizontal bar of the parts of a whole, one brush each, and the empty rest.
void partsBar(Canvas& canvas, const Box& box, const QList<Share>& parts, const QList<QBrush>& fills, const QBrush& rest,
    double radius);
/// One row per part: a swatch, the name, the value.
void partsKey(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const QList<Share>& parts, const QList<QBrush>& fills);
/// The same with swatches of `width` points that `draw` fills.
using DrawSwatch = std::function<void(const Box& swatch, qsizetype index)>;
void partsKey(Canvas& canvas, const FaceRenderer& skin, const Box& box, const QList<Share>& parts, double width,
    const DrawSwatch& draw);
/// The name and value of the part `index` in one line; all lines of a key are equally wide. Where a value does not fit
/// beside its name, all of them go without the space before their unit, or else without the unit.
void keyLine(Canvas& canvas, Box line, const QList<Share>& parts, qsizetype index, const TextStyle& name,
    const TextStyle& value);
/// Which part a place (0 to 1) of the whole belongs to; none: the rest.
std::optional<qsizetype> partAt(const QList<Share>& parts, double place);

/// A symbol (an arrow) before a figure with its unit.
void markedFigure(Canvas& canvas, const Box& box, const QString& symbol, const QColor& mark, const Units::Pair& pair,
    const FigureStyle& figure);
/// The seconds of a clock that tells them, with some room around their box: the part of its face that ticks.
void secondFigure(
    Canvas& canvas, const Box& box, const ClockReading& reading, const QString& unit, const FigureStyle& figure);
/// Both rates, side by side.
void rates(Canvas& canvas, const FaceRenderer& skin, const Box& box, const NetworkReading& reading);

/// Two histories about one line: the first upwards, the second downwards.
struct MirroredLines {
    QPainterPath upper;
    QPainterPath lower;
    double middle = 0;
};
MirroredLines mirrored(const Box& box, const History& upper, const History& lower, double peak);

/// Rows of events: the mark of the calendar, the title, and its time below.
void eventRows(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const EventsReading& reading, double pitch = 32);
/// Rows of processes with the skin's marks: name, per cent, and how busy they are.
void processRows(
    Canvas& canvas, const FaceRenderer& skin, const Box& box, const ProcessesReading& reading, int most = 5);

/// Temperature and picture over the description and the day's range.
void weatherNow(Canvas& canvas, const FaceRenderer& skin, Box box, const WeatherReading& reading, double picture = 40);
/// A temperature, without its sign where it would be cut.
QString temperatureIn(const QString& value, const TextStyle& text, double width);
/// The days side by side: `draw` gets a column for each, at most `most`; columns are equal whatever their number.
using DrawDay = std::function<void(Box place, const WeatherReading::Day& day, qsizetype index)>;
void dayColumns(const Box& box, const WeatherReading& reading, int most, double gap, const DrawDay& draw);
/// Day, picture, high and low, one under the other.
void dayColumn(Canvas& canvas, const FaceRenderer& skin, Box column, const WeatherReading::Day& day);
/// The days one under the other.
void dayRows(const Box& box, const WeatherReading& reading, int most, const DrawDay& draw);
/// Name, picture, low and high in one line; returns the room between picture and temperatures.
Box dayRow(Canvas& canvas, const FaceRenderer& skin, Box row, const WeatherReading::Day& day, double name = 34);
/// The part of a track, upright or lying, from `low` to `high` (0 to 1), at least as long as the track is wide.
Box span(const Box& track, double low, double high);

/// The places of a wide player: a square cover at the left, the rest beside it.
struct PlayerPlaces {
    Box cover;
    Box texts;
    Box times;
    Box progress;
    Box controls;
};
PlayerPlaces playerPlaces(Box content, double controlsHeight = 26);
/// Title, artist, progress and times.
void trackLines(Canvas& canvas, const FaceRenderer& skin, const PlayerPlaces& places, const NowPlayingReading& reading,
    const TextStyle& title);
/// The time played at the left, that of the whole track at the right.
void trackTimes(Canvas& canvas, const Box& box, const NowPlayingReading& reading, const TextStyle& style);
/// Title and artist of a track, one under the other, about the middle of the box.
void trackTexts(
    Canvas& canvas, const Box& box, const NowPlayingReading& reading, const TextStyle& title, const TextStyle& artist);
/// The three controls in equal columns, each drawn by `draw`; those that are `active` answer clicks.
using DrawKey = std::function<void(const Box& place, const QString& symbol, bool middle)>;
void controls(Canvas& canvas, const Box& box, bool playing, const DrawKey& draw, bool active = true);
/// The three controls with the skin's own keys.
void controls(Canvas& canvas, const FaceRenderer& skin, const Box& box, bool playing);
/// The artwork cropped to the box with round corners; the music symbol on `ground` where there is none.
void artwork(
    Canvas& canvas, const Box& box, const Picture& picture, double radius, const QBrush& ground, const QColor& ink);

/// A picture that covers the box, or fits into it.
void picture(Canvas& canvas, const Box& box, const QImage& image, double radius, bool fills);
/// The outline of a named symbol in a centred square of `size` points.
QPainterPath symbolIn(const Box& box, const QString& name, double size);

} // namespace ambrelle
