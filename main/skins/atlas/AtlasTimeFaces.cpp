// SPDX-License-Identifier: MIT

#include "drawing/Fraction.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/atlas/AtlasPieces.h"
#include "skins/atlas/AtlasSkin.h"
#include "skins/atlas/AtlasStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace atlas;

namespace {

/// The city and where it lies, or the zone.
void placeLines(Canvas& canvas, const SkinStyle& style, Box box, const ClockReading& reading)
{
    constexpr double nameLine = 18;
    constexpr double gap = 10;
    canvas.text(box.cutTop(nameLine), reading.city, placeName(style, nameSize));
    const QString grid = gridReference(reading.city);
    box.cutLeft(canvas.text(box, grid.isEmpty() ? reading.zone : grid, style.caption().coloured(style.ink)) + gap);
    canvas.text(box, reading.offset, style.caption());
}

/// The day as a distance of 24 hours.
void dayScale(Canvas& canvas, const SkinStyle& style, Box box, double fraction)
{
    constexpr double height = 12;
    scaleNumbers(canvas, style, box.cutBottom(numbersLine), {u"0"_s, u"12"_s, Wording::tr("%1 h").arg(24)});
    box.cutBottom(2);
    scaleBar(canvas, style, box.cutBottom(height), 8, fraction, style.accent);
}

/// The sides of all days, each of them once.
QList<QLineF> gridLines(const Box& box, const CalendarReading& reading)
{
    constexpr int week = 7;
    QList<QLineF> lines;
    for (int day = 1; day <= reading.days; ++day) {
        const Box cell = monthCell(box, reading, day);
        lines << QLineF(cell.topLeft(), cell.topRight()) << QLineF(cell.topLeft(), cell.bottomLeft());
        if ((reading.firstColumn + day) % week == 0 || day == reading.days)
            lines << QLineF(cell.topRight(), cell.bottomRight());
        if (day > reading.days - week)
            lines << QLineF(cell.bottomLeft(), cell.bottomRight());
    }
    return lines;
}

/// A line of one warmth from the day's lowest to its highest, and where it stands now.
void isotherm(Canvas& canvas, const SkinStyle& style, Box box, const WeatherReading& reading)
{
    constexpr double amplitude = 3;
    constexpr double wave = 44;
    constexpr double air = 6;
    constexpr double dot = 3.4;
    if (reading.range().isEmpty())
        return;
    const TextStyle text = style.caption().coloured(style.ink);
    box.cutLeft(canvas.text(box, reading.low, text) + air);
    box.cutRight(canvas.text(box, reading.high, text.aligned(Align::right)) + air);
    const double y = box.center().y();
    const QPainterPath line = wavyLine({box.left(), y}, {box.right(), y}, amplitude, wave);
    canvas.stroke(line, roundPen(style.accent, 1.4));
    if (!reading.nowFraction)
        return;
    const QPointF now = line.pointAtPercent(bounded(*reading.nowFraction));
    canvas.disc(now, dot, style.ink);
    canvas.disc(now, dot - Lines::neat, sheet);
}

} // namespace

void AtlasSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double foot = 32;
    constexpr double scaleWidth = 112;
    constexpr double raised = 8; // off the name below
    constexpr double roseWidth = 50;
    constexpr double roseHeight = 61;
    Box box = framed(canvas, face, style().caps(reading.dateLine()));
    Box below = box.cutBottom(foot);
    dayScale(canvas, style(), below.cutRight(scaleWidth), reading.dayFraction());
    below.cutRight(Bands::footer);
    placeLines(canvas, style(), below, reading);

    const Box rose = Box(face.bounds.inset(style().inset)).cutRight(roseWidth).cutTop(roseHeight);
    canvas.still(u"rose"_s, rose, [&](Canvas& layer) { compassRose(layer, style(), rose); });
    box.cutBottom(raised);
    const double width = canvas.figure(box, reading.time(), {}, figure(style().clockCap).kerned());
    const TextStyle half = style().header().sized(14);
    const double feet = box.center().y() + style().clockCap / 2;
    box.cutLeft(width + Bands::gap);
    box.setBottom(feet + half.size * half.face.capRatio / 2);
    canvas.text(box.cutBottom(half.size * 2 * half.face.capRatio), reading.meridiem, half);
}

/// The days on the squares of the grid.
void AtlasSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.month));
    canvas.text(
        face.bounds.inset(style().inset).cutTop(headerLine), reading.year, style().caption().aligned(Align::right));
    canvas.still(
        u"squares"_s, box.inset(-1),
        [&](Canvas& layer) {
            for (const QLineF& line : gridLines(box, reading))
                layer.line(line.p1(), line.p2(), flatPen(style().accent2, Lines::hair));
        },
        reading.firstColumn, reading.days);
    monthGrid(canvas, *this, box, reading, style().caption(), style().caption().coloured(style().ink));
}

void AtlasSkin::gazetteer(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr int most = 6;
    constexpr double name = 38;
    constexpr double air = 1.5;
    dayRows(box, reading, most, [&](const Box& row, const WeatherReading::Day& day, qsizetype index) {
        if (index == 0)
            canvas.fill(Box(row).cutTop(Lines::hair), style().soft);
        canvas.fill(Box(row).cutBottom(Lines::hair), style().soft);
        dayRow(canvas, *this, row.inset(0, air), day, name);
    });
}

void AtlasSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysWidth = 138;
    constexpr double gutter = 20;
    constexpr double picture = 48;
    Box box = framed(canvas, face, reading.place);
    gazetteer(canvas, Box(box.cutRight(daysWidth)), reading);
    box.cutRight(gutter);
    canvas.text(box.cutBottom(rowHeight(style())), reading.description, style().row());
    isotherm(canvas, style(), box.cutBottom(24), reading);
    pictogram(canvas, box.cutRight(picture), reading.sky);
    box.cutRight(Bands::gap);
    canvas.figure(box, reading.temperature, u"°"_s, figure(style().temperatureCap).kerned());
}

void AtlasSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 14;
    constexpr double keyPitch = 46;
    constexpr int steps = 4;
    constexpr double raised = 3; // off the times below
    const PlayerPlaces places = playerPlaces(plate(canvas, face));
    cover(canvas, places.cover, reading.artwork);
    TextStyle title = style().header().sized(titleSize);
    title.face.tracking = 0;
    trackTexts(canvas, places.texts, reading, title, placeName(style(), titleSize));
    scaleBar(canvas, style(), places.progress.moved(0, -raised), steps, reading.progress, style().accent);
    trackTimes(canvas, places.times, reading, style().caption());
    controls(canvas, *this, places.controls.centred(3 * keyPitch, places.controls.height()), reading.playing);
}

} // namespace ambrelle
