// SPDX-License-Identifier: MIT

#include "drawing/Fraction.h"
#include "faces/FaceKit.h"
#include "foundation/Wording.h"
#include "skins/quest/QuestBars.h"
#include "skins/quest/QuestPieces.h"
#include "skins/quest/QuestSkin.h"
#include "skins/quest/QuestSprites.h"
#include "skins/quest/QuestStyle.h"
#include "skins/quest/SkySprites.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace quest;

namespace {

constexpr double skyPixel = 3;
constexpr double skySize = 16 * skyPixel;

constexpr int dayCount = 5;
constexpr double slotSize = 34;

constexpr double artworkSize = 120;

Sky skyAt(int hour)
{
    constexpr int sunrise = 6;
    constexpr int sunset = 18;
    return hour >= sunrise && hour < sunset ? Sky::clear : Sky::clearNight;
}

/// Five days as items of a belt; the first one is chosen.
void dayBelt(Canvas& canvas, const SkinStyle& style, const Box& box, const WeatherReading& reading)
{
    const int count = static_cast<int>(std::min<qsizetype>(reading.days.size(), dayCount));
    QList<int> skies;
    for (int index = 0; index < count; ++index)
        skies += static_cast<int>(reading.days[index].sky);
    Box upper = box;
    Box lower = upper.cutBottom(2 * line);
    upper = upper.centred(upper.width(), line + 4 + slotSize);
    const Box names = upper.cutTop(line);
    const Box belt = upper.cutBottom(slotSize);
    canvas.still(
        u"belt"_s, belt.inset(-1),
        [&](Canvas& layer) {
            for (int index = dayCount; index-- > 0;) {
                const Box place = belt.column(index, dayCount);
                itemSlot(layer, place, index == 0 && count > 0, style);
                if (index < count)
                    skySprite(static_cast<Sky>(skies[index])).draw(layer, place, 2);
            }
        },
        skies, style.accent);
    const TextStyle text = style.row().aligned(Align::centre);
    const Box highs = lower.cutTop(line);
    for (int index = 0; index < count; ++index) {
        const WeatherReading::Day& day = reading.days[index];
        const Box column = names.column(index, dayCount);
        canvas.text(column, day.initial, text.coloured(index == 0 ? style.accentText() : style.soft));
        canvas.text(highs.column(index, dayCount), temperatureIn(day.high, text, column.width()), text);
        canvas.text(
            lower.column(index, dayCount), temperatureIn(day.low, text, column.width()), text.coloured(style.soft));
    }
}

/// Twenty blocks over the times.
void playerProgress(Canvas& canvas, const SkinStyle& style, const Box& box, const NowPlayingReading& reading)
{
    constexpr int count = 20;
    Box block = box.centred(box.width(), barHeight + 4 + line);
    const int lit = litOf(reading.progress, count);
    blockBar(canvas, block.cutTop(barHeight), count,
        [&](int index) { return index < lit ? std::optional(style.accent) : std::nullopt; });
    trackTimes(canvas, block.cutBottom(line), reading, style.caption());
}

} // namespace

void QuestSkin::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    constexpr double meridiemGap = 8;
    Box box = framed(canvas, face, style().caps(reading.dateLine()));
    Box side = box.cutRight(56);
    box.cutRight(6);
    const QString day = style().caps(Wording::tr("Day %1", "of the year").arg(reading.dayOfYear));
    canvas.text(side.cutBottom(line), day, style().caption().coloured(style().accentText()).aligned(Align::right));
    canvas.text(box.cutBottom(line), reading.tag(), style().caption());
    skySprite(skyAt(reading.hour24)).play(canvas, side, skyPixel);
    const double width = canvas.figure(box, reading.time(), {}, figure(style().clockCap));
    box.cutLeft(width + meridiemGap);
    const Box foot = box.centred(box.width(), style().clockCap).cutBottom(textSize - 2);
    canvas.text(foot, reading.meridiem, style().row().faced(style().number));
}

void QuestSkin::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    constexpr double cell = 20;
    const Box box = framed(canvas, face, style().caps(reading.month));
    const int lines = (reading.firstColumn + reading.days + 6) / 7 + 1;
    const double pitch = std::min(cell, std::floor(box.height() / lines));
    const Box grid = box.centred(7 * cell, pitch * lines);
    monthGrid(canvas, *this, grid, reading, style().caption().coloured(style().accentText()), style().row());
}

void QuestSkin::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.place);
    dayBelt(canvas, style(), box.cutRight(dayCount * slotSize), reading);
    canvas.text(box.cutBottom(line), reading.range(), style().caption());
    canvas.text(box.cutBottom(line), reading.description, style().row());
    // The sprite's clear margin hangs out, so that what it shows begins with the lines below.
    skySprite(reading.sky).play(canvas, box.cutLeft(skySize - skyPixel).adjusted(-skyPixel, 0, 0, 0), skyPixel);
    box.cutLeft(2);
    largeFigure(canvas, *this, box, {reading.temperature, u"°"_s}, figure(style().temperatureCap).kerned());
}

void QuestSkin::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    constexpr double pitch = 41;
    const Box box = framed(canvas, face, style().caps(reading.day));
    questLog(canvas, box, reading.rows.size(), pitch, [&](Box row, qsizetype index) {
        const EventsReading::Row& event = reading.rows[index];
        row.cutBottom(pitch - 2 * line);
        eventMark(canvas, row, event.colour);
        canvas.text(row.cutTop(line), event.title, style().row());
        canvas.text(row, event.time, value().aligned(Align::left));
    });
}

void QuestSkin::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double gap = 14;
    constexpr double keyHeight = 28;
    constexpr double keyPitch = 52;
    Box box = framed(canvas, face);
    box.cutTop(box.height() - artworkSize);
    cover(canvas, box.cutLeft(artworkSize), reading.artwork);
    box.cutLeft(gap);
    Box texts = box.cutTop(2 * line + 2);
    bob(canvas, note(style().accent), texts.cutRight(18).cutTop(line), 2, {0, -2}, reading.playing);
    texts.cutRight(Bands::gap);
    canvas.text(texts.cutTop(line), reading.title, style().row().faced(style().number));
    canvas.text(texts.cutBottom(line), reading.artist, style().caption());
    controls(canvas, *this, box.cutBottom(keyHeight).centred(3 * keyPitch, keyHeight), reading.playing);
    playerProgress(canvas, style(), box, reading);
}

} // namespace ambrelle
