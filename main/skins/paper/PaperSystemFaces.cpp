// SPDX-License-Identifier: MIT

#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/paper/PaperPieces.h"
#include "skins/paper/PaperSkin.h"
#include "skins/paper/PaperStyle.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace paper;

void PaperSkin::draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    canvas.text(footLine(canvas, style(), box), reading.load, style().caption());
    hero(canvas, *this, box, reading.figure(), reading.high);
    box.cutTop(2);
    history(canvas, box, reading.history, valueColour(reading.high));
}

void PaperSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    constexpr double swatchWidth = 12;
    constexpr double swatchHeight = 7;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.high);
    box.cutTop(2);
    parts(canvas, box.cutTop(9), reading.parts);
    box.cutTop(5);
    partsKey(canvas, *this, box, reading.parts, swatchWidth, [&](const Box& place, qsizetype index) {
        const Box swatch = place.centred(swatchWidth, swatchHeight);
        partInk(canvas, style(), swatch, index);
        canvas.frame(swatch, flatPen(style().ink, Rules::light));
    });
}

void PaperSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    constexpr double cap = 26;
    constexpr double markWidth = 14;
    Box box = framed(canvas, face, reading.name);
    Box line = footLine(canvas, style(), box);
    if (reading.high)
        warning(canvas, line.cutRight(markWidth));
    canvas.text(line, reading.freeText(), style().caption());
    const Box inside = progressDial(canvas, box, reading.fraction, valueColour(reading.high));
    const Units::Pair value = reading.figure();
    canvas.figure(inside.inset(3), value.value, value.unit, figure(cap).aligned(Align::centre));
}

void PaperSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double stateLine = 16;
    constexpr double symbolSize = 13;
    Box box = framed(canvas, face);
    const TextStyle caption = style().caption();
    const bool worded = elided(reading.about, caption, box.width()) == reading.about;
    const QString& about = worded ? reading.about : reading.remaining;
    Box line = footLine(canvas, style(), box);
    if (!about.isEmpty()) {
        canvas.text(line, about, caption);
        line = box.cutBottom(stateLine);
        box.cutBottom(2);
    }
    if (!reading.symbol.isEmpty())
        canvas.symbol(line.cutRight(symbolSize), reading.symbol, symbolSize, style().ink);
    canvas.text(line, reading.state, italic(style(), style().rowSize));
    hero(canvas, *this, box, reading.figure(), reading.low);
    charge(canvas, box, reading);
}

/// Both rates at the size that fits the longer one, since they matter alike.
void PaperSkin::draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const
{
    constexpr double gutter = 10;
    constexpr double arrow = 22; // with the gap to its figure
    Box box = framed(canvas, face);
    const Box line = box.cutTop(style().rateCap + 2);
    double cap = style().rateCap;
    const double room = line.column(0, 2, 2 * gutter).width() - arrow;
    for (const Units::Pair& rate : {reading.down, reading.up})
        cap = std::min(cap, figurePath(rate.value, rate.unit, figure(style().rateCap), room).cap);
    rate(canvas, line.column(0, 2, 2 * gutter), false, reading.down, cap);
    rate(canvas, line.column(1, 2, 2 * gutter), true, reading.up, cap);
    box.cutTop(Bands::gap);
    traffic(canvas, box, reading);
}

void PaperSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double downCap = 44;
    constexpr double upCap = 26;
    constexpr double downShare = 0.55; // of the width
    constexpr double gutter = 12;
    Box box = framed(canvas, face);
    canvas.text(footLine(canvas, style(), box), reading.hint, style().caption());
    level(canvas, box.cutBottom(9), reading.share, style().accent);
    box.cutBottom(Bands::gap);
    rate(canvas, box.cutLeft(box.width() * downShare), false, reading.down, downCap);
    columnRule(canvas, box.cutLeft(2 * gutter).inset(0, Bands::gap), style().ink, Rules::light);
    rate(canvas, box, true, reading.up, upCap);
}

/// A ranking: the place, the name, and dots that lead to the value.
void PaperSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double least = 18;
    constexpr double air = 5;
    rows(framed(canvas, face), reading.rows.size(), most, least, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        const TextStyle text = index == 0 ? bold(style(), style().rowSize) : style().row();
        Box line = row;
        rowMark(canvas, line, index);
        line.cutRight(canvas.text(line, process.percent, text.aligned(Align::right)) + air);
        const double name = canvas.text(line, process.name, text);
        dottedLeader(canvas, line.left() + name + air, line.right(), Canvas::baseline(line, text), style().soft);
    });
}

} // namespace ambrelle
