// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/grove/GrovePieces.h"
#include "skins/grove/GroveSkin.h"

namespace ambrelle {

using namespace grove;

namespace {

constexpr double besidePlants = 36; // height of figures above a drawing that wants room

} // namespace

void GroveSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    constexpr double bar = 13;
    constexpr double swatch = 13;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.high, besidePlants);
    box.cutTop(2);
    parts(canvas, box.cutTop(bar), reading.parts);
    box.cutTop(4);
    partsKey(canvas, *this, box, reading.parts, swatch, [&](const Box& place, int index) {
        partTint(canvas, blade(place.centred(swatch, 8)), index, partFills().value(index).color());
    });
}

void GroveSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.low, besidePlants);
    footer(canvas, *this, box, reading.line());
    charge(canvas, box, reading);
}

void GroveSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double least = 18;
    rows(framed(canvas, face), reading.rows.size(), most, least, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        rowLevel(canvas, line, process.fraction, index);
        rowMark(canvas, line, index);
        named(canvas, line, process.name, style().row(), process.percent, style().row());
    });
}

} // namespace ambrelle
