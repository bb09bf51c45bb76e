// SPDX-License-Identifier: MIT

#include "skins/aero/AeroSkin.h"

#include "drawing/Arc.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "skins/aero/AeroPieces.h"
#include "skins/aero/AeroStyle.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace aero;

namespace {

constexpr double shadowReach = 8;

void pane(Canvas& canvas, const Box& box, double corner)
{
    canvas.fill(box, downwards(box, plateStops()), corner);
    Box upper = box;
    upper.setHeight(box.height() * glossShare);
    canvas.fill(glossPath(box, corner), downwards(upper, glossStops()));
    canvas.frame(box, QPen(faded(deep, 0.5), 1), corner);
    canvas.frame(box.inset(1), QPen(wash(box, sky, 0.7, 0.4), 1), corner - 1);
}

/// Accent, second and third colour.
const QColor& byTurns(const SkinStyle& style, qsizetype index)
{
    return index % 3 == 0 ? style.accent : index % 3 == 1 ? style.accent2 : style.accent3;
}

/// In the lower right corner, clear of what a face tells.
void bubblesIn(Canvas& canvas, const Box& plate)
{
    const QPointF corner = plate.bottomRight();
    bubble(canvas, corner - QPointF(8.8, 8.8), 8);
    bubble(canvas, corner - QPointF(24.5, 7), 5);
    bubble(canvas, corner - QPointF(5.8, 21), 3);
}

/// What stands in a tank of glass, cut to it, and the sky mirrored in its wall.
void tank(Canvas& canvas, const Box& box, const std::function<void()>& content)
{
    constexpr double radius = 5;
    canvas.still(u"tank"_s, box.inset(-2), [&](Canvas& layer) { well(layer, box, radius); });
    canvas.within(roundedPath(box, radius), content);
    canvas.still(u"wall"_s, box, [&](Canvas& layer) {
        layer.fill(glossPath(box, radius), wash(box, sky, 0.22, 0.02));
        layer.frame(box, QPen(wash(box, sky, 0.2, 0.5), 1), radius);
    });
}

} // namespace

AeroSkin::AeroSkin()
    : FaceRenderer(makeStyle(), DialFlavor::ring)
{
}

Box AeroSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-shadowReach), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, style().corner, deep, 0.05, 6, 2);
        pane(layer, face.bounds, style().corner);
        bubblesIn(layer, face.bounds);
    });
    return face.bounds.inset(style().inset);
}

void AeroSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    const GroundScope ground(canvas, glassAt(headerHeight));
    canvas.text(content.cutTop(14), title, style().header().shadowed(drop, {0, 1}));
    content.cutTop(style().titleGap);
}

void AeroSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    const Box photo = face.bounds.inset(photoMat());
    canvas.still(u"pane"_s, photo, [&](Canvas& layer) {
        layer.fill(glossPath(photo, photoCorner()), wash(photo, sky, 0.28, 0.03));
        layer.frame(photo, QPen(wash(photo, sky, 0.7, 0.35), 1), photoCorner());
        bubblesIn(layer, face.bounds);
    });
}

FigureStyle AeroSkin::figure(double cap) const
{
    return style().figure(cap).shadowed(drop, {0, 1});
}

Box AeroSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double steps = 720; // apart from which nobody sees a difference
    const Box square = box.square();
    const double width = style().dial.width;
    const double reached = std::ceil(bounded(fraction) * steps) / steps;
    canvas.still(
        u"ring"_s, square.inset(-1), [&](Canvas& layer) { gelRing(layer, square, width, reached, colour); }, reached,
        colour);
    return square.inset(width + 2);
}

void AeroSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double thickness = 7;
    gelBar(canvas, box.centred(box.width(), std::min(thickness, box.height())), fraction, colour);
}

void AeroSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    constexpr double newest = 3.4;
    tank(canvas, box, [&] {
        const Box room = box.adjusted(0, newest, -newest - 2, -1);
        const QPainterPath line = smoothLine(samplePoints(room, history, 1));
        QPainterPath surface = line;
        surface.lineTo(box.right(), line.currentPosition().y());
        Box depth = box;
        depth.setTop(line.boundingRect().top());
        liquid(canvas, areaUnder(surface, box.bottom()), depth, colour);
        graphLine(canvas, surface, Qt::white, 2);
        canvas.disc(line.currentPosition(), newest, Qt::white);
        canvas.disc(line.currentPosition(), newest - 1.5, Tints(colour).shade);
    });
}

void AeroSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    const MirroredLines lines = mirrored(box.inset(0, 2), reading.downHistory, reading.upHistory, reading.peak);
    tank(canvas, box, [&] {
        const double middle = lines.middle;
        const Box above(box.x(), lines.upper.boundingRect().top(), box.width(), 0);
        const Box below(box.x(), lines.lower.boundingRect().bottom(), box.width(), 0);
        liquid(canvas, areaUnder(lines.upper, middle), above.adjusted(0, 0, 0, middle - above.y()), style().down);
        // The light comes from below there: the deepest place is where both meet.
        const Box mirror = below.adjusted(0, 0, 0, middle - below.y());
        liquid(canvas, areaUnder(lines.lower, middle), mirror, style().up);
        canvas.rule(Box(box.x(), middle - 1, box.width(), 2), faded(deep, 0.8), 1);
        graphLine(canvas, lines.upper.translated(0, -0.5), Qt::white, 1.6);
        graphLine(canvas, lines.lower.translated(0, 0.5), Qt::white, 1.6);
    });
}

void AeroSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    const Box bar = box.centred(box.width(), std::min(barHeight, box.height()));
    QList<double> ends;
    for (const Share& part : parts)
        ends.append(bounded((ends.isEmpty() ? 0 : ends.last()) + part.fraction));
    canvas.still(
        u"parts"_s, bar.inset(-2),
        [&](Canvas& layer) {
            well(layer, bar, bar.height() / 2);
            // The longest first: each cushion lies on those that reach farther.
            for (qsizetype index = ends.size() - 1; index >= 0; --index)
                gel(layer, Box(bar).cutLeft(std::max(bar.height(), bar.width() * ends[index])),
                    byTurns(style(), index));
        },
        ends);
    risingBubbles(canvas, Box(bar).cutLeft(bar.width() * (ends.isEmpty() ? 0 : ends.first())), 1);
}

void AeroSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    const Box square = box.square();
    canvas.still(
        u"sky"_s, square.inset(-2), [&](Canvas& layer) { glossySky(layer, style(), square, sky); },
        static_cast<int>(sky));
}

TextStyle AeroSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    orb(canvas, cell.center(), std::min({cell.width(), cell.height() + 2, 20.0}) / 2, style().accent);
    canvas.setGround(style().accent);
    return day.faced(style().title).coloured(deep);
}

void AeroSkin::rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const
{
    constexpr double thickness = 7; // the tails of the name end above
    constexpr double below = 2;
    Box track = row.cutBottom(thickness + below);
    track.cutBottom(below);
    risingBubbles(canvas, gelBar(canvas, track, fraction, byTurns(style(), index)), static_cast<int>(index) + 1);
}

void AeroSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    const Tints tints(colour);
    const Box bar = line.cutLeft(5).inset(0, 3);
    canvas.fill(bar, tints.shade, 2.5);
    canvas.fill(bar.inset(0.7), across(bar, {{0.1, tints.light}, {0.5, tints.body}, {1, tints.body}}), 1.8);
    line.cutLeft(7);
}

void AeroSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double radius = 7;
    const QPointF centre = box.center();
    if (!done) {
        canvas.disc(centre, radius, faded(deep, 0.4));
        canvas.stroke(arc(squareAbout(centre, radius - 0.6), 0, 1), QPen(style().soft, 1.2));
        return;
    }
    orb(canvas, centre, radius, style().accent2);
    canvas.stroke(straightLine({centre + QPointF(-3.2, 0.2), centre + QPointF(-0.8, 3), centre + QPointF(3.6, -3.2)}),
        roundPen(deep, 1.9));
}

void AeroSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    if (lit)
        orb(canvas, box.center(), 4.2, style().accent);
    else
        canvas.stroke(arc(squareAbout(box.center(), 3.4), 0, 1), QPen(style().soft, 1));
}

void AeroSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const Tints tints(now ? blended(style().accent, Qt::white, 0.7) : style().accent);
    const Box bar = Box(column).cutBottom(std::max(1.0, column.height() * bounded(fraction)));
    canvas.fill(bar, across(bar, {{0, tints.body}, {0.3, tints.light}, {0.5, tints.body}, {1, tints.shade}}), 1.5);
}

void AeroSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double radius = 15;
    const QPointF centre = box.center();
    canvas.still(
        u"key"_s, squareAbout(centre, radius + 2),
        [&](Canvas& layer) { orb(layer, centre, radius, middle ? style().accent : style().faint); }, middle);
    canvas.symbol(box, symbol, 18, deep);
}

std::shared_ptr<const FaceRenderer> aeroSkin(const std::optional<QColor>&)
{
    return std::make_shared<AeroSkin>();
}

} // namespace ambrelle
