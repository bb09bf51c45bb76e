// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/atlas/AtlasPieces.h"
#include "skins/atlas/AtlasSkin.h"
#include "skins/atlas/AtlasStyle.h"

#include <array>

namespace ambrelle {

using namespace atlas;

void AtlasSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.high);
    parts(canvas, box.cutTop(12), reading.parts);
    box.cutTop(4);
    partsKey(canvas, *this, box, reading.parts, legendWidth,
        [&](const Box& swatch, qsizetype index) { legendSign(canvas, style(), swatch, static_cast<Sign>(index)); });
}

/// A legend: the sign, what it stands for, and its height.
void AtlasSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr std::array signs{Sign::road, Sign::railway, Sign::wood, Sign::water, Sign::builtUp};
    constexpr double least = 18;
    constexpr double bar = 4;
    const TextStyle height = style().row().coloured(style().accentText());
    rows(framed(canvas, face), reading.rows.size(), signs.size(), least, [&](const Box& row, qsizetype index) {
        const ProcessesReading::Row& process = reading.rows[index];
        Box line = row;
        line.cutBottom(1);
        Box track = line.cutBottom(bar);
        const Box sign = line.cutLeft(legendWidth);
        legendSign(canvas, style(), sign, signs[static_cast<std::size_t>(index)]);
        line.cutLeft(legendGap);
        track.cutLeft(legendWidth + legendGap);
        named(canvas, line, process.name, style().row(), process.percent, height);
        level(canvas, track, process.fraction, style().accent);
    });
}

} // namespace ambrelle
