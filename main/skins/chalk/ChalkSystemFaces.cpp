// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/chalk/ChalkMarks.h"
#include "skins/chalk/ChalkSkin.h"
#include "skins/chalk/ChalkStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace chalk;

namespace {

/// Each part of a whole is shaded in its own colour and its own way.
void shaded(Canvas& canvas, const Box& box, qsizetype part, const QColor& colour)
{
    QPainterPath shape;
    shape.addRect(box);
    canvas.fill(box, faded(colour, 0.16));
    const QPen pen = roundPen(colour, 1.2);
    if (part != 1)
        hatch(canvas, shape, 45, part == 2 ? 4.4 : 3, pen);
    if (part != 0)
        hatch(canvas, shape, -45, part == 2 ? 4.4 : 3, pen);
}

const QColor& partColour(const SkinStyle& style, qsizetype part)
{
    return part == 0 ? style.accent : part == 1 ? style.accent2 : style.accent3;
}

void shadedBar(Canvas& canvas, const Box& bar, const QList<double>& shares, const SkinStyle& style)
{
    double x = bar.left();
    for (qsizetype part = 0; part < shares.size(); ++part) {
        const double width = std::min(bar.width() * shares[part], bar.right() - x);
        shaded(canvas, Box(x, bar.y(), width, bar.height()), part, partColour(style, part));
        x += width;
        canvas.line({x, bar.top()}, {x, bar.bottom()}, roundPen(style.ink, 1.2));
    }
    canvas.stroke(boxPath(bar), roundPen(style.ink, usual));
}

} // namespace

void ChalkSkin::draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const
{
    constexpr double cap = 36;
    constexpr double barHeight = 15;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.high, cap);
    box.cutTop(2);
    const Box bar = box.cutTop(barHeight).inset(1, 0);
    QList<double> shares;
    for (const Share& part : reading.parts)
        shares.append(std::round(part.fraction * bar.width()) / bar.width());
    canvas.still(
        u"parts"_s, bar.inset(-3), [&](Canvas& layer) { shadedBar(layer, bar, shares, style()); }, shares);
    box.cutTop(5);
    constexpr double side = 10;
    partsKey(canvas, *this, box, reading.parts, side, [&](const Box& place, qsizetype index) {
        const Box swatch = place.centred(side, side);
        canvas.still(
            u"swatch"_s, swatch.inset(-2),
            [&](Canvas& layer) { shaded(layer, swatch, index, partColour(style(), index)); }, index);
    });
}

void ChalkSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double cap = 36;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.figure(), reading.low, cap);
    footer(canvas, *this, box, reading.line());
    charge(canvas, box, reading);
}

void ChalkSkin::draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const
{
    constexpr int most = 5;
    const Box box = framed(canvas, face);
    processRows(canvas, *this, box, reading, most);
    if (!reading.rows.isEmpty())
        canvas.stroke(loopPath(box.row(0, most).adjusted(-7, -1, 6, -3)), roundPen(style().accent3, 1.3));
}

} // namespace ambrelle
