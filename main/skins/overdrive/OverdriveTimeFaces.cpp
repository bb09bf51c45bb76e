// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "faces/FaceKit.h"
#include "skins/overdrive/OverdrivePieces.h"
#include "skins/overdrive/OverdriveSkin.h"
#include "skins/overdrive/OverdriveStyle.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace overdrive;

namespace {

constexpr double gutter = 14;

/// The date as it is stamped: a point between its words.
QString stampedDate(const SkinStyle& style, const QString& date)
{
    return style.caps(QString(date).replace(u". "_s, u"."_s).replace(u' ', u'.'));
}

/// State of the machine, date and seconds, one under the other.
void readOuts(Canvas& canvas, const FaceRenderer& skin, Box box, const ClockReading& reading)
{
    constexpr double labelSize = 15;
    constexpr double dateSize = 19;
    constexpr double secondCap = 26;
    const SkinStyle& style = skin.style();
    const auto rule = [&] { canvas.fill(box.cutTop(1), faded(cyan, 0.4)); };
    const TextStyle label = style.header().sized(labelSize).coloured(cyan);
    const Box state = box.cutTop(22).moved(0, -4);
    stamped(canvas, {state.left(), Canvas::baseline(state, label)}, label, u"SYS//OK"_s);
    rule();
    canvas.text(box.cutTop(25), stampedDate(style, reading.date), readOut(style, dateSize, cyan));
    rule();
    const Box seconds = box.cutBottom(secondCap);
    if (reading.second)
        secondFigure(canvas, seconds, reading, u"S"_s, skin.figure(secondCap).filled(cyan));
    canvas.text(seconds, reading.meridiem, readOut(style, secondCap, cyan).aligned(Align::right));
}

/// A day in a frame; that of today is lit.
void dayCell(Canvas& canvas, const FaceRenderer& skin, const Box& place, const WeatherReading::Day& day, bool today)
{
    constexpr double cut = 7;
    constexpr double air = 5;
    constexpr double tab = 3;
    slab(canvas, place, cut, today ? skin.style().accent : skin.style().faint, false, 1);
    if (today)
        canvas.fill(Box(place).cutTop(tab), skin.style().accent);
    dayColumn(canvas, skin, place.inset(0, air), day);
}

} // namespace

void OverdriveSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double signWidth = 210;
    constexpr double signHeight = 84;
    constexpr double cut = 10;
    Box box = plate(canvas, face);
    header(canvas, box, face, style().caps(reading.weekday));
    const QString place = reading.tag();
    canvas.text(box.cutBottom(footerHeight(style())), place.isEmpty() ? reading.zone : place, style().caption());
    box = box.centred(box.width(), signHeight);
    const Box sign = box.cutLeft(signWidth);
    canvas.still(u"sign"_s, sign, [&](Canvas& layer) { slab(layer, sign, cut, style().accent, true); });
    box.cutLeft(gutter);
    readOuts(canvas, *this, box, reading);
    const GroundScope ground(canvas, style().accent);
    const FigureStyle time = figure(style().clockCap).kerned().aligned(Align::centre).filled(inkOn(style().accent));
    const Box inside = sign.inset(10, 0);
    canvas.figure(inside, reading.time(), {}, time);
    Glitch{.ground = style().accent, .seed = glitchSeed(face.kind)}.draw(canvas, inside, {reading.time(), {}}, time);
}

void OverdriveSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysWidth = 170;
    constexpr int most = 5;
    constexpr double picture = 48;
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(daysWidth);
    box.cutRight(gutter);
    canvas.text(box.cutBottom(footerHeight(style())), reading.range(), style().caption());
    canvas.text(box.cutBottom(rowHeight(style())), reading.description, style().row());
    pictogram(canvas, box.cutRight(picture), reading.sky);
    box.cutRight(Bands::gap);
    const QColor lit = legible(style().accent, style().ink, style().ground, 3);
    const FigureStyle figure = style().figure(style().temperatureCap).kerned().filled(lit);
    const Units::Pair degrees{reading.temperature, u"°"_s};
    canvas.figure(box, degrees.value, degrees.unit, figure);
    Glitch{.ground = plateColour, .seed = glitchSeed(face.kind)}.draw(canvas, box, degrees, figure);
    dayColumns(days, reading, most, 4, [&](const Box& column, const WeatherReading::Day& day, qsizetype index) {
        dayCell(canvas, *this, column, day, index == 0);
    });
}

void OverdriveSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    constexpr int fewest = 3;
    constexpr int most = 4;
    constexpr double least = 28;
    const Box box = framed(canvas, face, style().caps(reading.day));
    const int count = std::clamp(static_cast<int>(reading.rows.size()), fewest, most);
    rows(box, reading.rows.size(), count, least, [&](const Box& row, qsizetype index) {
        const EventsReading::Row& event = reading.rows[index];
        Box text = row.centred(row.width(), least);
        separator(canvas, row);
        eventMark(canvas, text, event.colour);
        canvas.text(text.cutTop(text.height() / 2), event.title, style().row());
        rowMark(canvas, text, index);
        canvas.text(text, event.time, style().caption().coloured(style().accentText()));
    });
}

void OverdriveSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 22;
    constexpr double keyPitch = 38;
    constexpr double keyHeight = 22;
    Box box = plate(canvas, face);
    cover(canvas, box.cutLeft(box.height()), reading.artwork);
    box.cutLeft(gutter);
    canvas.text(box.cutTop(titleSize + 4), reading.title, readOut(style(), titleSize, style().ink));
    canvas.text(box.cutTop(18), reading.artist, style().caption().sized(12));
    const Box keys = box.cutBottom(keyHeight).moved((30 - keyPitch) / 2, 0);
    controls(canvas, *this, Box(keys).cutLeft(3 * keyPitch), reading.playing);
    box.cutBottom(10);
    trackTimes(canvas, box.cutBottom(footerHeight(style())), reading, style().caption());
    level(canvas, box.cutBottom(9), reading.progress, style().accent);
}

} // namespace ambrelle
