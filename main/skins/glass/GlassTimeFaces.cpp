// SPDX-License-Identifier: MIT

#include "skins/glass/GlassSkin.h"

#include "faces/FaceKit.h"
#include "skins/glass/GlassStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace glass;

void GlassSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box box = plate(canvas, face);
    const TextStyle heading = style().header().sized(13);
    Box line = box.cutTop(14);
    const double meridiem = canvas.text(line, reading.meridiem, heading.coloured(soft).aligned(Align::right));
    line.cutRight(meridiem);
    canvas.text(line, reading.dateLine(), heading);
    canvas.text(box.cutBottom(Bands::footer), reading.tag(), style().caption().sized(12));
    canvas.figure(box, reading.time(), {}, style().figure(style().clockCap).kerned());
}

void GlassSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, reading.month);
    monthGrid(canvas, *this, box, reading, style().caption(), style().caption().coloured(ink));
}

void GlassSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(box.width() * 0.56);
    box.cutRight(12);
    canvas.text(box.cutBottom(Bands::footer), reading.range(), style().caption());
    canvas.text(box.cutBottom(18), reading.description, style().row());
    pictogram(canvas, box.cutRight(40), reading.sky);
    canvas.figure(box, reading.temperature, u"°"_s, style().figure(50));

    const int count = static_cast<int>(std::min<qsizetype>(reading.days.size(), 6));
    for (int index = 0; index < count; ++index) {
        const WeatherReading::Day& day = reading.days[index];
        Box column = days.column(index, 6, 2);
        const TextStyle caption = style().caption().aligned(Align::centre);
        canvas.text(column.cutTop(16), day.initial, caption);
        pictogram(canvas, column.cutTop(22).centred(18, 18), day.sky);
        canvas.text(column.cutTop(18), temperatureIn(day.high, caption, column.width()), caption.coloured(ink));
        canvas.text(column.cutBottom(16), temperatureIn(day.low, caption, column.width()), caption);
        const Box track = column.centred(4, column.height() - 4);
        canvas.fill(track, trackColour, 2);
        const double top = track.bottom() - track.height() * day.highFraction;
        const double bottom = track.bottom() - track.height() * day.lowFraction;
        canvas.fill(Box(track.x(), top, 4, std::max(4.0, bottom - top)), accent3, 2);
    }
}

void GlassSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    eventRows(canvas, *this, framed(canvas, face, reading.day), reading, 36);
}

void GlassSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    Box box = plate(canvas, face);
    const Box cover = box.cutLeft(122).centred(122, 122);
    artwork(canvas, cover, reading.artwork, 14, chipColour, soft);
    canvas.frame(cover, QPen(faded(Qt::white, 0.2), 1), 14);
    box.cutLeft(16);
    box = box.inset(0, 8);
    const TextStyle title = style().header().sized(14);
    trackTexts(canvas, box.cutTop(44), reading, title, style().caption().sized(12));
    controls(canvas, *this, box.cutBottom(26).centred(3 * 44, 26), reading.playing);
    Box times = box.cutBottom(18);
    canvas.text(times, reading.elapsed, style().caption());
    canvas.text(times, reading.total, style().caption().aligned(Align::right));
    capsule(canvas, box.cutBottom(4), reading.progress, trackColour, ink);
}

} // namespace ambrelle
