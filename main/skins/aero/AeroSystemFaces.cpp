// SPDX-License-Identifier: MIT

#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "faces/FaceKit.h"
#include "skins/aero/AeroPieces.h"
#include "skins/aero/AeroSkin.h"
#include "skins/aero/AeroStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace aero;

namespace {

constexpr double chargeCap = 28;

const QColor& chargeColour(const SkinStyle& style, const BatteryReading& reading)
{
    constexpr double little = 0.3;
    constexpr double nearlyNothing = 0.12;
    if (reading.level < nearlyNothing)
        return coral;
    return reading.level < little ? style.accent3 : style.accent2;
}

/// The figure in the middle of a box that is filled in part: dark on the filling, light beside it.
void twoToned(
    Canvas& canvas, const Box& box, const QPainterPath& filling, const Units::Pair& value, const FigureStyle& figure)
{
    QPainterPath beside = roundedPath(box, 0);
    beside = beside.subtracted(filling);
    const GroundScope empty(canvas, over(faded(deep, 0.4), canvas.ground()));
    canvas.within(beside, [&] { canvas.figure(box, value.value, value.unit, figure); });
    const FigurePath path = figurePath(value.value, value.unit, figure, box.width());
    const QPointF pen(box.center().x() - path.width / 2, box.center().y() + path.cap / 2);
    canvas.within(filling, [&] {
        canvas.fill(path.digits.translated(pen), deep);
        canvas.fill(path.unit.translated(pen), deep);
    });
}

/// Bubbles on both sides of a figure in the middle of a box that is filled as far as `filled`.
void bubblesBeside(Canvas& canvas, const Box& box, double filled, double figure)
{
    constexpr double air = 2;
    const Box room = box.inset(box.height() / 5, air);
    const double side = (room.width() - figure) / 2 - air;
    int seed = 3;
    for (Box gel : {Box(room).cutLeft(side), Box(room).cutRight(side)}) {
        gel.setRight(std::min(gel.right(), filled));
        risingBubbles(canvas, gel, seed++);
    }
}

} // namespace

void AeroSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double height = 52;
    constexpr double terminal = 6;
    constexpr double glass = 3;
    Box body = box.centred(box.width(), std::min(height, box.height()));
    const Box end = body.cutRight(terminal).adjusted(-2, height * 0.32, 0, -height * 0.32);
    const Box inside = body.inset(glass);
    const double radius = inside.height() / 2;
    Box filled = Box(inside).cutLeft(inside.width() * bounded(reading.level));
    filled.setLeft(std::min(filled.left(), filled.right() - 2 * radius)); // a drop as round as the glass
    FigureStyle percent = style().figure(chargeCap).aligned(Align::centre);
    percent.face = style().body;
    const Units::Pair value = reading.figure();
    const auto draw = [&](Canvas& layer) {
        const QPainterPath filling = roundedPath(filled, radius).intersected(roundedPath(inside, radius));
        layer.fill(end, wash(end, sky, 0.6, 0.25), 2.5);
        well(layer, body, body.height() / 2);
        layer.frame(body, QPen(wash(body, sky, 0.35, 0.7), 1), body.height() / 2);
        layer.within(filling, [&] { gel(layer, filled, chargeColour(style(), reading)); });
        twoToned(layer, inside, filling, value, percent);
    };
    canvas.still(u"charge"_s, box.inset(-2), draw, reading.percent, reading.level);
    const double width = figureWidth(value.value, value.unit, percent, inside.width());
    bubblesBeside(canvas, inside, std::min(filled.right(), inside.right()) - radius / 2, width);
}

void AeroSkin::draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const
{
    constexpr double mark = 14;
    Box box = framed(canvas, face);
    canvas.text(box.cutBottom(footerHeight(style())), reading.remaining, style().caption());
    Box state = box.cutBottom(rowHeight(style()));
    if (reading.low)
        warning(canvas, state.cutRight(mark));
    else if (!reading.symbol.isEmpty())
        canvas.symbol(state.cutRight(mark), reading.symbol, mark, style().accent3);
    canvas.text(state, reading.state, style().row());
    charge(canvas, box, reading);
}

void AeroSkin::draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const
{
    constexpr double downCap = 32;
    constexpr double upCap = 16;
    Box box = framed(canvas, face);
    hero(canvas, *this, box, reading.down, false, downCap);
    footer(canvas, *this, box, reading.hint);
    rate(canvas, box.cutTop(upCap + 6), true, reading.up, upCap);
    risingBubbles(canvas, gelBar(canvas, box.centred(box.width(), barHeight), reading.share, style().down), 1);
}

} // namespace ambrelle
