// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "faces/FaceKit.h"
#include "skins/abyss/AbyssPieces.h"
#include "skins/abyss/AbyssPortholes.h"
#include "skins/abyss/AbyssSkin.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace abyss;

namespace {

constexpr double gutter = 16;

/// Engraved marks that hang from the upper edge of the box, `every` so many a long one.
void ruler(Canvas& canvas, const Box& box, int steps, int every)
{
    QPainterPath marks;
    for (int step = 0; step <= steps; ++step) {
        const double x = box.left() + (box.width() - 1) * step / steps;
        marks.addRect(QRectF(x, box.top(), 1, step % every == 0 ? box.height() : box.height() * 0.55));
    }
    canvas.fill(marks, faded(brassLight, 0.85));
}

/// Today's low and high as the ends of a scale, now where its pointer is.
void barometer(Canvas& canvas, const SkinStyle& style, Box box, const WeatherReading& reading)
{
    constexpr double air = 5;
    const TextStyle caption = style.caption();
    box.cutLeft(canvas.text(box, reading.low, caption) + air);
    box.cutRight(canvas.text(box, reading.high, caption.coloured(style.ink).aligned(Align::right)) + air);
    Box scale = box.centred(box.width(), 12);
    ruler(canvas, scale.cutTop(6), 10, 5);
    canvas.fill(scale.cutTop(1), brassLight);
    if (!reading.nowFraction)
        return;
    const QPointF tip(scale.left() + 2 + (scale.width() - 4) * bounded(*reading.nowFraction), scale.top());
    canvas.fill(straightLine({tip, tip + QPointF(4, 6), tip + QPointF(-4, 6)}), style.accent);
}

} // namespace

void AbyssSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double line = 16;
    Box box = plate(canvas, face);
    chronometer(canvas, style(), box.cutLeft(box.height()).inset(2), reading.hour24, reading.minute);
    box.cutLeft(gutter);
    const QString tag = reading.tag();
    const double captions = line * ((tag.isEmpty() ? 1 : 2) + (reading.meridiem.isEmpty() ? 0 : 1));
    box = box.centred(box.width(), style().clockCap + 4 + 14 + captions);
    const TextStyle caption = style().caption().aligned(Align::centre);
    if (!reading.meridiem.isEmpty())
        canvas.text(box.cutTop(line), reading.meridiem, style().header().coloured(brassLight).aligned(Align::centre));
    canvas.figure(
        box.cutTop(style().clockCap + 4), reading.time(), {}, figure(style().clockCap).kerned().aligned(Align::centre));
    const Box rule = box.cutTop(14).adjusted(0, 2, 0, 0);
    canvas.rule(rule, style().accent, 1);
    rivet(canvas, rule.center(), 2.2);
    canvas.text(box.cutTop(line), style().caps(reading.dateLine()), caption.coloured(style().ink));
    canvas.text(box, tag, caption);
}

void AbyssSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double picture = 52;
    constexpr double temperatureWidth = 79;
    constexpr int most = 5;
    Box box = plate(canvas, face);
    const Box inside = seaView(canvas, box.cutLeft(box.height()).inset(2), reading.sky);
    pictogram(canvas, inside.centred(picture, picture).moved(0, -8), reading.sky);
    box.cutLeft(gutter);
    header(canvas, box, face, reading.place);
    Box now = box.cutTop(style().temperatureCap + 8);
    FigureStyle temperature = figure(style().temperatureCap).kerned();
    temperature.unitFace = style().body; // whose ring is the smaller one
    canvas.figure(now.cutLeft(temperatureWidth), reading.temperature, u"°"_s, temperature);
    if (!reading.high.isEmpty())
        barometer(canvas, style(), now.cutBottom(16), reading);
    canvas.paragraph(now, reading.description, style().row().sized(11.5).wrapped(2), Qt::AlignVCenter);
    dayColumns(box.adjusted(0, 2, 0, 4), reading, most, 2,
        [&](const Box& column, const WeatherReading::Day& day, qsizetype) { dayColumn(canvas, *this, column, day); });
}

void AbyssSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    constexpr double pitch = 38;
    constexpr double bar = 3;
    const Box box = framed(canvas, face, style().caps(reading.day));
    rows(box, reading.rows.size(), 3, pitch, [&](const Box& row, qsizetype index) {
        const EventsReading::Row& event = reading.rows[index];
        Box line = row.centred(row.width(), pitch - 4);
        canvas.fill(line.cutLeft(bar), event.colour, bar / 2);
        line.cutLeft(3);
        canvas.still(u"plate"_s, line.inset(-3), [&](Canvas& layer) { brassPlate(layer, line); });
        const GroundScope ground(canvas, strip);
        const Box room = line.inset(6, 3);
        if (index == 0)
            plateEnd(canvas, room.bottomRight() - QPointF(1, 6), true);
        canvas.text(room.row(0, 2), event.title, struck(style().row()));
        canvas.text(room.row(1, 2), event.time, struck(style().caption()));
    });
}

void AbyssSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 14;
    constexpr double keyPitch = 44;
    const PlayerPlaces places = playerPlaces(plate(canvas, face), 32);
    const Box inside = hydrophone(canvas, places.cover.inset(-10), reading.playing);
    artwork(canvas, inside, reading.artwork, inside.width() / 2, well, style().soft);
    canvas.still(u"glass"_s, inside, [&](Canvas& layer) { glass(layer, inside); });
    trackTexts(canvas, places.texts, reading, style().header().sized(titleSize), style().caption().sized(12));
    Box scale = places.progress;
    ruler(canvas, scale.cutBottom(4), 20, 5);
    level(canvas, scale.moved(0, -2), reading.progress, style().accent);
    trackTimes(canvas, places.times, reading, style().caption());
    controls(canvas, *this, places.controls.centred(3 * keyPitch, places.controls.height()), reading.playing);
}

} // namespace ambrelle
