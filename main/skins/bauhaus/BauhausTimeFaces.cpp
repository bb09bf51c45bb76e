// SPDX-License-Identifier: MIT

#include "drawing/Fraction.h"
#include "faces/FaceKit.h"
#include "skins/bauhaus/BauhausPieces.h"
#include "skins/bauhaus/BauhausSkin.h"
#include "skins/bauhaus/BauhausStyle.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace bauhaus;

void BauhausSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double dialSize = 84;
    constexpr double gap = 10;
    Box box = room(canvas, face);
    Box beside = box.cutRight(dialSize);
    box.cutRight(gap);
    header(canvas, box, face, style().caps(reading.dateLine()));
    Box footer = box.cutBottom(footerHeight(style()));
    if (!reading.meridiem.isEmpty())
        footer.cutLeft(canvas.text(footer, style().caps(reading.meridiem), style().header()) + clearance);
    canvas.text(footer, reading.tag(), style().caption());
    canvas.figure(box, reading.time(), {}, figure(style().clockCap).kerned());
    clockDial(canvas, Box(beside.x(), box.center().y() - dialSize / 2, dialSize, dialSize), reading, style().accent);
}

void BauhausSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    CalendarReading small = reading;
    for (QString& weekday : small.weekdays)
        weekday = style().caps(weekday);
    FaceRenderer::draw(canvas, small, face);
}

void BauhausSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double dayWidth = 28;
    constexpr double picture = 48;
    constexpr double gap = 18;
    Box box = room(canvas, face);
    header(canvas, box, face, reading.place);
    Box texts = box.cutBottom(rowHeight(style()) + footerHeight(style()));
    texts.setRight(face.bounds.right() - cornerMedium - clearance);
    canvas.text(texts.cutTop(rowHeight(style())), style().words(reading.description), style().row());
    canvas.text(texts, reading.range(), style().caption());
    Box days = box.cutRight(most * dayWidth);
    days.cutBottom(4);
    box.cutRight(gap);
    pictogram(canvas, box.cutRight(picture), reading.sky);
    box.cutRight(Bands::gap);
    canvas.figure(box, reading.temperature, u"°"_s, figure(style().temperatureCap).kerned());
    dayColumns(days, reading, most, 2, [&](const Box& column, WeatherReading::Day day, qsizetype) {
        day.initial = style().caps(day.initial);
        dayColumn(canvas, *this, column, day);
    });
}

void BauhausSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double record = 122;
    constexpr double keyPitch = 40;
    constexpr double slider = 10;
    Box box = room(canvas, face);
    cover(canvas, box.cutLeft(record).centred(record, record), reading.artwork);
    box.cutLeft(18);
    trackTexts(canvas, box.cutTop(46), reading, style().header().sized(15), style().caption().sized(12));
    const Box keys = box.cutBottom(34).cutLeft(3 * keyPitch);
    controls(canvas, *this, keys.moved((keySize - keyPitch) / 2, 0), reading.playing); // the first one flush left
    const Box progress = box.cutTop(26);
    level(canvas, progress, reading.progress, ink);
    const double way = (progress.width() - slider) * bounded(reading.progress);
    flat(canvas, Box(progress.x() + way, progress.center().y() - slider / 2, slider, slider), style().accent);
    const Box times = box.cutTop(footerHeight(style()));
    named(canvas, times, reading.elapsed, style().caption(), reading.total, style().caption());
}

} // namespace ambrelle
