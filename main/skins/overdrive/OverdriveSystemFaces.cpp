// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/overdrive/OverdrivePieces.h"
#include "skins/overdrive/OverdriveSkin.h"
#include "skins/overdrive/OverdriveStyle.h"

#include <algorithm>

namespace ambrelle {

using namespace overdrive;

void OverdriveSkin::tearHero(
    Canvas& canvas, const FaceContext& face, const Units::Pair& value, bool marked, double cap) const
{
    // The band that `hero` takes below the header.
    constexpr double mark = 14;
    Box band = content(face).adjusted(0, headerHeight + style().titleGap, 0, 0);
    band.setHeight(cap + std::clamp(Bands::hero - cap, 2.0, 4.0));
    if (marked)
        band.cutRight(mark + Bands::gap);
    Glitch{.ground = plateColour, .seed = glitchSeed(face.kind)}.draw(canvas, band, value, figure(cap));
}

void OverdriveSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    FaceRenderer::draw(canvas, reading, face);
    tearHero(canvas, face, reading.figure(), reading.high, style().heroCap);
}

void OverdriveSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    FaceRenderer::draw(canvas, reading, face);
    tearHero(canvas, face, reading.figure(), reading.high, style().heroCap);
}

void OverdriveSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    constexpr double cap = 34;
    constexpr double mark = 14;
    constexpr double air = 4; // between the figure and the blocks
    Box box = framed(canvas, face, reading.name);
    Box line = box.cutBottom(footerHeight(style()));
    if (reading.high)
        warning(canvas, line.cutRight(mark));
    canvas.text(line, reading.freeText(), style().caption());
    const Box inside = progressDial(canvas, box.inset(0, 2), reading.fraction, valueColour(reading.high)).inset(air);
    const FigureStyle percent = figure(cap).aligned(Align::centre);
    const Units::Pair value = reading.figure();
    canvas.figure(inside, value.value, value.unit, percent);
    Glitch{.ground = plateColour, .seed = glitchSeed(face.kind)}.draw(canvas, inside, value, percent);
}

void OverdriveSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    FaceRenderer::draw(canvas, reading, face);
    tearHero(canvas, face, reading.figure(), reading.low, style().heroCap);
}

void OverdriveSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double sumCap = 32;
    FaceRenderer::draw(canvas, reading, face);
    tearHero(canvas, face, reading.down, false, sumCap);
}

void OverdriveSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double least = 22;
    constexpr double valueSize = 15;
    const Box box = framed(canvas, face);
    rows(box, reading.rows.size(), most, least, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box text = row;
        rowLevel(canvas, text, process.fraction, index);
        rowMark(canvas, text, index);
        named(canvas, text, process.name, style().row(), process.percent,
            readOut(style(), valueSize, style().accentText()));
    });
}

} // namespace ambrelle
