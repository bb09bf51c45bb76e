// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/grove/GrovePieces.h"
#include "skins/grove/GroveSkin.h"
#include "skins/grove/GroveStyle.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace grove;

namespace {

/// Hours and minutes about the middle of the box, two discs between them.
void timeOfDay(
    Canvas& canvas, const Box& box, const ClockReading& reading, const FigureStyle& figure, const QColor& gold)
{
    constexpr double disc = 3.5; // radius
    constexpr double between = 24; // width of the colon
    constexpr double apart = 13; // of a disc from the middle
    constexpr double rounding = 1; // figures that are a hair wider than their box would be set smaller
    const double hours = figureWidth(reading.hours, {}, figure, box.width());
    const double minutes = figureWidth(reading.minutes, {}, figure, box.width());
    Box line = box.centred(hours + between + minutes + rounding, box.height());
    canvas.figure(Box(line).cutLeft(hours + rounding), reading.hours, {}, figure);
    line.cutLeft(hours);
    const QPointF colon = line.cutLeft(between).center();
    for (const double side : {-apart, apart})
        canvas.disc(colon + QPointF(0, side), disc, gold);
    canvas.figure(line, reading.minutes, {}, figure);
}

/// Half of the day and place, side by side about the middle.
void dayAndPlace(Canvas& canvas, const SkinStyle& style, Box line, const ClockReading& reading)
{
    const TextStyle caption = style.caption();
    const QString tag = reading.tag();
    const auto width = [&](const QString& text) {
        return text.isEmpty() ? 0 : shape(caption.face, caption.size, text)->width;
    };
    const double half = width(reading.meridiem);
    const double gap = half > 0 && !tag.isEmpty() ? Bands::gap : 0;
    line = line.centred(std::min(line.width(), half + gap + width(tag) + 1), line.height());
    canvas.text(line.cutLeft(half), reading.meridiem, caption.coloured(style.ink));
    line.cutLeft(gap);
    canvas.text(line, tag, caption);
}

} // namespace

void GroveSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double branch = 36; // width
    constexpr double apart = 4;
    constexpr double dateSize = 16;
    Box box = plate(canvas, face);
    const TextStyle date = style().header().sized(dateSize).coloured(style().accentText()).aligned(Align::centre);
    canvas.text(box.cutTop(headerLine), style().caps(reading.dateLine()), date);
    if (!reading.meridiem.isEmpty() || !reading.tag().isEmpty())
        dayAndPlace(canvas, style(), box.cutBottom(footerHeight(style())).inset(branch, 0), reading);
    const Box middle = box.inset(branch, 0);
    canvas.still(u"branches"_s, box.inset(-2),
        [&](Canvas& layer) { branches(layer, middle.inset(0, Bands::gap), branch, style().accent); });
    timeOfDay(canvas, middle.inset(apart, 0), reading, figure(style().clockCap).kerned(), style().accent);
}

void GroveSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysWidth = 152;
    constexpr double gutter = 16;
    constexpr double picture = 50;
    constexpr double descriptionSize = 14;
    constexpr double apart = 5; // of the days, so that no figures touch
    constexpr int most = 5;
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(daysWidth);
    box.cutRight(gutter);
    canvas.text(box.cutBottom(footerHeight(style())), reading.range(), style().caption());
    canvas.text(box.cutBottom(rowHeight(style())), reading.description, style().header().sized(descriptionSize));
    pictogram(canvas, box.cutRight(picture), reading.sky);
    box.cutRight(Bands::gap);
    canvas.figure(box, reading.temperature, u"°"_s, figure(style().temperatureCap).kerned());
    dayColumns(days, reading, most, apart,
        [&](const Box& column, const WeatherReading::Day& day, qsizetype) { dayColumn(canvas, *this, column, day); });
}

void GroveSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 17;
    constexpr double keyPitch = 44;
    const PlayerPlaces places = playerPlaces(plate(canvas, face));
    cover(canvas, places.cover, reading.artwork);
    trackLines(canvas, *this, places, reading, style().header().sized(titleSize));
    controls(canvas, *this, places.controls.centred(3 * keyPitch, places.controls.height()), reading.playing);
}

} // namespace ambrelle
