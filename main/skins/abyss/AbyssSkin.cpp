// SPDX-License-Identifier: MIT

#include "skins/abyss/AbyssSkin.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "skins/abyss/AbyssGauges.h"
#include "skins/abyss/AbyssPieces.h"
#include "skins/Skins.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace abyss;

AbyssSkin::AbyssSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ticks)
{
}

Box AbyssSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"plate"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, style().corner, Qt::black, 0.04, 8, 2);
        riveted(layer, face.bounds, style().corner);
    });
    return face.bounds.inset(style().inset);
}

/// The title, and after it a groove in the metal.
void AbyssSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    constexpr double air = 7;
    Box line = content.cutTop(14);
    content.cutTop(style().titleGap);
    line.cutLeft(canvas.text(line, title, style().header().coloured(brassLight).engraved(faded(Qt::black, 0.6))) + air);
    groove(canvas, line.adjusted(0, 1, 0, 1));
}

/// Large numerals catch the light from above, like what is cast in metal.
FigureStyle AbyssSkin::figure(double cap) const
{
    constexpr double large = 30;
    QLinearGradient light(0, 0, 0, 1);
    light.setColorAt(0, blended(style().ink, Qt::white, 0.45));
    light.setColorAt(1, blended(style().ink, brassLight, 0.65));
    FigureStyle figure = style().figure(cap);
    figure.unitColour = brassLight;
    return cap < large ? figure : figure.filled(light).shadowed(faded(Qt::black, 0.5), {0, 1});
}

Box AbyssSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    const BrassGauge gauge{.style = style(), .needle = colour, .steps = 36, .every = 6, .numerals = 0, .lit = true};
    return gauge.draw(canvas, box, fraction);
}

/// A groove at the end of whose level a float swims.
void AbyssSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double ball = 3.4;
    const Box track = box.centred(box.width(), std::min(4.0, box.height()));
    capsule(canvas, track, fraction, well, colour);
    rivet(canvas, {track.left() + ball + (track.width() - 2 * ball) * bounded(fraction), track.center().y()}, ball);
}

/// The green trace of an echo sounder.
void AbyssSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor&) const
{
    const Box graph = box.adjusted(0, 2, -2, -0.5);
    canvas.fill(Box(box).cutBottom(1), faded(phosphor, 0.35));
    const QPainterPath line = smoothLine(samplePoints(graph, history, 1));
    canvas.fill(areaUnder(line, box.bottom()), wash(box, phosphor, 0.3, 0.06));
    graphLine(canvas, line, faded(phosphor, 0.85), 1.2);
    canvas.disc(line.currentPosition(), 2, phosphor);
}

/// Every second an echo: what came upwards from the water line, what went downwards.
void AbyssSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr double width = 1.6;
    canvas.still(u"traffic"_s, box.inset(-1), [&](Canvas& layer) { window(layer, box.inset(1.6), 3); });
    const Box graph = box.inset(6, 5);
    const MirroredLines lines = mirrored(graph, reading.downHistory, reading.upHistory, reading.peak);
    const auto echoes = [&](const QPainterPath& line, const QColor& colour) {
        QPainterPath bars;
        for (int index = 0; index < line.elementCount(); ++index) {
            const QPainterPath::Element end = line.elementAt(index);
            bars.addRect(Box(end.x - width / 2, std::min(end.y, lines.middle), width, std::abs(end.y - lines.middle)));
        }
        canvas.fill(bars, colour);
    };
    echoes(lines.upper, style().down);
    echoes(lines.lower, style().up);
    canvas.fill(Box(graph.x() - 2, lines.middle - 0.5, graph.width() + 4, 1), style().soft);
}

/// A sounding pipe of several liquids, with bulkheads between them.
void AbyssSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr double bulkhead = 1.4;
    const Box pipe = box.centred(box.width(), std::min(10.0, box.height())).inset(1.6);
    canvas.still(u"pipe"_s, pipe.inset(-3), [&](Canvas& layer) { window(layer, pipe, 2); });
    const QList<QBrush> fills = partFills();
    Box rest = pipe;
    for (qsizetype index = 0; index < parts.size(); ++index) {
        const Box part = rest.cutLeft(pipe.width() * parts[index].fraction);
        liquid(canvas, Box(part).adjusted(0, 0, -std::min(bulkhead, part.width()), 0), fills.value(index), index);
    }
    canvas.fill(Box(pipe).cutTop(3), wash(Box(pipe).cutTop(3), Qt::white, 0.35, 0.1));
}

PictogramPaint AbyssSkin::pictograms() const
{
    return {.sun = rivetBrass, .moon = style().ink, .cloud = style().ink, .water = phosphor, .bolt = rivetBrass};
}

/// Today in a little porthole.
TextStyle AbyssSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    TextStyle text = filledDay(canvas, cell, day, style().accent, cell.height());
    const double radius = std::min({cell.width(), cell.height() + 2, 20.0}) / 2;
    canvas.stroke(arc(squareAbout(cell.center(), radius - 1.6), 0, 1), QPen(faded(text.colour, 0.45), 0.8));
    return text;
}

void AbyssSkin::separator(Canvas& canvas, const Box& row) const
{
    groove(canvas, Box(row).cutBottom(2).moved(0, 1));
}

void AbyssSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 13;
    const Box square = box.square().centred(size, size);
    canvas.disc(square.center(), size / 2, well);
    canvas.stroke(arc(square.inset(0.8), 0, 1), QPen(brassLight, 1.6));
    if (done)
        canvas.symbol(square, u"checkmark"_s, size - 2, phosphor);
}

TextStyle AbyssSkin::doneRow() const
{
    return style().row().coloured(style().soft).struckThrough();
}

void AbyssSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    lamp(canvas, box.center(), 3, lit);
}

void AbyssSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    if (now)
        canvas.fill(column, faded(style().accent, 0.2), 1);
    canvas.fill(Box(column).cutBottom(std::max(1.0, column.height() * fraction)),
        now ? style().accent : faded(phosphor, 0.75), 1);
}

/// A round push-button of brass.
void AbyssSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    const double radius = middle ? 15 : 12.5;
    const Box place = squareAbout(box.center(), radius);
    canvas.still(u"key"_s, place.inset(-3), [&](Canvas& layer) {
        const Box cap = porthole(layer, place, 2, 0).inset(0.6);
        layer.disc(cap.center(), cap.width() / 2, downwards(cap, {{0, brassLight}, {1, strip.darker(112)}}));
    });
    canvas.symbol(place, symbol, middle ? 18 : 15, stamped);
}

std::shared_ptr<const FaceRenderer> abyssSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<AbyssSkin>(accent);
}

} // namespace ambrelle
