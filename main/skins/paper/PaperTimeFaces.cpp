// SPDX-License-Identifier: MIT

#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/paper/PaperPieces.h"
#include "skins/paper/PaperSkin.h"
#include "skins/paper/PaperStyle.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace paper;

namespace {

constexpr double columnWidth = 74;
constexpr double columnGutter = 8;

/// The text at the size at which its longest word is whole, a point smaller at a time down to `least`.
TextStyle fitting(TextStyle text, const QString& words, double width, double least)
{
    const auto whole = [&](const QString& word) { return elided(word, text, width) == word; };
    while (text.size > least && !std::ranges::all_of(words.split(u' '), whole))
        text = text.sized(text.size - 1);
    return text;
}

/// A figure whose sign stands close: that of the typeface has much air at its left.
void temperature(Canvas& canvas, const SkinStyle& style, Box box, const QString& degrees)
{
    constexpr double signSize = 32;
    constexpr double signWidth = 18;
    constexpr double air = 2;
    const double top = box.center().y() - style.temperatureCap / 2;
    const Box room(box.x(), box.y(), box.width() - signWidth, box.height());
    box.cutLeft(canvas.figure(room, degrees, {}, style.figure(style.temperatureCap).kerned()) - air);
    const TextStyle sign = style.row().sized(signSize);
    canvas.text(Box(box.x(), top, box.width(), signSize * sign.face.capRatio), u"°"_s, sign);
}

/// Weekday, day and month under each other, as at the head of a page.
void dateColumn(Canvas& canvas, const SkinStyle& style, const Box& box, const ClockReading& reading)
{
    constexpr double dayCap = 34;
    constexpr double weekdayLine = 20;
    constexpr double monthLine = 16;
    constexpr double gap = 7;
    Box block = box.centred(box.width(), weekdayLine + dayCap + monthLine + 2 * gap);
    const Box line = block.cutTop(weekdayLine);
    const TextStyle weekday = fitting(italic(style, 15), reading.weekday, line.width(), 13).aligned(Align::centre);
    const bool whole = elided(reading.weekday, weekday, line.width()) == reading.weekday;
    canvas.text(line, whole ? reading.weekday : reading.weekdayShort, weekday);
    block.cutTop(gap);
    canvas.figure(
        block.cutTop(dayCap), QString::number(reading.day), {}, style.figure(dayCap).aligned(Align::centre).kerned());
    block.cutTop(gap);
    const TextStyle month = note(style).coloured(style.ink).aligned(Align::centre);
    const QString capitals = reading.month.toUpper();
    const TextStyle spaced = month.faced(month.face.tracked(0.8));
    const bool roomy = elided(capitals, spaced, block.width()) == capitals;
    canvas.text(block, roomy ? capitals : reading.month, roomy ? spaced : month);
}

} // namespace

void PaperSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    headerNote(canvas, style(), face.bounds, reading.meridiem.isEmpty() ? reading.zone : reading.meridiem);
    if (const QString tag = reading.tag(); !tag.isEmpty())
        canvas.text(footLine(canvas, style(), box), tag, italic(style(), 12).coloured(style().soft));
    const Box column = box.cutRight(columnWidth);
    columnRule(canvas, box.cutRight(2 * columnGutter), style().ink, Rules::light);
    canvas.figure(box, reading.time(), {}, figure(style().clockCap).kerned());
    dateColumn(canvas, style(), column, reading);
}

void PaperSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.month));
    headerNote(canvas, style(), face.bounds, reading.year);
    monthGrid(canvas, *this, box, reading, note(style()), style().caption().coloured(style().ink));
}

/// The days in a box of their own, ruled like a table.
void PaperSkin::forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const
{
    constexpr int most = 6;
    constexpr double air = 5;
    constexpr double line = 17;
    constexpr double picture = 22;
    constexpr double today = 3; // of the beam over its column
    const TextStyle figures = style().caption().aligned(Align::centre);
    canvas.frame(box, flatPen(style().ink, Rules::light));
    dayColumns(box, reading, most, 0, [&](Box column, const WeatherReading::Day& day, qsizetype index) {
        if (index > 0)
            columnRule(canvas, Box(column).cutLeft(1).moved(-0.5, 0), style().ink, Rules::hair);
        if (index == 0)
            canvas.fill(Box(column).cutTop(today), style().accent);
        column = column.inset(1, air);
        const TextStyle name = note(style()).coloured(index == 0 ? style().accentText() : style().ink);
        canvas.text(column.cutTop(line), day.name, name.aligned(Align::centre));
        const Box low = column.cutBottom(line);
        canvas.text(low, temperatureIn(day.low, figures, low.width()), figures);
        const Box high = column.cutBottom(line);
        canvas.text(high, temperatureIn(day.high, figures, high.width()), figures.coloured(style().ink));
        pictogram(canvas, column.centred(picture, picture), day.sky);
    });
}

void PaperSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysWidth = 174;
    constexpr double gutter = 14;
    constexpr double picture = 42;
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(daysWidth);
    box.cutRight(gutter);
    temperature(canvas, style(), box.cutTop(style().temperatureCap + 2), reading.temperature);
    box.cutTop(12);
    pictogram(canvas, box.cutLeft(picture), reading.sky);
    box.cutLeft(8);
    const TextStyle description = fitting(italic(style(), 14), reading.description, box.width(), 12).wrapped(2);
    const double lines = static_cast<double>(wrapped(reading.description, description, box.width()).size());
    const double text = lines * description.size * description.lineHeight;
    const double range = reading.range().isEmpty() ? 0 : footerHeight(style()) + 2;
    Box block = box.centred(box.width(), text + range);
    canvas.paragraph(block.cutTop(text), reading.description, description);
    canvas.text(block.cutBottom(footerHeight(style())), reading.range(), style().caption());
    if (!reading.days.isEmpty())
        forecast(canvas, days, reading);
}

void PaperSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    constexpr qsizetype most = 3;
    constexpr double timeLine = 14;
    constexpr double air = 8;
    const double titleLine = style().rowSize * style().lineHeight;
    Box box = framed(canvas, face, style().caps(reading.day));
    const qsizetype count = std::min(reading.rows.size(), most);
    double spare = box.height() - static_cast<double>(count) * (timeLine + titleLine + air) + air;
    for (qsizetype index = 0; index < count; ++index) {
        const EventsReading::Row& event = reading.rows[index];
        const TextStyle title = style().row().wrapped(spare >= titleLine ? 2 : 1);
        const double width = box.width() - 10; // beside the mark
        const double lines = static_cast<double>(wrapped(event.title, title, width).size());
        spare -= (lines - 1) * titleLine;
        Box row = box.cutTop((event.time.isEmpty() ? 0 : timeLine) + lines * titleLine);
        eventMark(canvas, row, event.colour);
        if (!event.time.isEmpty())
            canvas.text(row.cutTop(timeLine), event.time, bold(style(), 12));
        canvas.paragraph(row, event.title, title);
        const Box between = box.cutTop(air);
        if (index + 1 < count)
            rule(canvas, between.moved(0, air / 2), style().ink, Rules::hair);
    }
}

void PaperSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 15;
    constexpr double artistSize = 12.5;
    constexpr double keyPitch = 44;
    constexpr double keyHeight = 24;
    Box box = plate(canvas, face);
    cover(canvas, box.cutLeft(box.height()), reading.artwork);
    box.cutLeft(16);
    doubleRule(canvas, box, style().ink);
    box.cutTop(style().titleGap);
    const Box keys = box.cutBottom(keyHeight);
    controls(canvas, *this, keys.centred(3 * keyPitch, keyHeight), reading.playing);
    box.cutBottom(Bands::gap);
    trackTimes(canvas, box.cutBottom(Bands::footer), reading, style().caption());
    level(canvas, box.cutBottom(9), reading.progress, style().accent);
    const double title = canvas.paragraph(box, reading.title, bold(style(), titleSize).wrapped(2));
    box.cutTop(title + 2);
    canvas.text(box.cutTop(artistSize + 4), reading.artist, italic(style(), artistSize).coloured(style().soft));
}

} // namespace ambrelle
