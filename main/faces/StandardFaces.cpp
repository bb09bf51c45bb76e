// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

// The standard face of each kind that is not shared, laid out from the pieces of the skin.

void FaceRenderer::draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, m_style.caps(reading.dateLine()));
    named(canvas, box.cutBottom(footerHeight(m_style)), reading.tag(), m_style.caption(), reading.meridiem,
        m_style.caption().coloured(m_style.ink));
    canvas.figure(box, reading.time(), {}, figure(m_style.clockCap).kerned());
}

void FaceRenderer::draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, m_style.caps(reading.month));
    monthGrid(canvas, *this, box, reading, m_style.caption(), m_style.caption().coloured(m_style.ink));
}

void FaceRenderer::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.high);
    footer(canvas, *this, box, reading.load);
    history(canvas, box, reading.history, valueColour(reading.high));
}

void FaceRenderer::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.high);
    parts(canvas, box.cutTop(12), reading.parts);
    box.cutTop(4);
    partsKey(canvas, *this, box, reading.parts, partFills());
}

void FaceRenderer::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    constexpr double mark = 14;
    Box box = framed(canvas, face, reading.name);
    Box line = box.cutBottom(footerHeight(m_style));
    if (reading.high)
        warning(canvas, line.cutRight(mark));
    canvas.text(line, reading.freeText(), m_style.caption());
    const Box inside = progressDial(canvas, box.inset(0, 3), reading.fraction, valueColour(reading.high));
    const Units::Pair value = reading.figure();
    canvas.figure(inside.inset(3), value.value, value.unit, figure(26).aligned(Align::centre));
}

void FaceRenderer::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.low);
    footer(canvas, *this, box, reading.line());
    charge(canvas, box, reading);
}

void FaceRenderer::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    rates(canvas, *this, box.cutTop(m_style.rateCap + 4), reading);
    box.cutTop(Bands::gap);
    traffic(canvas, box, reading);
}

void FaceRenderer::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double smaller = 32; // sums are long
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.down, false, std::min(smaller, m_style.heroCap));
    footer(canvas, *this, box, reading.hint);
    rate(canvas, box.cutTop(22), true, reading.up, 16);
    level(canvas, box.centred(box.width(), 4), reading.share, m_style.accent);
}

void FaceRenderer::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    processRows(canvas, *this, framed(canvas, face), reading);
}

void FaceRenderer::draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face, reading.place);
    const Box days = box.cutRight(box.width() * 0.5);
    box.cutRight(12);
    const int most = std::clamp(static_cast<int>(days.width() / (m_style.captionSize * 2.6)), 3, 5);
    weatherNow(canvas, *this, box, reading);
    dayColumns(days, reading, most, 2,
        [&](const Box& column, const WeatherReading::Day& day, qsizetype) { dayColumn(canvas, *this, column, day); });
}

void FaceRenderer::draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const
{
    const Box box = framed(canvas, face, m_style.caps(reading.day));
    eventRows(canvas, *this, box, reading, twoLinePitch(m_style) + 4);
}

void FaceRenderer::draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const
{
    constexpr double titleSize = 14;
    constexpr double keyPitch = 44;
    const PlayerPlaces places = playerPlaces(plate(canvas, face));
    cover(canvas, places.cover, reading.artwork);
    trackLines(canvas, *this, places, reading, m_style.header().sized(std::max(titleSize, m_style.titleSize)));
    const Box keys = places.controls.centred(3 * keyPitch, places.controls.height());
    controls(canvas, *this, keys, reading.playing);
}

} // namespace ambrelle
