// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/cork/CorkMarks.h"
#include "skins/cork/CorkSkin.h"
#include "skins/cork/CorkStyle.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace cork;

namespace {

// Highlighters, by charge.
const QColor fullGreen(0x4F, 0xC2, 0x35);
const QColor halfOrange(0xFF, 0x9A, 0x2E);
const QColor emptyPink(0xFF, 0x5C, 0x9C);
constexpr double half = 0.5;

constexpr double axisWidth = 1.3;
constexpr double ringWidth = 11.5;

const QColor& highlighterOf(const BatteryReading& reading)
{
    return reading.low ? emptyPink : reading.level < half ? halfOrange : fullGreen;
}

} // namespace

Box CorkSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double line = 1.9;
    constexpr double scribble = 1.6;
    constexpr double steps = 200; // apart from which nobody sees a difference
    const Box square = box.square();
    const double outer = square.width() / 2 - line;
    const double reached = std::ceil(bounded(fraction) * steps) / steps;
    canvas.still(
        u"dial"_s, square.inset(-1),
        [&](Canvas& layer) {
            const QPointF centre = square.center();
            layer.stroke(drawnRound(centre, outer - ringWidth - 1, 1.02), roundPen(style().faint, 1.2));
            if (reached > 0)
                layer.stroke(
                    scribbledRing(centre, outer - ringWidth, outer - line, reached), roundPen(colour, scribble));
            layer.stroke(drawnRound(centre, outer), roundPen(style().ink, line));
        },
        reached, colour);
    return square.inset(ringWidth + 2 * line);
}

void CorkSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double width = 4;
    const double y = box.center().y();
    const double from = box.left() + width / 2;
    const double to = box.right() - width / 2;
    canvas.still(
        u"level"_s, box.inset(-2, -3),
        [&](Canvas& layer) {
            layer.stroke(straightLine({{from, y + 0.3}, {to, y}}), roundPen(style().faint, width * 0.6));
            if (const double reached = bounded(fraction); reached > 0)
                layer.stroke(straightLine({{from, y}, {from + (to - from) * std::max(0.01, reached), y}}),
                    roundPen(colour, width));
        },
        std::round(bounded(fraction) * 500), colour);
}

void CorkSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr double overshoot = 3;
    canvas.still(u"axes"_s, box.inset(-8), [&](Canvas& layer) {
        QPainterPath axes(box.topLeft() + QPointF(0.5, -overshoot));
        axes.lineTo(box.bottomLeft() + QPointF(-0.5, overshoot));
        axes.moveTo(box.bottomLeft() + QPointF(-overshoot, 0.4));
        axes.lineTo(box.bottomRight() + QPointF(overshoot, -0.4));
        layer.stroke(axes, roundPen(style().soft, axisWidth));
    });
    const QPainterPath line = smoothLine(samplePoints(box.adjusted(0, 0, 0, -axisWidth), history, 1));
    canvas.fill(areaUnder(line, box.bottom()), faded(colour, 0.12));
    canvas.stroke(line, roundPen(colour, 2.4));
    canvas.disc(line.currentPosition(), 3, colour);
}

void CorkSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines = mirrored(box, reading.downHistory, reading.upHistory, reading.peak);
    canvas.fill(areaUnder(lines.upper, lines.middle), faded(style().down, 0.16));
    canvas.fill(areaUnder(lines.lower, lines.middle), faded(style().up, 0.16));
    canvas.still(u"axis"_s, Box(box.x(), lines.middle, box.width(), 0).inset(-3), [&](Canvas& layer) {
        layer.stroke(straightLine({{box.left(), lines.middle + 0.4}, {box.right(), lines.middle - 0.4}}),
            roundPen(style().soft, axisWidth));
    });
    canvas.stroke(lines.upper, roundPen(style().down, 2));
    canvas.stroke(lines.lower, roundPen(style().up, 2));
}

void CorkSkin::rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const
{
    const QColor colour = legible(upwards ? style().up : style().down, style().ink, canvas.ground());
    Box room = box;
    const double size = std::max(11.0, cap * 0.8);
    const Box mark = room.cutLeft(size);
    canvas.still(
        u"arrow"_s, mark.inset(-2),
        [&](Canvas& layer) { drawnArrow(layer, mark.centred(size * 0.7, size), upwards, colour, size * 0.13 + 0.4); },
        upwards, colour);
    room.cutLeft(4);
    canvas.figure(room, rate.value, rate.unit, figure(cap));
}

void CorkSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr double pitch = 3;
    constexpr double line = 1.4;
    const Box bar = box.centred(box.width(), std::min(12.0, box.height())).inset(line / 2);
    QList<double> shares;
    for (const Share& part : parts)
        shares.append(std::round(part.fraction * 500) / 500);
    const auto draw = [&](Canvas& layer) {
        const QList<QBrush> fills = partFills();
        Box rest = bar;
        for (qsizetype index = 0; index < shares.size(); ++index) {
            const QColor colour = fills.value(index).color();
            const Box piece = rest.cutLeft(bar.width() * shares[index]);
            layer.fill(piece, faded(colour, 0.42));
            // Told apart without their colours too.
            hatch(layer, roundedPath(piece, 0),
                index == 0       ? 58
                    : index == 1 ? -58
                                 : 90,
                pitch + 0.8 * static_cast<double>(index), roundPen(colour, line));
            layer.stroke(straightLine({piece.topRight(), piece.bottomRight()}), roundPen(style().ink, 1));
        }
        layer.frame(bar, roundPen(style().ink, line), 2);
    };
    canvas.still(u"parts"_s, bar.inset(-3), draw, shares, style().accent);
}

void CorkSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double nub = 5;
    constexpr double air = 3.5;
    constexpr int strokes = 3;
    const Box whole = box.centred(std::min(112.0, box.width()), std::min(38.0, box.height() - 2));
    Box body = whole;
    body.cutRight(nub + 2);
    body.moveLeft(box.left() + 1);
    const auto draw = [&](Canvas& layer) {
        const Box inside = body.inset(air);
        for (int stroke = 0; stroke < strokes; ++stroke) {
            Box line = inside.row(stroke, strokes).inset(0, -0.8);
            line.setWidth(std::max(3.0, line.width() * bounded(reading.level) - (stroke == 1 ? 0 : 1.5)));
            highlight(layer, line, faded(highlighterOf(reading), 0.9), static_cast<unsigned>(stroke));
        }
        layer.stroke(roundedPath(body, 5), roundPen(style().ink, 2));
        const Box cap(body.right() + 2.5, body.center().y() - 6, nub - 1, 12);
        layer.stroke(roundedPath(cap, 1.5), roundPen(style().ink, 1.8));
    };
    canvas.still(u"battery"_s, whole.inset(-4), draw, reading.percent, reading.low);
    if (!reading.symbol.isEmpty())
        canvas.symbol(body, reading.symbol, 22, style().ink);
}

void CorkSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    const Box square = box.square();
    canvas.still(
        u"sky"_s, square.inset(-2), [&](Canvas& layer) { crayonSky(layer, square, sky, style()); }, sky);
}

TextStyle CorkSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    const double radius = std::min({cell.width(), cell.height() + 4, 20.0}) / 2;
    canvas.disc(cell.center(), radius - 0.6, style().accent);
    canvas.stroke(drawnRound(cell.center(), radius), roundPen(style().accent, 1.4));
    canvas.setGround(style().accent);
    return day.coloured(inkOn(style().accent));
}

void CorkSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const
{
    constexpr double wash = 0.2;
    const Box line = Box(row).centred(row.width(), 13).moved(-2, 0);
    highlight(canvas, Box(line).cutLeft((line.width() + 2) * bounded(fraction)), faded(style().accent, wash),
        static_cast<unsigned>(index));
}

void CorkSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    constexpr double width = 3;
    const Box mark = line.cutLeft(width);
    canvas.still(
        u"event"_s, mark.inset(-2, 0),
        [&](Canvas& layer) {
            const double x = mark.center().x();
            const QPainterPath bar = straightLine({{x - 0.3, mark.top() + 4}, {x + 0.3, mark.bottom() - 4}});
            if (contrast(colour, layer.ground()) < 3) // or it would be lost on its note
                layer.stroke(bar, roundPen(faded(style().ink, 0.35), width + 1.6));
            layer.stroke(bar, roundPen(colour, width));
        },
        colour);
    line.cutLeft(8);
}

void CorkSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 12.5;
    const Box square = box.centred(size, size);
    const auto draw = [&](Canvas& layer) {
        QPainterPath frame(square.topLeft() + QPointF(-0.8, 0.6));
        frame.lineTo(square.topRight() + QPointF(0.6, 0));
        frame.lineTo(square.bottomRight() + QPointF(0, 0.8));
        frame.lineTo(square.bottomLeft() + QPointF(0.4, -0.2));
        frame.lineTo(square.topLeft() + QPointF(0.2, -1));
        layer.stroke(frame, roundPen(style().ink, 1.5));
        if (!done)
            return;
        QPainterPath tick(square.center() + QPointF(-4.2, -0.6));
        tick.lineTo(square.center() + QPointF(-0.6, 3.6));
        tick.lineTo(square.topRight() + QPointF(2.4, -2.2));
        layer.stroke(tick, roundPen(style().accent, 2.4));
    };
    canvas.still(u"check"_s, square.inset(-4), draw, done);
}

void CorkSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    constexpr double radius = 3.4;
    if (lit)
        canvas.disc(box.center(), radius, style().accent);
    canvas.still(
        u"session"_s, squareAbout(box.center(), radius + 2),
        [&](Canvas& layer) { layer.stroke(drawnRound(box.center(), radius + 0.4), roundPen(style().ink, 1.1)); }, lit);
}

void CorkSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const double width = std::min(3.6, column.width() - 0.4);
    const double height = std::max(0.5, column.height() * bounded(fraction) - width);
    const QPointF foot(column.center().x(), column.bottom() - width / 2);
    canvas.stroke(straightLine({foot, foot - QPointF(0, height)}),
        roundPen(now           ? style().accent
                : fraction > 0 ? graphite
                               : style().faint,
            width));
}

void CorkSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    artwork(canvas, box, picture, 1, undeveloped, style().soft);
}

void CorkSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double round = 15;
    if (middle) {
        canvas.still(u"key"_s, squareAbout(box.center(), round + 2),
            [&](Canvas& layer) { layer.stroke(drawnRound(box.center(), round), roundPen(style().accent, 2)); });
    }
    canvas.symbol(box, symbol, middle ? 20 : 22, style().ink);
}

} // namespace ambrelle
