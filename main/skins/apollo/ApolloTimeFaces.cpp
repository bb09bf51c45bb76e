// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "faces/FaceKit.h"
#include "skins/apollo/ApolloPieces.h"
#include "skins/apollo/ApolloSkin.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace apollo;

namespace {

constexpr double nameHeight = 15; // of an engraved name above its instrument

/// A temperature without its sign, and the sign, which the longest ones leave no room for.
Units::Pair degrees(const QString& temperature)
{
    constexpr qsizetype longest = 3;
    const QString figure = temperature.chopped(temperature.endsWith(u'°') ? 1 : 0);
    return {figure, figure.size() > longest ? QString() : u"°"_s};
}

/// A small register under its name; cuts both.
void namedRegister(Canvas& canvas, const FaceRenderer& skin, Box& box, const QString& name, const Units::Pair& value)
{
    constexpr double cap = 15;
    canvas.text(box.cutTop(nameHeight), name, label(skin.style()));
    digits(canvas, box.cutTop(28), value, 3, skin.figure(cap));
}

/// Hours and minutes with their names above them.
void timeRegister(Canvas& canvas, const FaceRenderer& skin, Box box, const ClockReading& reading)
{
    const SkinStyle& style = skin.style();
    const TextStyle name = label(style);
    const InkGlow glow{.colour = style.accent, .strokes = 3, .alpha = 0.06, .spread = 2};
    const FigureStyle figure = skin.figure(style.clockCap).glowing(glow);
    const QString time = reading.hours.rightJustified(2, QChar(0x2007)) + u':' + reading.minutes;
    const double pair = figureWidth(u"88"_s, {}, figure, box.width());
    const double whole = figureWidth(time, {}, figure, box.width());
    const Box names = box.cutTop(nameHeight);
    canvas.still(u"time"_s, box, [&](Canvas& layer) { window(layer, box); });
    const Box place = box.centred(whole, box.height());
    canvas.text(Box(place.left(), names.y(), pair, names.height()), u"HOURS"_s, name.aligned(Align::centre));
    canvas.text(Box(place.right() - pair, names.y(), pair, names.height()), u"MIN"_s, name.aligned(Align::centre));
    canvas.text(names, reading.meridiem, name.coloured(style.accentText()).aligned(Align::right));
    const GroundScope ground(canvas, well);
    canvas.figure(place.inset(-1, 0), time, {}, figure.aligned(Align::centre));
}

/// The coming days as rows of small registers under their names.
void dayRegisters(Canvas& canvas, const FaceRenderer& skin, Box table, const WeatherReading& reading)
{
    constexpr int most = 5;
    constexpr double cap = 14;
    constexpr double width = 48;
    constexpr double gap = 4;
    constexpr double picture = 18;
    const TextStyle name = label(skin.style()).aligned(Align::centre);
    if (!reading.days.isEmpty()) {
        Box names = table.cutTop(nameHeight);
        canvas.text(names.cutRight(width), skin.style().caps(Wording::tr("Low", "lowest temperature")), name);
        names.cutRight(gap);
        canvas.text(names.cutRight(width), skin.style().caps(Wording::tr("High", "highest temperature")), name);
    }
    dayRows(table, reading, most, [&](Box row, const WeatherReading::Day& day, qsizetype) {
        row = row.centred(row.width(), cap + 6);
        digits(canvas, row.cutRight(width), degrees(day.low), 2, skin.figure(cap));
        row.cutRight(gap);
        digits(canvas, row.cutRight(width), degrees(day.high), 2, skin.figure(cap));
        row.cutRight(gap);
        skin.pictogram(canvas, row.cutRight(picture), day.sky);
        canvas.text(row, day.name, skin.style().caption().coloured(skin.style().ink));
    });
}

} // namespace

void ApolloSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double stripHeight = 23;
    constexpr double sideWidth = 66;
    Box box = framed(canvas, face);
    Box line = teletype(canvas, box.cutBottom(stripHeight).inset(0, 4));
    box.cutBottom(style().titleGap);
    Box side = box.cutLeft(sideWidth);
    box.cutLeft(12);
    timeRegister(canvas, *this, box, reading);
    namedRegister(canvas, *this, side, u"GET"_s, {QString::number(reading.dayOfYear), u"D"_s});
    side = side.cutBottom(nameHeight + 28);
    namedRegister(canvas, *this, side, u"UTC"_s, {reading.utc, {}});
    const GroundScope ground(canvas, paper);
    line = line.inset(0, -5);
    line.cutLeft(canvas.text(line, style().caps(reading.dateLine()), typed(style(), true)) + Bands::gap);
    endOfLine(canvas, line, typed(style()));
    canvas.text(line, reading.tag(), smallPrint(style()).aligned(Align::right));
}

/// A panel of lamps, one a day, today's lit.
void ApolloSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.month)).inset(-2, -2);
    canvas.still(
        u"days"_s, box,
        [&](Canvas& layer) {
            for (int day = 1; day <= reading.days; ++day)
                layer.fill(monthCell(box, reading, day).inset(0.8), well, faceRadius);
        },
        reading.firstColumn, reading.days);
    const GroundScope ground(canvas, well);
    monthGrid(canvas, *this, box, reading, style().caption(), style().caption().coloured(style().ink));
}

void ApolloSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double picture = 46;
    constexpr double nowWidth = 104;
    Box box = framed(canvas, face, reading.place);
    dayRegisters(canvas, *this, box.cutRight(146), reading);
    box.cutRight(12);
    const TextStyle name = label(style());
    canvas.text(box.cutTop(nameHeight), style().caps(Wording::tr("Now", "the temperature")), name);
    Box now = box.cutTop(style().temperatureCap + 12);
    digits(canvas, now.cutLeft(nowWidth), degrees(reading.temperature), 2, figure(style().temperatureCap));
    pictogram(canvas, now.cutRight(picture), reading.sky);
    box.cutTop(Bands::gap);
    Box range = box.cutBottom(22);
    canvas.text(box, reading.description, style().row());
    if (reading.high.isEmpty())
        return;
    const auto extreme = [&](Box place, const QString& title, const QString& value) {
        digits(canvas, place.cutRight(44), degrees(value), 2, figure(14));
        canvas.text(place, title, name);
    };
    extreme(range.column(0, 2, 8), style().caps(Wording::tr("High", "highest temperature")), reading.high);
    extreme(range.column(1, 2, 8), style().caps(Wording::tr("Low", "lowest temperature")), reading.low);
}

void ApolloSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    constexpr int most = 3;
    constexpr double least = 36;
    const Box page = teletype(canvas, framed(canvas, face, style().caps(reading.day)));
    const GroundScope ground(canvas, paper);
    rows(page, reading.rows.size(), most, least, [&](const Box& row, qsizetype index) {
        const EventsReading::Row& event = reading.rows[index];
        Box line = row.centred(row.width(), least - 4);
        canvas.fill(line.cutLeft(3), event.colour);
        line.cutLeft(6);
        canvas.text(line.cutTop(line.height() / 2), event.title, typed(style(), index == 0));
        endOfLine(canvas, line, smallPrint(style()));
        canvas.text(line, event.time, smallPrint(style()));
    });
}

void ApolloSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double stripHeight = 38;
    constexpr double reelsWidth = 100;
    constexpr double counterCap = 16;
    Box box = framed(canvas, face);
    cover(canvas, box.cutLeft(box.height()), reading.artwork);
    box.cutLeft(12);
    const Box strip = box.cutTop(stripHeight);
    canvas.still(u"strip"_s, strip.inset(-1), [&](Canvas& layer) {
        layer.fill(strip.moved(0, 1), faded(Qt::black, 0.4), 1);
        layer.fill(strip, paper, 1);
        layer.fill(Box(strip).cutLeft(4), redInk, 1);
    });
    {
        const GroundScope ground(canvas, paper);
        trackTexts(canvas, strip.adjusted(12, 1, -8, -1), reading, typed(style(), true).sized(13), smallPrint(style()));
    }
    const auto draw = [&](const Box& place, const QString& symbol, bool middle) {
        key(canvas, place, symbol, middle && reading.playing);
    };
    controls(canvas, box.cutBottom(28).inset(-2, 0), reading.playing, draw);
    box = box.inset(0, 6);
    reels(canvas, box.cutLeft(reelsWidth), reading.progress, reading.playing);
    box.cutLeft(12);
    digits(canvas, box.cutTop(counterCap + 10), {reading.elapsed, {}}, 4, figure(counterCap));
    box.cutTop(4);
    level(canvas, box.cutTop(4), reading.progress, style().accent);
    canvas.text(box.cutBottom(12), reading.total, style().caption().aligned(Align::right));
}

} // namespace ambrelle
