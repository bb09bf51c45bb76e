// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/groove/GroovePieces.h"
#include "skins/groove/GrooveSkin.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace groove;

void GrooveSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    constexpr double cap = 26;
    constexpr double mark = 14;
    Box box = framed(canvas, face, reading.name);
    canvas.text(
        Rainbow::of(face).beside(box.cutBottom(footerHeight(style())), face), reading.freeText(), style().caption());
    box.cutBottom(4);
    if (reading.high) // in the opening of the dial
        warning(canvas, Box(box).cutBottom(mark));
    const Box inside = progressDial(canvas, box, reading.fraction, valueColour(reading.high));
    const Units::Pair value = reading.figure();
    canvas.figure(inside.inset(3, 0), value.value, value.unit, figure(cap).aligned(Align::centre));
}

void GrooveSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double downCap = 34;
    constexpr double upCap = 15;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.down, false, downCap);
    Box narrow = Rainbow::of(face).beside(box, face);
    footer(canvas, *this, narrow, reading.hint);
    box.setBottom(narrow.bottom());
    rate(canvas, box.cutTop(upCap + 6), true, reading.up, upCap);
    box.cutTop(3);
    level(canvas, box, reading.share, style().down);
}

void GrooveSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    constexpr double pill = 16;
    const Box box = framed(canvas, face);
    const TextStyle text = style().row();
    double values = 0;
    for (const ProcessesReading::Row& process : reading.rows)
        values = std::max(values, shape(text.face, text.size, process.percent)->width);
    rows(box, reading.rows.size(), most, pill + 2, [&](const Box& row, qsizetype index) {
        const QColor& fill = index % 2 == 0 ? style().accent : style().accent2;
        processPill(canvas, style(), row.centred(row.width(), pill), reading.rows[index], fill, values);
    });
}

} // namespace ambrelle
