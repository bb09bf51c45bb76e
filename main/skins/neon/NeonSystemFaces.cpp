// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/neon/NeonPieces.h"
#include "skins/neon/NeonSkin.h"
#include "skins/neon/NeonStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace neon;

void NeonSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double chromeCap = 44;
    Box box = framed(canvas, face);
    Box band = box.cutTop(chromeCap + 2);
    if (reading.low)
        warning(canvas, band.cutRight(14));
    polished(canvas, band, reading.figure(), figure(chromeCap));
    box.cutTop(Bands::gap);
    footer(canvas, *this, box, reading.line());
    charge(canvas, box, reading);
}

void NeonSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double downCap = 42;
    constexpr double upCap = 26;
    constexpr double downShare = 0.56; // of the width
    Box box = framed(canvas, face);
    footer(canvas, *this, box, reading.hint);
    partTubes(canvas, box.cutBottom(8), {{reading.share, style().down}, {1 - reading.share, style().up}}, trackColour);
    box.cutBottom(8);
    const Box down = box.cutLeft(box.width() * downShare);
    box.cutLeft(12);
    rate(canvas, down, false, reading.down, downCap);
    rate(canvas, box.moved(0, (downCap - upCap) / 2), true, reading.up, upCap);
}

void NeonSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double least = 18;
    const Box box = framed(canvas, face);
    rows(box, reading.rows.size(), most, least, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        rowLevel(canvas, line, process.fraction, index);
        rowMark(canvas, line, index);
        named(canvas, line, process.name, style().row(), process.percent, style().rowValue().coloured(style().accent2));
    });
}

} // namespace ambrelle
