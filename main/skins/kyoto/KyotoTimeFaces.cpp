// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "faces/FaceKit.h"
#include "faces/Pictogram.h"
#include "skins/kyoto/KyotoPieces.h"
#include "skins/kyoto/KyotoSkin.h"
#include "skins/kyoto/KyotoStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace kyoto;

namespace {

constexpr double gutter = 16;

/// Sun, moon, fire, water, wood, metal, earth; the week begins on Monday.
QString weekdaySign(int number)
{
    static const QString signs = u"月火水木金土日"_s;
    return signs.mid((number + 6) % 7, 1);
}

/// A temperature, its sign drawn with the brush.
void degrees(Canvas& canvas, Box box, const QString& value, FigureStyle figure)
{
    constexpr double ring = 11;
    constexpr double brush = 2;
    constexpr double air = 4;
    const Box sign = box.cutRight(ring + air);
    figure.cap = figurePath(value, {}, figure, box.width()).cap;
    const double width = canvas.figure(box, value, {}, figure);
    const double top = box.center().y() - figure.cap / 2;
    enso(canvas, {box.left() + width + air, top, ring, sign.width() - air}, 0.94, brush, *figure.unitColour);
}

} // namespace

void KyotoSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double circle = 100;
    constexpr double brush = 11;
    constexpr double closed = 0.95;
    constexpr double sign = 60;
    constexpr double raised = 5; // above the middle, for the seal
    Box box = plate(canvas, face);
    box.setBottom(face.bounds.bottom() - style().inset);
    const Box column = box.cutRight(circle);
    const Box ring = column.centred(circle, circle).moved(0, -raised);
    canvas.still(u"enso"_s, ring.inset(-1), [&](Canvas& layer) { enso(layer, ring, closed, brush, style().ink); });
    kanji(canvas, ring, weekdaySign(reading.weekdayNumber), sign, style().ink, 0.3);
    box.cutRight(gutter);
    canvas.text(box.cutTop(headerLine), reading.dateLine(), style().header());
    Box line = box.cutBottom(footerHeight(style()));
    const TextStyle caption = style().caption();
    if (const double width = canvas.text(line, reading.meridiem, caption.coloured(style().ink)); width > 0)
        line.cutLeft(width + Bands::gap);
    canvas.text(line, reading.tag(), caption);
    canvas.figure(box, reading.time(), {}, figure(style().clockCap).kerned());
}

void KyotoSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double daysWidth = 150;
    constexpr int most = 5;
    constexpr double sign = 56;
    constexpr double smallSign = 20;
    constexpr double picture = 16;
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(daysWidth);
    box.cutRight(gutter);
    const double line = style().captionSize + 5;
    canvas.text(box.cutBottom(line), reading.range(), style().caption());
    canvas.text(box.cutBottom(line), reading.description, style().row());
    pictogram(canvas, box.cutRight(sign), reading.sky);
    box.cutRight(Bands::gap);
    degrees(canvas, box, reading.temperature, figure(style().temperatureCap).kerned());
    const TextStyle caption = style().caption().aligned(Align::centre);
    dayColumns(days, reading, most, 2, [&](Box column, const WeatherReading::Day& day, qsizetype) {
        const TextStyle high = caption.coloured(style().ink);
        canvas.text(column.cutBottom(line), temperatureIn(day.low, caption, column.width()), caption);
        canvas.text(column.cutBottom(line), temperatureIn(day.high, high, column.width()), high);
        canvas.text(column.cutTop(line), day.initial, caption);
        Box signs = column.centred(smallSign, smallSign + picture);
        pictogram(canvas, signs.cutTop(smallSign), day.sky);
        // For those who do not read the sign.
        drawPictogram(canvas, signs.centred(picture, picture), day.sky,
            {.sun = style().accent,
                .moon = style().accent2,
                .cloud = faded(style().ink, 0.45),
                .water = style().ink,
                .bolt = style().accent});
    });
}

void KyotoSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, style().caps(reading.day));
    eventRows(canvas, *this, box, reading, twoLinePitch(style()));
}

void KyotoSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 15;
    constexpr double keyPitch = 40;
    plate(canvas, face);
    const PlayerPlaces places = playerPlaces(face.bounds.inset(style().inset));
    cover(canvas, places.cover, reading.artwork);
    trackLines(canvas, *this, places, reading, style().header().sized(titleSize));
    controls(canvas, *this, places.controls.centred(3 * keyPitch, places.controls.height()), reading.playing);
}

} // namespace ambrelle
