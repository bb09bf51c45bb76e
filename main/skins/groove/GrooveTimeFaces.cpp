// SPDX-License-Identifier: MIT

#include "drawing/Charts.h"
#include "faces/FaceKit.h"
#include "skins/groove/GroovePieces.h"
#include "skins/groove/GrooveRecord.h"
#include "skins/groove/GrooveSkin.h"
#include "skins/groove/GrooveStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace groove;

void GrooveSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double labelHeight = 18;
    Box box = framed(canvas, face, reading.dateLine());
    const QString tag = reading.tag();
    if (!tag.isEmpty() || !reading.meridiem.isEmpty()) {
        Box line = Rainbow::of(face).beside(box.cutBottom(labelHeight), face);
        label(canvas, style(), line, reading.meridiem);
        label(canvas, style(), line, tag);
    }
    canvas.figure(box, reading.time(), {}, figure(style().clockCap).kerned());
}

void GrooveSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double daysWidth = 146;
    constexpr double daysHeight = 90; // above the rainbow
    constexpr double gutter = 12;
    constexpr double picture = 58;
    Box box = plate(canvas, face);
    Box texts = Rainbow::of(face).beside(box.cutBottom(rowHeight(style()) + footerHeight(style())), face);
    canvas.text(texts.cutTop(rowHeight(style())), reading.description, style().row());
    canvas.text(texts, reading.range(), style().caption());
    const Box days = box.cutRight(daysWidth).cutTop(daysHeight);
    box.cutRight(gutter);
    header(canvas, box, face, reading.place);
    pictogram(canvas, box.cutRight(picture), reading.sky);
    box.cutRight(Bands::gap);
    canvas.figure(box, reading.temperature, u"°"_s, figure(style().temperatureCap).kerned());
    dayColumns(days, reading, most, 2,
        [&](const Box& column, const WeatherReading::Day& day, qsizetype) { dayColumn(canvas, *this, column, day); });
}

void GrooveSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double record = 124;
    constexpr double armRoom = 24;
    constexpr double keyPitch = 40;
    constexpr double aside = 12; // the first symbol stands flush left
    constexpr double pill = 8;
    constexpr double titleSize = 18;
    Box box = plate(canvas, face);
    recordPlayer(canvas, style(), box.cutLeft(record).centred(record, record), reading);
    box.cutLeft(armRoom);
    const Box keys = box.cutBottom(keyPitch).cutLeft(3 * keyPitch);
    controls(canvas, *this, keys.moved(-aside, 0), reading.playing);
    trackTexts(canvas, box.cutTop(46), reading, style().header().sized(titleSize), style().caption().sized(12));
    box.cutTop(Bands::gap);
    capsule(canvas, box.cutTop(pill), reading.progress, recess, style().accent2);
    box.cutTop(4);
    trackTimes(canvas, box.cutTop(footerHeight(style())), reading, style().caption());
}

void GrooveSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    constexpr double gap = 20; // down to where the rainbow begins
    Box box = framed(canvas, face);
    rates(canvas, *this, Rainbow::of(face).beside(box.cutBottom(style().rateCap + 8), face), reading);
    box.cutBottom(gap);
    traffic(canvas, box, reading);
}

} // namespace ambrelle
