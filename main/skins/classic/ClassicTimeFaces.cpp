// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/classic/BitPictures.h"
#include "skins/classic/ClassicPieces.h"
#include "skins/classic/ClassicSkin.h"
#include "skins/classic/ClassicStyle.h"

#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace classic;

namespace {

constexpr int shownDays = 5;

/// Hours and minutes about a colon that is dark every other second.
Box blinkingTime(Canvas& canvas, const Box& box, const ClockReading& reading, const FigureStyle& figure)
{
    const QString colon = u":"_s;
    const double hours = figurePath(reading.hours, {}, figure, box.width()).width;
    const double minutes = figurePath(reading.minutes, {}, figure, box.width()).width;
    const double middle = figurePath(colon, {}, figure, box.width()).width;
    const Box whole = box.centred(hours + middle + minutes, figure.cap);
    Box rest = whole;
    canvas.figure(rest.cutLeft(hours), reading.hours, {}, figure);
    const Box blinking = rest.cutLeft(middle);
    canvas.moving(blinking, Motion::steady(2), [=](Canvas& frame, double time) {
        if (std::fmod(std::floor(time), 2) == 0)
            frame.figure(blinking, colon, {}, figure);
    });
    canvas.figure(rest, reading.minutes, {}, figure);
    return whole;
}

void weatherColumn(Canvas& canvas, Box column, const WeatherReading::Day& day, const SkinStyle& style)
{
    const TextStyle text = style.row().aligned(Align::centre);
    canvas.text(column.cutTop(classic::line), day.initial, text);
    bitPicture(day.sky).draw(canvas, column.cutTop(36), 2);
    canvas.text(column.cutTop(classic::line), temperatureIn(day.high, text, column.width()), text);
    canvas.text(column.cutBottom(classic::line), temperatureIn(day.low, text, column.width()), text);
    Box track = column.inset(0, 3).centred(8, column.height() - 6);
    canvas.frame(track, QPen(ink, 1));
    track = track.inset(1);
    const double top = track.bottom() - track.height() * day.highFraction;
    const double bottom = track.bottom() - track.height() * day.lowFraction;
    canvas.fill(Box(track.x(), top, track.width(), std::max(2.0, bottom - top)), half);
}

} // namespace

void ClassicSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, title(WidgetKind::clock));
    Box footer = box.cutBottom(line);
    footer.cutLeft(canvas.text(footer, reading.dateLine(), style().row()) + 10);
    const TextStyle tag = style().row().aligned(Align::right);
    const bool whole = elided(reading.tag(), tag, footer.width()) == reading.tag();
    canvas.text(footer, whole ? reading.tag() : reading.city, tag);
    const Box time = blinkingTime(canvas, box, reading, style().figure(80 * style().number.capRatio));
    const Box beside(time.right() + 8, time.bottom() - 26, 40, 26);
    canvas.text(beside, reading.meridiem, style().header().sized(32));
}

void ClassicSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, reading.month);
    const int lines = (reading.firstColumn + reading.days + 6) / 7 + 1;
    const Box grid(box.x() - 2, box.y(), 7 * 22, std::min(22.0, std::floor(box.height() / lines)) * lines);
    monthGrid(canvas, *this, grid, reading, style().header(), style().row());
}

void ClassicSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(shownDays * 36);
    box.cutRight(4);
    canvas.text(box.cutBottom(line), reading.range(), style().row());
    canvas.text(box.cutBottom(line + 4), reading.description, style().row());
    Box top = box.cutTop(70);
    bitPicture(reading.sky).draw(canvas, top.cutLeft(36), 2);
    top.cutLeft(4);
    hero(canvas, top, reading.temperature, u"°"_s, 64);
    for (int index = 0; index < std::min<int>(shownDays, static_cast<int>(reading.days.size())); ++index)
        weatherColumn(canvas, days.column(index, shownDays), reading.days[index], style());
}

void ClassicSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    framed(canvas, face, reading.day);
    listView(canvas, face.bounds, reading.rows.size(), 37, [&](Box row, qsizetype index, const QColor& colour) {
        const EventsReading::Row& event = reading.rows[index];
        const Box mark = row.cutLeft(6).inset(0, 4);
        canvas.fill(mark, event.colour);
        canvas.frame(mark, QPen(colour, 1));
        row.cutLeft(6);
        canvas.text(row.cutTop(row.height() / 2), event.title, style().row().coloured(colour));
        canvas.text(row, event.time, style().row().coloured(colour));
    });
}

void ClassicSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    const Box cover = box.cutLeft(132).centred(132, 132);
    artwork(canvas, cover.inset(1), reading.artwork, 0, paper, ink);
    canvas.frame(cover, QPen(ink, 1));
    box.cutLeft(12);
    trackTexts(canvas, box.cutTop(44), reading, style().header(), style().row());
    const Box buttons = box.cutBottom(26).centred(3 * 50, 24);
    pushButtons(canvas, buttons);
    controls(canvas, *this, buttons, reading.playing);
    box.cutBottom(6);
    Box times = box.cutBottom(line);
    canvas.text(times, reading.elapsed, style().row());
    canvas.text(times, reading.total, style().rowValue());
    progress(canvas, box.cutBottom(progressHeight), reading.progress);
}

} // namespace ambrelle
