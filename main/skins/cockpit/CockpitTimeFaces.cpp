// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/cockpit/CockpitPieces.h"
#include "skins/cockpit/CockpitSkin.h"
#include "skins/cockpit/WeatherRadar.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace cockpit;

namespace {

constexpr double dialSize = 118;

ClockHands clockHands(const SkinStyle& style)
{
    ClockHands hands = ClockHands::plain(dialSize / 2 - 5, style.ink, style.accent);
    for (Needle* hand : {&hands.hour, &hands.minute}) {
        hand->round = true;
        hand->shadow = faded(Qt::black, 0.5);
    }
    return hands;
}

/// The dial of the clock: sixty ticks and four of its hours.
void clockFace(Canvas& canvas, const SkinStyle& style, const Box& box)
{
    const Gauge dial = Gauge::in(box.inset(1), 0, 360);
    const double r = dial.radius;
    canvas.disc(dial.centre, r, radial(dial.centre, r, {{0, panel}, {0.7, well}, {1, well}}));
    roundRim(canvas, dial);
    const Gauge scale{.centre = dial.centre, .radius = r - 4, .start = 0, .sweep = 360};
    scale.ticks(canvas, 60, 5, {8, flatPen(style.ink, 2)}, {4, flatPen(style.soft, 1)});
    const GroundScope ground(canvas, well);
    scale.numerals(canvas, {u"12"_s, u"3"_s, u"6"_s, u"9"_s}, r - 20, style.caption().sized(12).coloured(style.ink));
}

/// The coming days, ruled.
void dayTable(Canvas& canvas, const FaceRenderer& skin, const Box& table, const WeatherReading& reading)
{
    constexpr int most = 6;
    constexpr double temperatureWidth = 27;
    constexpr double picture = 16;
    const SkinStyle& style = skin.style();
    const TextStyle text = style.caption().sized(10);
    dayRows(table, reading, most, [&](Box row, const WeatherReading::Day& day, qsizetype index) {
        if (index > 0)
            canvas.rule(Box(row.x(), row.y() - 0.5, row.width(), 1), style.faint, 1);
        const auto degrees = [&](const QString& value, const QColor& colour) {
            const Box cell = row.cutRight(temperatureWidth);
            canvas.text(cell, temperatureIn(value, text, cell.width()), text.coloured(colour).aligned(Align::right));
        };
        degrees(day.low, style.soft);
        degrees(day.high, style.ink);
        skin.pictogram(canvas, row.cutRight(picture + 2).centred(picture, picture), day.sky);
        canvas.text(row, day.name, text.coloured(index == 0 ? green : style.soft));
    });
}

} // namespace

void CockpitSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double gutter = 16;
    Box box = framed(canvas, face);
    const Box dial = box.cutLeft(dialSize + 2).centred(dialSize, dialSize);
    box.cutLeft(gutter);
    canvas.still(u"dial"_s, dial.inset(-1), [&](Canvas& layer) { clockFace(layer, style(), dial); });
    clockHands(style()).draw(canvas, dial.center(), reading.hour24, reading.minute, reading.second);

    Box upper = box.cutTop(16);
    const TextStyle caption = style().caption();
    upper.cutLeft(canvas.text(upper, u"UTC"_s, caption) + Bands::gap);
    const double utc = canvas.text(upper, reading.utc, caption.coloured(green));
    upper.cutLeft(utc + Bands::gap);
    canvas.text(upper, reading.meridiem, caption.coloured(style().ink).aligned(Align::right));
    box.cutTop(2);
    const QString place = reading.tag();
    canvas.text(box.cutBottom(17), place.isEmpty() ? reading.zone : place, caption.coloured(style().accent3));
    canvas.text(box.cutBottom(17), reading.dateLine(), style().row());
    box.cutBottom(3);
    canvas.still(u"time"_s, box, [&](Canvas& layer) { window(layer, box, 4); });
    const GroundScope ground(canvas, well);
    canvas.figure(box.inset(8, 0), reading.time(), {}, figure(style().clockCap).aligned(Align::centre));
}

void CockpitSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    constexpr double tableWidth = 100;
    constexpr double largestPicture = 36;
    Box box = framed(canvas, face, reading.place);
    weatherRadar(canvas, style(), box.cutLeft(box.height()), reading.sky);
    box.cutLeft(12);
    const Box table = box.cutRight(tableWidth);
    box.cutRight(8);
    const Box now = box.cutTop(style().temperatureCap + 4);
    canvas.figure(now, reading.temperature, u"°"_s, figure(style().temperatureCap));
    box.cutTop(Bands::gap);
    canvas.text(box.cutBottom(14), reading.range(), style().caption().coloured(green));
    box.cutTop(canvas.paragraph(box, reading.description, style().caption().coloured(style().ink).wrapped(2)));
    const double picture = std::min(largestPicture, box.height());
    pictogram(canvas, Box(box).cutLeft(picture), reading.sky);
    dayTable(canvas, *this, table, reading);
}

void CockpitSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    constexpr double pitch = 40;
    const Box box = framed(canvas, face, style().caps(reading.day));
    rows(box, reading.rows.size(), 3, pitch, [&](const Box& row, qsizetype index) {
        const EventsReading::Row& event = reading.rows[index];
        const Box frame = row.centred(row.width(), pitch - 3);
        const std::optional<QColor> light = index == 0 ? std::optional(amber) : std::nullopt;
        const GroundScope ground(canvas, annunciator(canvas, frame, light));
        Box line = frame.inset(4, 4);
        canvas.fill(line.cutLeft(3), event.colour, 1.5);
        line = line.adjusted(6, 0, 0, 0);
        canvas.text(line.row(0, 2), event.title, style().row().sized(11.5).coloured(light.value_or(style().ink)));
        canvas.text(line.row(1, 2), event.time, style().caption());
    });
}

void CockpitSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 14;
    constexpr double keyHeight = 30;
    constexpr double knobSize = 36;
    Box box = framed(canvas, face);
    cover(canvas, box.cutLeft(box.height()), reading.artwork);
    box.cutLeft(12);
    const Box display = box.cutTop(50);
    canvas.still(u"display"_s, display, [&](Canvas& layer) { window(layer, display); });
    {
        const GroundScope ground(canvas, well);
        const TextStyle title = style().row().sized(titleSize).coloured(style().accent2);
        trackTexts(canvas, display.inset(9, 4), reading, title, style().caption().sized(11));
    }
    Box keys = box.cutBottom(knobSize);
    const Box turning = keys.cutRight(knobSize);
    canvas.still(u"knob"_s, turning.inset(-3), [&](Canvas& layer) { knob(layer, turning); });
    keys.cutRight(10);
    controls(canvas, *this, keys.centred(keys.width() + 4, keyHeight), reading.playing);
    box.cutBottom(4);
    box.cutTop(8);
    level(canvas, box.cutTop(6), reading.progress, style().accent);
    trackTimes(canvas, box, reading, style().caption());
}

} // namespace ambrelle
