// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/bauhaus/BauhausSkin.h"
#include "skins/bauhaus/BauhausStyle.h"

#include <algorithm>

namespace ambrelle {

using namespace bauhaus;

namespace {

constexpr double warningSize = 14;

} // namespace

void BauhausSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    CpuReading small = reading;
    small.load = style().words(reading.load);
    FaceRenderer::draw(canvas, small, face);
}

void BauhausSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    MemoryReading small = reading;
    for (Share& part : small.parts)
        part.name = style().words(part.name);
    FaceRenderer::draw(canvas, small, face);
}

void BauhausSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double downCap = 32;
    constexpr double upCap = 14;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.down, false, downCap);
    footer(canvas, *this, box, style().words(reading.hint));
    level(canvas, box.cutBottom(beam), reading.share, style().down);
    box.cutBottom(clearance);
    rate(canvas, box.cutBottom(upCap + 2), true, reading.up, upCap);
}

void BauhausSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    constexpr double cap = 24;
    Box box = framed(canvas, face, reading.name);
    canvas.text(box.cutBottom(footerHeight(style())), style().words(reading.freeText()), style().caption());
    box.cutBottom(clearance);
    if (reading.high)
        warning(canvas, Box(box).cutTop(warningSize).cutRight(warningSize));
    const Box inside = progressDial(canvas, box, reading.fraction, valueColour(reading.high));
    const Units::Pair value = reading.figure();
    canvas.figure(inside.inset(2), value.value, value.unit, figure(cap).aligned(Align::centre));
}

void BauhausSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double symbol = 13;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.low);
    Box line = box.cutBottom(footerHeight(style()));
    box.cutBottom(Bands::gap);
    if (!reading.symbol.isEmpty()) {
        canvas.symbol(line.cutLeft(symbol), reading.symbol, symbol, ink);
        line.cutLeft(4);
    }
    canvas.text(line, style().words(reading.line()), style().caption());
    charge(canvas, box, reading);
}

void BauhausSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    Box box = room(canvas, face);
    header(canvas, box, face, headerTitle(style(), face.kind));
    rates(canvas, *this, box.cutTop(style().rateCap + 4), reading);
    box.cutTop(10);
    box.setBottom(face.bounds.bottom() - cornerSmall - clearance / 2);
    traffic(canvas, box, reading);
}

void BauhausSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double least = 20;
    const Box box = framed(canvas, face);
    const TextStyle value = style().header().sized(style().rowSize).aligned(Align::right);
    rows(box, reading.rows.size(), most, least, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        rowLevel(canvas, line, process.fraction, index);
        named(canvas, line, process.name, style().row(), process.percent, value);
    });
}

} // namespace ambrelle
