// SPDX-License-Identifier: MIT

#include "faces/FaceKit.h"
#include "skins/kyoto/KyotoPieces.h"
#include "skins/kyoto/KyotoSkin.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace kyoto;

void KyotoSkin::draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const
{
    constexpr double cap = 24;
    constexpr double mark = 14;
    Box box = framed(canvas, face, reading.name);
    Box line = box.cutBottom(footerHeight(style()));
    if (reading.high)
        warning(canvas, line.cutRight(mark));
    canvas.text(line, reading.freeText(), style().caption());
    const Box inside =
        dialOf(canvas, box.inset(0, 2), reading.fraction, reading.high ? style().warn : style().ink).inset(3);
    const Units::Pair value = reading.figure();
    canvas.figure(inside, value.value, value.unit, figure(cap).aligned(Align::centre));
}

void KyotoSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double cap = 36;
    constexpr double stalk = 10; // width
    constexpr double between = 10;
    constexpr double sign = 24;
    Box box = plate(canvas, face);
    const Box grove = box.cutRight(stalk);
    charge(canvas, grove.adjusted(0, 0, 0, -6), reading);
    box.cutRight(between);
    header(canvas, box, face, headerTitle(style(), face.kind));
    hero(canvas, *this, box, reading.figure(), false, cap);
    footer(canvas, *this, box, reading.line());
    if (reading.charging)
        kanji(canvas, box.cutLeft(2 * sign + 4), u"充電"_s, sign, style().ink, 0.3);
    if (reading.low)
        warning(canvas, box.cutLeft(14));
}

} // namespace ambrelle
