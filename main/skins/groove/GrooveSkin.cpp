// SPDX-License-Identifier: MIT

#include "skins/groove/GrooveSkin.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "faces/FaceKit.h"
#include "skins/groove/GroovePieces.h"
#include "skins/groove/GrooveStyle.h"
#include "skins/Skins.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace groove;

GrooveSkin::GrooveSkin(const std::optional<QColor>& accent)
    : FaceRenderer(makeStyle(accent), DialFlavor::ring)
{
}

Box GrooveSkin::plate(Canvas& canvas, const FaceContext& face) const
{
    const Rainbow rainbow = Rainbow::of(face);
    canvas.still(u"plate"_s, face.bounds.inset(-8), [&](Canvas& layer) {
        dropShadow(layer, face.bounds, style().corner, Qt::black, 0.03, 6, 2);
        layer.fill(face.bounds, chocolate, style().corner);
        layer.frame(face.bounds, QPen(recess, 2), style().corner);
        rainbow.draw(layer, style(), face.bounds, style().corner);
    });
    Box content = face.bounds.inset(style().inset);
    content.cutBottom(rainbow.lift);
    return face.kind == WidgetKind::quote ? rainbow.beside(content, face) : content; // whose lines are long
}

void GrooveSkin::header(Canvas& canvas, Box& content, const FaceContext&, const QString& title) const
{
    canvas.text(content.cutTop(14), title, style().header().coloured(style().accentText()));
    content.cutTop(style().titleGap);
}

void GrooveSkin::overPhoto(Canvas& canvas, const FaceContext& face) const
{
    canvas.still(u"rainbow"_s, Box(face.bounds).cutRight(face.bounds.width() / 2),
        [&](Canvas& layer) { Rainbow::of(face).draw(layer, style(), face.bounds, style().corner); });
}

/// Three arches over an opening below.
Box GrooveSkin::progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double largest = 60;
    constexpr double start = -112; // degrees
    const double foot = -std::cos(start * std::numbers::pi / 180); // below the centre, in parts of the radius
    const double radius = std::min({largest, box.width() / 2, (box.height() - stripe / 2) / (1 + foot)});
    const double height = radius * (1 + foot) + stripe / 2;
    const QPointF centre(box.center().x(), box.center().y() - height / 2 + radius);
    const Gauge gauge{.centre = centre, .radius = radius, .start = start, .sweep = -2 * start};
    double distance = radius - stripe / 2;
    for (const QColor& light : stripes(style(), colour)) {
        canvas.stroke(gauge.arc(0, 1, distance), roundPen(recess, stripe));
        if (fraction > 0)
            canvas.stroke(gauge.arc(0, bounded(fraction), distance), roundPen(light, stripe));
        distance -= groovePitch;
    }
    return squareAbout(centre, distance + stripe / 2);
}

void GrooveSkin::level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const
{
    constexpr double thickness = 8;
    capsule(canvas, box.centred(box.width(), std::min(thickness, box.height())), fraction, recess, colour);
}

void GrooveSkin::history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const
{
    const QList<QColor> colours = stripes(style(), colour);
    Box graph = box.inset(stripe / 2, 0);
    graph.cutBottom(waveDepth(static_cast<int>(colours.size())));
    waves(canvas, straightLine(samplePoints(graph, softened(history), 1)), colours);
}

void GrooveSkin::traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const
{
    constexpr double between = 6; // the two directions, about the base line
    const double depth = waveDepth(2);
    Box graph = box.inset(stripe / 2, 0);
    graph.cutBottom(2 * depth + between);
    const MirroredLines lines =
        mirrored(graph, softened(reading.downHistory), softened(reading.upHistory), reading.peak);
    const double middle = lines.middle + depth + between / 2;
    canvas.fill(Box(box.x(), middle - 1, box.width(), 2), recess, 1);
    waves(canvas, lines.upper, {style().accent3, style().down});
    waves(canvas, lines.lower.translated(0, 2 * depth + between), {style().ink, style().up}, true);
}

/// The figure behind an arrow on a button.
void GrooveSkin::rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const
{
    const QColor& colour = upwards ? style().up : style().down;
    const double size = std::max(14.0, cap * 0.8);
    Box rest = box;
    const Box button = rest.cutLeft(size).centred(size, size);
    rest.cutLeft(cap * 0.25);
    canvas.disc(button.center(), size / 2, colour);
    canvas.symbol(button, upwards ? u"arrow.up"_s : u"arrow.down"_s, size * 0.72, onFill(colour));
    canvas.figure(rest, rate.value, rate.unit, figure(cap));
}

/// Pills that lie one on the other, each with its end in sight.
void GrooveSkin::parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const
{
    constexpr double edge = 1.5;
    constexpr double thickness = 11;
    const Box bar = Box(box).cutBottom(thickness);
    const double radius = bar.height() / 2;
    const QList<QBrush> fills = partFills();
    canvas.fill(bar, recess, radius);
    double end = 0;
    for (const Share& part : parts)
        end += part.fraction;
    for (qsizetype index = parts.size() - 1; index >= 0; --index) {
        const double width = std::max(bar.height(), bar.width() * bounded(end));
        canvas.fill(Box(bar).cutLeft(width + edge), chocolate, radius);
        canvas.fill(Box(bar).cutLeft(width), fills.value(index), radius);
        end -= parts[index].fraction;
    }
}

QList<QBrush> GrooveSkin::partFills() const
{
    return {style().accent3, style().accent, style().accent2};
}

/// A sun that stands the higher above the horizon the fuller the battery is.
void GrooveSkin::charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const
{
    constexpr double horizon = 3;
    constexpr double rays = 1.07; // beyond the disc, in parts of its radius
    constexpr double symbol = 18;
    const double level = std::round(bounded(reading.level) * 100) / 100;
    Box sky = box;
    const Box ground = sky.cutBottom(horizon);
    const double radius = sky.height() / (2 + rays);
    const QPointF centre(sky.center().x(), sky.bottom() + radius - 2 * radius * level);
    const auto draw = [&](Canvas& layer) {
        layer.within(roundedPath(sky, 0), [&] {
            sunburst(layer, centre, radius, reading.low ? style().warn : style().accent2, valueColour(reading.low));
        });
        layer.fill(ground, style().accent3, horizon / 2);
    };
    canvas.still(u"sunrise"_s, box, draw, level, reading.low);
    if (!reading.symbol.isEmpty())
        canvas.symbol(Box(sky).cutRight(symbol).cutBottom(symbol + 2), reading.symbol, symbol, style().ink);
}

void GrooveSkin::pictogram(Canvas& canvas, const Box& box, Sky sky) const
{
    skyPicture(canvas, style(), box, sky);
}

TextStyle GrooveSkin::todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const
{
    constexpr double largest = 9.5;
    canvas.fill(flower(cell.center(), std::min(largest, cell.height() * 0.6)), style().accent);
    canvas.setGround(style().accent);
    return day.coloured(onFill(style().accent));
}

void GrooveSkin::eventMark(Canvas& canvas, Box& line, const QColor& colour) const
{
    constexpr double width = 5;
    const Box mark = line.cutLeft(width).inset(0, 3);
    canvas.fill(mark, colour, width / 2);
    if (contrast(colour, chocolate) < 2) // or it would be lost on the plate
        canvas.frame(mark, QPen(style().soft, 1), width / 2);
    line.cutLeft(8);
}

void GrooveSkin::checkMark(Canvas& canvas, const Box& box, bool done) const
{
    constexpr double size = 15;
    const Box circle = Box(box).cutLeft(size).centred(size, size);
    if (!done) {
        canvas.frame(circle.inset(0.5), QPen(style().soft, 2), size / 2);
        return;
    }
    canvas.disc(circle.center(), size / 2, style().accent2);
    canvas.symbol(circle, u"checkmark"_s, size - 3, cocoa);
}

void GrooveSkin::sessionDot(Canvas& canvas, const Box& box, bool lit) const
{
    constexpr double size = 8;
    if (lit)
        canvas.disc(box.center(), size / 2, style().accent2);
    else
        canvas.frame(box.centred(size, size), QPen(style().soft, 1.5), size / 2);
}

void GrooveSkin::hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const
{
    const double width = column.width();
    const double height = std::max(width, column.height() * bounded(fraction));
    const QColor& colour = now ? style().ink : fraction > 0 ? style().accent : style().faint;
    canvas.fill(Box(column).cutBottom(height), colour, width / 2);
}

void GrooveSkin::key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const
{
    constexpr double button = 36;
    if (!middle) {
        canvas.symbol(box, symbol, 24, style().ink);
        return;
    }
    canvas.disc(box.center(), button / 2, style().accent);
    canvas.symbol(box, symbol, 22, onFill(style().accent));
}

std::shared_ptr<const FaceRenderer> grooveSkin(const std::optional<QColor>& accent)
{
    return std::make_shared<GrooveSkin>(accent);
}

} // namespace ambrelle
