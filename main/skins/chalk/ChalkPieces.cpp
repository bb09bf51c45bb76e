// SPDX-License-Identifier: MIT

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "faces/FaceKit.h"
#include "skins/chalk/ChalkBoard.h"
#include "skins/chalk/ChalkMarks.h"
#include "skins/chalk/ChalkSkin.h"
#include "skins/chalk/ChalkStyle.h"
#include "skins/chalk/ChalkWeather.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace chalk;

namespace {

constexpr double handwritten = 20; // cap below which sketched figures turn to dust
constexpr double smear = 0.16; // opacity of chalk rubbed into a hatched area
constexpr double rising = 45; // degrees of hatching
constexpr double rowIndent = 16; // of names behind their boxes
constexpr double arrowRoom = 0.5; // width of a drawn arrow in parts of the cap beside it

} // namespace

ChalkSkin::ChalkSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

Box ChalkSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"board"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        const auto seed = static_cast<unsigned>(face.kind);
        drawBoard(layer, face.bounds, style().corner, seed);
        if (face.kind != WidgetKind::photo) // whose print would lie over it
            drawStick(layer, face.bounds, seed);
    });
    return face.bounds.inset(style().inset);
}

void ChalkSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    canvas.text(content.cutTop(14), title, heading(style()));
    content.cutTop(style().titleGap);
}

Box ChalkSkin::photoPlate(Canvas& canvas, const FaceContext& face) const
{
    constexpr double passepartout = 2.5;
    plate(canvas, face);
    const Box picture = face.bounds.inset(photoMat());
    canvas.fill(picture.inset(-passepartout), print, 1);
    return picture;
}

FigureStyle ChalkSkin::figure(double cap) const
{
    FigureStyle figure = style().figure(cap);
    figure.unitColour = style().soft;
    if (cap < handwritten)
        figure.face = style().title;
    return figure;
}

void ChalkSkin::warning(Canvas& canvas, const Box& box) const
{
    const Box square = box.square().centred(11, 10);
    const double middle = square.center().x();
    QPainterPath sign(square.bottomLeft());
    sign.lineTo(middle, square.top());
    sign.lineTo(square.bottomRight() + QPointF(0.4, 0));
    sign.lineTo(square.bottomLeft() - QPointF(1, 0));
    sign.moveTo(middle, square.top() + 3.6);
    sign.lineTo(middle, square.top() + 6);
    sign.moveTo(middle, square.bottom() - 2);
    sign.lineTo(middle, square.bottom() - 1.7);
    canvas.stroke(sign, roundPen(style().warn, 1.3));
}

Box ChalkSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double steps = 240; // so many dials differ to the eye
    const double reached = std::round(bounded(fraction) * steps) / steps;
    const double width = style().dial.width;
    const Box outer = box.square().inset(bold / 2);
    const auto draw = [&](Canvas& layer) {
        const QPainterPath value = ringPiece(outer, width, 0, reached);
        layer.fill(value, faded(colour, smear));
        hatch(layer, value, rising, 3.4, roundPen(colour, 1.3));
        QPainterPath rings;
        rings.addEllipse(outer);
        rings.addEllipse(outer.inset(width));
        for (const double end : {0.0, reached}) {
            rings.moveTo(pointOn(outer.center(), outer.width() / 2 + 1.5, end));
            rings.lineTo(pointOn(outer.center(), outer.width() / 2 - width - 1.5, end));
        }
        layer.stroke(rings, roundPen(style().ink, usual));
    };
    canvas.still(u"dial"_s, outer.inset(-4), draw, reached, colour);
    return outer.inset(width + 3);
}

/// A line, thicker as far as the value reaches, where a cross stands.
void ChalkSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const double y = box.center().y();
    const double half = box.height() < 8 ? 3 : 4;
    const double x = box.left() + half + (box.width() - 2 * half) * bounded(fraction);
    canvas.line({box.left(), y}, {box.right(), y}, roundPen(style().faint, usual));
    if (x > box.left() + half)
        canvas.line({box.left(), y}, {x, y}, roundPen(colour, bold));
    canvas.stroke(crossPath({x, y}, half), roundPen(colour, usual));
}

void ChalkSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr double numbers = 22;
    constexpr double beyond = 6; // by which the axes are longer than the graph
    Box graph = box;
    const Box labels = graph.cutLeft(numbers);
    graph = graph.adjusted(1, beyond, -beyond, -1);
    const TextStyle label = style().caption().sized(10).aligned(Align::right).asAxis();
    const auto beside = [&](double y) { return Box(labels.x(), y - 5, numbers - 5, 10); };
    canvas.text(beside(graph.top() + 1), u"100"_s, label);
    canvas.text(beside(graph.bottom() - 4), u"0"_s, label);
    const QPainterPath line = smoothLine(samplePoints(graph.adjusted(1, 0, -3, -2), history, 1));
    const QPainterPath area = areaUnder(line, graph.bottom());
    for (const double degrees : {rising, -rising})
        hatch(canvas, area, degrees, 5, QPen(faded(colour, 0.3), 0.9));
    canvas.still(u"axes"_s, box.inset(-3), [&](Canvas& layer) {
        QPainterPath axes = arrowPath(graph.bottomLeft() + QPointF(0, 2), graph.topLeft() - QPointF(0, beyond));
        axes.addPath(arrowPath(graph.bottomLeft() - QPointF(3, 0), graph.bottomRight() + QPointF(beyond, 0)));
        layer.stroke(axes, roundPen(style().soft, usual));
    });
    canvas.stroke(line, roundPen(colour, bold));
    canvas.stroke(crossPath(line.currentPosition(), 2.6), roundPen(colour, usual));
}

void ChalkSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr double clear = 2; // of the axis, so that nothing downwards and nothing upwards are two lines
    const Box graph = box.adjusted(0, 0, -8, 0);
    const MirroredLines lines = mirrored(graph.inset(2, 2), reading.downHistory, reading.upHistory, reading.peak);
    hatch(canvas, areaUnder(lines.upper, lines.middle), rising, 4.2, QPen(faded(style().down, 0.4), fine));
    hatch(canvas, areaUnder(lines.lower, lines.middle), -rising, 4.2, QPen(faded(style().up, 0.4), fine));
    canvas.stroke(arrowPath({box.left(), lines.middle}, {box.right(), lines.middle}), roundPen(style().soft, usual));
    canvas.stroke(lines.upper.translated(0, -clear), roundPen(style().down, 2));
    canvas.stroke(lines.lower.translated(0, clear), roundPen(style().up, 2));
}

void ChalkSkin::rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const
{
    const QColor colour = upwards ? style().up : style().down;
    Box room = box;
    const Box place = room.cutLeft(std::max(9.0, cap * arrowRoom)).centred(0, std::max(14.0, cap * 0.86));
    const QPointF top = place.topLeft();
    const QPointF foot = place.bottomLeft();
    canvas.stroke(upwards ? arrowPath(foot, top, cap * 0.3) : arrowPath(top, foot, cap * 0.3), roundPen(colour, bold));
    room.cutLeft(4);
    canvas.figure(room, rate.value, rate.unit, figure(cap));
}

/// The drawing of a battery, scribbled full as far as it is charged.
void ChalkSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double half = 0.5;
    constexpr double symbol = 22;
    Box line = box.centred(box.width(), std::min(34.0, box.height()));
    if (!reading.symbol.isEmpty()) {
        const QPainterPath mark = symbolIn(line.cutRight(symbol), reading.symbol, symbol);
        canvas.fill(mark, faded(style().accent, 0.4));
        canvas.stroke(mark, roundPen(style().accent, usual));
        line.cutRight(Bands::gap);
    }
    const Box body = line.adjusted(1, 1, -7, -1);
    const double level = bounded(reading.level);
    const QColor colour = reading.low ? style().down : level > half ? style().up : style().accent;
    const auto draw = [&](Canvas& layer) {
        const Box room = body.inset(4, 4);
        const Box full = Box(room).cutLeft(std::max(7.0, room.width() * level));
        layer.fill(full, faded(colour, smear), 2);
        layer.stroke(scribblePath(full, 3.4), roundPen(colour, usual));
        const QPointF pole(body.right() + 0.5, body.center().y());
        QPainterPath outline = boxPath(body);
        outline.moveTo(pole - QPointF(0, 6));
        outline.lineTo(pole + QPointF(4.6, -6.4));
        outline.lineTo(pole + QPointF(5, 6));
        outline.lineTo(pole + QPointF(0, 6.4));
        layer.stroke(outline, roundPen(style().ink, 1.8));
    };
    canvas.still(u"battery"_s, line.inset(-3), draw, level, colour);
}

void ChalkSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    drawSky(canvas, box, sky);
}

/// A blot of chalk with a rough edge.
TextStyle ChalkSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    const double size = std::min({cell.width() - 1, cell.height() + 2, 19.0});
    canvas.disc(cell.center(), size / 2 - 0.6, style().accent);
    canvas.stroke(loopPath(cell.centred(size - 1, size - 1)), roundPen(style().accent, 1.8));
    canvas.setGround(style().accent);
    return day.coloured(inkOn(style().accent));
}

void ChalkSkin::rowMark(Canvas& canvas, Box& line, qsizetype) const
{
    const Box mark = line.cutLeft(rowIndent).cutLeft(9).centred(8, 8);
    canvas.stroke(boxPath(mark), roundPen(style().soft, 1.2));
}

/// A stroke under the name; the first row, which is the measure of the others, has a loop around it instead.
void ChalkSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const
{
    const Box track = row.cutBottom(4);
    const double from = track.left() + rowIndent;
    const double length = (track.right() - from) * bounded(fraction);
    if (index > 0 && length > 0)
        canvas.line({from, track.top()}, {from + length, track.top()}, roundPen(style().accent, usual));
}

void ChalkSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    const Box mark = line.cutLeft(3);
    const double x = mark.center().x();
    canvas.line({x, mark.top() + 4}, {x - 0.4, mark.bottom() - 4}, roundPen(colour, 3));
    line.cutLeft(8);
}

void ChalkSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    const Box mark = box.square().centred(11, 11).moved(-2, 0);
    canvas.stroke(boxPath(mark), roundPen(done ? style().soft : style().ink, usual));
    if (done)
        canvas.stroke(tickPath(mark), roundPen(style().accent, bold));
}

/// A tally: a stroke for each session that is done.
void ChalkSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    const QPointF middle = box.center();
    if (lit)
        canvas.line(middle + QPointF(0.8, -5), middle + QPointF(-0.8, 4.5), roundPen(style().accent, bold));
    else
        canvas.line(middle + QPointF(-2.5, 0), middle + QPointF(2.5, 0), roundPen(style().soft, usual));
}

void ChalkSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const double x = column.center().x();
    const double height = std::max(1.5, (column.height() - 1) * bounded(fraction));
    const QPointF foot(x, column.bottom() - 1);
    canvas.line(foot, foot - QPointF(0, height), QPen(now ? style().accent : style().soft, column.width() * 0.8));
}

void ChalkSkin::cover(Canvas& canvas, const Box& box, const Picture& artwork) const
{
    constexpr double size = 122;
    const Box sheet = box.centred(size, size);
    const QColor paper = blended(board, Qt::black, 0.25);
    const auto picture = [&](Canvas& layer, const Box& inside) {
        ambrelle::artwork(layer, inside, artwork, 0, paper, style().soft);
    };
    canvas.still(
        u"cover"_s, box.inset(-2), [&](Canvas& layer) { drawTaped(layer, sheet, picture); }, artwork.image);
}

void ChalkSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    const Box place = box.centred(18, 16);
    const auto triangle = [&](double tip, double foot) {
        QPainterPath path(QPointF(foot, place.top()));
        path.lineTo(tip, place.center().y());
        path.lineTo(foot, place.bottom());
        path.closeSubpath();
        return path;
    };
    QPainterPath shape;
    if (symbol == u"pause.fill"_s) {
        for (const double x : {-6.5, 1.5})
            shape.addRect(QRectF(place.center().x() + x, place.top(), 5, place.height()));
    } else if (symbol == u"play.fill"_s) {
        shape = triangle(place.right() - 1, place.left() + 3);
    } else {
        const double way = symbol == u"forward.fill"_s ? 1 : -1;
        const double middleX = place.center().x();
        shape = triangle(middleX + way * 6, middleX - way * 7);
        shape.moveTo(middleX + way * 7.5, place.top());
        shape.lineTo(middleX + way * 7.5, place.bottom());
    }
    canvas.fill(shape, faded(style().ink, smear));
    canvas.stroke(shape, roundPen(middle ? style().accent : style().ink, 1.8));
}

std::shared_ptr<const FaceRenderer> chalkSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<ChalkSkin>(accent);
}

} // namespace ambrelle
