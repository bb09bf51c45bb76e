// SPDX-License-Identifier: MIT

#include "skins/grove/GroveSkin.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Pens.h"
#include "drawing/PictureTreatment.h"
#include "faces/FaceKit.h"
#include "skins/grove/GrovePieces.h"
#include "skins/grove/GroveStyle.h"
#include "skins/Skins.h"

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace grove;

GroveSkin::GroveSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

QColor GroveSkin::leavesBeside(const QColor& line) const
{
    return line == style().warn ? style().warn : leafGreen;
}

Box GroveSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        grove::cover(layer, face.bounds, style().corner, style().accent);
        if (face.kind != WidgetKind::photo)
            cornerSprig(layer, face.bounds, style().accent);
    });
    return face.bounds.inset(style().inset);
}

void GroveSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    canvas.text(content.cutTop(headerLine), title, style().header().coloured(style().accentText()));
    content.cutTop(style().titleGap);
}

void GroveSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"sprig"_s, face.bounds, [&](Canvas& layer) { cornerSprig(layer, face.bounds, style().accent); });
}

FigureStyle GroveSkin::figure(double cap) const
{
    FigureStyle figure = style().figure(cap);
    figure.unitColour = style().soft;
    return figure;
}

Box GroveSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double outside = 5.5; // of the leaves
    constexpr double inside = 5;
    const Box circle = box.square().inset(outside);
    wreath(canvas, circle, fraction, colour, leavesBeside(colour));
    return circle.inset(inside);
}

void GroveSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double knob = 12; // length
    const double y = box.center().y();
    const double x = box.left() + (box.width() - knob) * bounded(fraction);
    canvas.line({box.left(), y}, {box.right(), y}, flatPen(trackGreen, hairline));
    canvas.line({box.left(), y}, {x, y}, flatPen(colour, lineWidth));
    canvas.fill(leaf({x, y}, 0, knob), colour);
}

void GroveSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr double air = 3; // for leaves above the highest sample and below the ground
    const Box graph = box.inset(0, air);
    const QPainterPath line = smoothLine(samplePoints(graph, history, 1));
    canvas.fill(areaUnder(line, graph.bottom()), wash(graph, colour, 0.45, 0.02));
    canvas.rule(Box(graph.x(), graph.bottom() - 0.5, graph.width(), 1), trackGreen, hairline);
    vine(canvas, line, colour, leavesBeside(colour));
}

void GroveSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr double air = 4;
    constexpr double apart = 1.2; // so that two idle lines are seen
    const MirroredLines lines = mirrored(box.inset(0, air), reading.downHistory, reading.upHistory, reading.peak);
    Box below = box;
    const Box above = below.cutTop(lines.middle - box.top());
    canvas.fill(areaUnder(lines.upper, lines.middle), wash(above, style().down, 0.4, 0.04));
    canvas.fill(areaUnder(lines.lower, lines.middle), wash(below, style().up, 0.04, 0.4));
    vine(canvas, lines.upper.translated(0, -apart), style().down, style().down);
    vine(canvas, lines.lower.translated(0, apart), style().up, style().up);
}

void GroveSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    const QPainterPath whole = blade(box);
    const QList<QBrush> fills = partFills();
    Box rest = box;
    for (qsizetype index = 0; index < std::min(parts.size(), fills.size()); ++index) {
        QPainterPath piece;
        piece.addRect(rest.cutLeft(box.width() * bounded(parts[index].fraction)));
        partTint(canvas, piece.intersected(whole), index, fills[index].color());
    }
    canvas.stroke(whole, QPen(blended(cloth, style().soft, 0.6), hairline));
    const double y = box.center().y();
    canvas.line({box.left(), y}, {box.right(), y}, flatPen(cloth, hairline));
}

void GroveSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr int count = 10;
    constexpr double symbol = 13;
    constexpr double length = 21;
    constexpr double bud = 3.2;
    Box room = box;
    if (!reading.symbol.isEmpty())
        canvas.symbol(room.cutRight(symbol), reading.symbol, symbol, style().ink);
    const double reach = 0.16 * room.height();
    QPainterPath line(room.center() + QPointF(-room.width() / 2, reach / 2));
    line.cubicTo(room.center() + QPointF(-0.2 * room.width(), -reach),
        room.center() + QPointF(0.15 * room.width(), reach), {room.right() - 2 * bud, room.center().y() - reach / 2});
    const QColor green = reading.low ? style().warn : style().accent2;
    const int lit = reading.percent > 0 ? std::max(1, litOf(reading.level, count)) : 0;
    canvas.stroke(line, roundPen(style().accent, stemWidth));
    for (int index = 0; index < count; ++index) {
        const QPainterPath shape = leafOn(line, 0.04 + 0.093 * index, index % 2 == 0 ? -42 : 42, length);
        if (index < lit)
            canvas.fill(shape, green);
        else
            canvas.stroke(shape, QPen(blended(cloth, style().soft, 0.55), hairline));
    }
    if (reading.charging)
        canvas.disc(line.currentPosition() + QPointF(bud, 0), bud, style().accent);
}

void GroveSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    const Box square = box.square();
    canvas.still(
        u"sky"_s, square.inset(-1), [&](Canvas& layer) { skyPicture(layer, square, sky, style().accent, style().ink); },
        sky);
}

TextStyle GroveSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    const Box place = cell.centred(20, 18);
    QPainterPath shape(place.topLeft());
    shape.cubicTo(place.topRight(), place.topRight(), place.bottomRight());
    shape.cubicTo(place.bottomLeft(), place.bottomLeft(), place.topLeft());
    canvas.fill(shape, style().accent);
    canvas.setGround(style().accent);
    return day.coloured(inkOn(style().accent));
}

void GroveSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    constexpr double width = 20;
    static const QStringList ordinals{u"i"_s, u"ii"_s, u"iii"_s, u"iv"_s, u"v"_s, u"vi"_s, u"vii"_s, u"viii"_s};
    const TextStyle text = style().header().sized(style().rowSize).coloured(style().accentText());
    canvas.text(line.cutLeft(width), ordinals.value(index), text);
}

/// The rule below the row is the track of its share.
void GroveSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype) const
{
    constexpr double dot = 1.8; // radius
    const Box track = row.cutBottom(2 * dot);
    dottedRule(canvas, track);
    const double y = track.center().y();
    const double x = track.left() + dot + (track.width() - 2 * dot) * bounded(fraction);
    canvas.line({track.left(), y}, {x, y}, flatPen(style().accent, lineWidth));
    canvas.disc({x, y}, dot, style().accent);
}

void GroveSkin::separator(Canvas& canvas, const Box& row) const
{
    constexpr double below = 1.5; // nearer to the next row's capitals than to descenders
    dottedRule(canvas, Box(row).moved(0, below).cutBottom(0));
}

void GroveSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    canvas.fill(blade(line.cutLeft(6).inset(0, 3)), colour);
    line.cutLeft(7);
}

void GroveSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 14;
    const Box square = box.centred(size, size).moved(-3, 0);
    if (!done) {
        canvas.stroke(arc(square.inset(0.5), 0, 1), QPen(style().accent, lineWidth));
        return;
    }
    canvas.disc(square.center(), size / 2, leafGreen);
    canvas.symbol(square, u"checkmark"_s, size - 4, cloth);
}

TextStyle GroveSkin::doneRow() const
{
    return style().row().coloured(style().soft).struckThrough();
}

void GroveSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    const QPainterPath shape = blade(box.centred(6, 10));
    if (lit)
        canvas.fill(shape, style().accent);
    else
        canvas.stroke(shape, QPen(style().soft, hairline));
}

/// A seedling: a stalk with a bud, the taller the longer.
void GroveSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    constexpr double stalk = 1.2;
    const double bud = now ? 2.4 : 1.7;
    const double x = column.center().x();
    const QColor colour = now ? style().accent : leafGreen;
    if (fraction <= 0 && !now) {
        canvas.disc({x, column.bottom()}, stalk / 2, colour);
        return;
    }
    const double y = column.bottom() - bud - (column.height() - 2 * bud) * bounded(fraction);
    canvas.line({x, column.bottom()}, {x, y}, flatPen(colour, stalk));
    canvas.disc({x, y}, bud, colour);
}

void GroveSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    constexpr double slender = 0.84; // width of the oval in parts of its height
    constexpr double rings = 4; // between the two
    const Box oval = box.centred(box.height() * slender, box.height());
    const QPainterPath inside = arc(oval.inset(rings), 0, 1);
    if (picture) {
        drawPicture(canvas, inside, picture.image);
    } else {
        canvas.fill(inside, style().faint);
        canvas.symbol(box, u"music.note"_s, box.height() * 0.36, style().soft);
    }
    canvas.stroke(inside, QPen(style().accent, stemWidth));
    canvas.stroke(arc(oval.inset(0.5), 0, 1), QPen(faded(style().accent, 0.65), hairline));
}

void GroveSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    if (middle)
        canvas.stroke(arc(box.square().inset(0.5), 0, 1), QPen(style().accent, hairline));
    canvas.symbol(box, symbol, middle ? 17 : 19, style().ink);
}

std::shared_ptr<const FaceRenderer> groveSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<GroveSkin>(accent);
}

} // namespace ambrelle
