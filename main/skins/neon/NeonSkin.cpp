// SPDX-License-Identifier: MIT

#include "skins/neon/NeonSkin.h"

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "skins/neon/NeonPieces.h"
#include "skins/neon/NeonStyle.h"
#include "skins/Skins.h"

#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace neon;

namespace {

constexpr double chromeFrom = 44; // height from which figures are of chrome
constexpr double shadowReach = 8;
constexpr double hairline = 0.8;

} // namespace

NeonSkin::NeonSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

const QColor& NeonSkin::byTurns(qsizetype index) const
{
    const std::array colours{&style().accent, &style().accent2, &style().accent3};
    return *colours[static_cast<std::size_t>(index) % colours.size()];
}

Box NeonSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    const double corner = style().corner;
    const QColor sign = signColour(style(), face.kind);
    canvas.still(u"plate"_s, face.bounds.inset(-shadowReach), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, corner, Qt::black, 0.03, 6, 2);
        layer.fill(face.bounds, faded(plateColour, plateAlpha), corner);
        layer.frame(face.bounds, QPen(faded(sign, 0.16), 1), corner);
    });
    signTube(canvas, face.bounds, corner, sign, static_cast<int>(face.kind) + 1);
    return face.bounds.inset(style().inset);
}

void NeonSkin::header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const
{
    const QColor sign = signColour(style(), face.kind);
    const Box line = content.cutTop(headerHeight).moved(0, -headerRise);
    canvas.text(line, title, lettering(style(), title, style().titleSize, sign));
    content.cutTop(style().titleGap);
}

FigureStyle NeonSkin::figure(double cap) const
{
    if (cap >= chromeFrom)
        return chrome(style(), cap);
    FigureStyle plain = style().figure(cap);
    plain.unitColour = style().soft;
    return plain;
}

Box NeonSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double width = 4;
    const Box square = box.square().inset(1);
    const Gauge gauge = Gauge::in(square, 0, 360);
    const double middle = gauge.radius - width / 2;
    canvas.stroke(gauge.arc(0, 1, middle), QPen(trackColour, width));
    if (bounded(fraction) > 0)
        tube(canvas, gauge.arc(0, bounded(fraction), middle), colour, width);
    return square.inset(width + 2);
}

void NeonSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    levelTube(canvas, box, fraction, trackColour, colour);
}

void NeonSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr double newest = 2.5; // radius of the last sample
    canvas.still(u"floor"_s, box.inset(-1), [&](Canvas& layer) { floorGrid(layer, box, trackColour); });
    const Box room = box.adjusted(0, newest, -newest, -1);
    const QPainterPath line = smoothLine(samplePoints(room, history, 1));
    canvas.fill(areaUnder(line, room.bottom()), wash(room, colour, 0.3, 0));
    canvas.lightAround(line, shine(colour));
    graphLine(canvas, line, colour, 2);
    spark(canvas, line.currentPosition(), newest, colour);
}

void NeonSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines = mirrored(box.inset(0, 1), reading.downHistory, reading.upHistory, reading.peak);
    const double horizon = lines.middle;
    const Box above(box.x(), box.y(), box.width(), horizon - box.y());
    const Box below(box.x(), horizon, box.width(), box.bottom() - horizon);
    canvas.fill(areaUnder(lines.upper, horizon), wash(above, style().down, 0.4, 0.08));
    canvas.fill(areaUnder(lines.lower, horizon), wash(below, style().up, 0.08, 0.4));
    canvas.rule(Box(box.x(), horizon - 1, box.width(), 2), trackColour, 1);
    constexpr double apart = 1; // so that two idle lines are seen
    const std::array tubes{std::pair(lines.upper.translated(0, -apart), style().down),
        std::pair(lines.lower.translated(0, apart), style().up)};
    for (const auto& [line, colour] : tubes) {
        canvas.lightAround(line, shine(colour));
        graphLine(canvas, line, colour, 1.8);
    }
}

void NeonSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    QList<TubePart> tubes;
    for (const Share& part : parts)
        tubes.append({part.fraction, byTurns(tubes.size())});
    partTubes(canvas, box, tubes, trackColour);
}

void NeonSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr int cells = 5;
    constexpr double height = 30;
    constexpr double symbol = 16;
    constexpr double glass = 2;
    constexpr double air = 5;
    Box body = box.centred(box.width(), std::min(height, box.height() - 4));
    const double slope = body.height() * 0.11; // by which either end leans out
    body.adjust(slope + glass, 0, -slope - glass, 0);
    if (!reading.symbol.isEmpty()) {
        canvas.symbol(body.cutRight(symbol).moved(slope, 0), reading.symbol, symbol, style().accent3);
        body.cutRight(slope + 2);
    }
    const QPointF about = body.center();
    tube(canvas, leaning(body, 6, about), style().accent3, glass);
    const int lit = reading.percent > 0 ? std::max(1, litOf(reading.level, cells)) : 0;
    const QColor colour = reading.low ? style().accent3 : style().accent2;
    for (int index = 0; index < cells; ++index) {
        const QPainterPath cell = leaning(body.inset(air).column(index, cells, 3), 2, about);
        if (index < lit)
            canvas.lightAround(cell, shine(colour));
        canvas.fill(cell, index < lit ? colour : socket);
    }
}

void NeonSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    constexpr double large = 34; // side from which the tube has its full width
    const double line = box.square().width() >= large ? 2 : 1.4;
    const auto paint = [&](Canvas& layer, double opacity, double width) {
        const auto lit = [&](const QColor& colour) { return faded(colour, opacity); };
        drawPictogram(layer, box, sky,
            {.sun = lit(style().accent3),
                .moon = lit(style().ink),
                .cloud = lit(style().ink),
                .water = lit(style().accent2),
                .bolt = lit(style().accent3),
                .outline = width});
    };
    canvas.still(
        u"sky"_s, box.inset(-4),
        [&](Canvas& layer) {
            for (int stroke = 3; stroke > 0; --stroke)
                paint(layer, 0.09, line * (1 + stroke));
            paint(layer, 1, line);
        },
        static_cast<int>(sky));
}

TextStyle NeonSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    canvas.lightAround(arc(squareAbout(cell.center(), 8), 0, 1), shine(style().accent));
    return filledDay(canvas, cell, day, style().accent, style().corner);
}

void NeonSkin::rowMark(Canvas& canvas, Box& line, qsizetype index) const
{
    constexpr double radius = 2.5;
    const Box mark = line.cutLeft(2 * radius);
    spark(canvas, mark.center(), radius, byTurns(index));
    line.cutLeft(7);
}

void NeonSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const
{
    const Box track = row.cutBottom(2);
    const QPointF from(track.left(), track.center().y());
    canvas.rule(track, trackColour, hairline);
    if (bounded(fraction) > 0)
        tube(canvas, straightLine({from, from + QPointF(track.width() * bounded(fraction), 0)}), byTurns(index), 1.2);
}

void NeonSkin::separator(Canvas& canvas, const Box& row) const
{
    canvas.rule(Box(row.x(), row.y() - 1, row.width(), 2), trackColour, hairline);
}

void NeonSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    const Box bar = line.cutLeft(3).inset(0, 5);
    tube(canvas, straightLine({{bar.center().x(), bar.top()}, {bar.center().x(), bar.bottom()}}), colour, 3);
    line.cutLeft(9);
}

void NeonSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    const QPointF centre = box.square().center();
    if (!done) {
        tube(canvas, arc(squareAbout(centre, 6), 0, 1), style().accent, 1.4);
        return;
    }
    QPainterPath tick(centre + QPointF(-4, 0));
    tick.lineTo(centre + QPointF(-1, 3.5));
    tick.lineTo(centre + QPointF(5, -4.5));
    tube(canvas, tick, style().accent2, 2);
}

TextStyle NeonSkin::doneRow() const
{
    return style().row().coloured(style().soft).struckThrough();
}

void NeonSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    if (lit)
        spark(canvas, box.center(), 3, style().accent);
    else
        canvas.stroke(arc(squareAbout(box.center(), 2.6), 0, 1), QPen(style().soft, 1));
}

void NeonSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const Box bar = Box(column).cutBottom(std::max(1.0, column.height() * fraction));
    if (now)
        canvas.lightAround(
            straightLine({{bar.center().x(), bar.top()}, {bar.center().x(), bar.bottom()}}), shine(style().accent));
    canvas.fill(bar, now ? pale(style().accent) : faded(style().accent, 0.6), 1);
}

void NeonSkin::cover(Canvas& canvas, const Box& box, const Picture& picture) const
{
    constexpr double mat = 8;
    constexpr double radius = 6;
    canvas.still(u"cover frame"_s, box.inset(-4),
        [&](Canvas& layer) { tube(layer, roundedPath(box.inset(mat / 2), radius + mat / 2), style().accent2, 2); });
    artwork(canvas, box.inset(mat), picture, radius, socket, style().soft);
}

void NeonSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double size = 20;
    const QPainterPath outline = symbolIn(box, symbol, size);
    if (middle)
        canvas.lightAround(outline, shine(style().accent));
    canvas.stroke(outline, roundPen(middle ? pale(style().accent) : style().ink, 1.3));
}

std::shared_ptr<const FaceRenderer> neonSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<NeonSkin>(accent);
}

} // namespace ambrelle
