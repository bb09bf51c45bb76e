// SPDX-License-Identifier: MIT

#include "skins/abyss/AbyssPieces.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Colours.h"
#include "drawing/Gradients.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"

namespace ambrelle::abyss {

namespace {

constexpr double rivetRadius = 2.6;
constexpr double rivetPlace = 7; // from both edges
constexpr double screwRadius = 2.2;

/// Metal turned on a lathe: light and dark by turns round the centre.
QBrush turnedBrass(QPointF centre)
{
    constexpr int steps = 8;
    constexpr double from = 0.04; // so that no light falls straight on a corner
    QGradientStops stops;
    for (int step = 0; step <= steps; ++step)
        stops.append({static_cast<double>(step) / steps, step % 2 == 0 ? brassDark : brassLight});
    return conical(centre, from, stops);
}

/// A knob lit from the upper left.
QBrush ball(QPointF centre, double radius, const QColor& light, const QColor& shade)
{
    return radial(centre, radius * 1.15, centre - QPointF(radius, radius) * 0.35,
        {{0, blended(light, Qt::white, 0.35)}, {0.45, light}, {1, shade}});
}

/// An edge of metal, lit from above.
QPen bevel(const Box& box)
{
    return {
        downwards(box, {{0, faded(Qt::white, 0.5)}, {0.4, faded(Qt::white, 0.05)}, {1, faded(Qt::black, 0.45)}}), 1};
}

/// What an edge throws on the ground below it.
void shadeTop(Canvas& canvas, Box box, double depth, double opacity, double radius)
{
    const Box shade = box.cutTop(depth);
    canvas.fill(shade, wash(shade, Qt::black, opacity, 0), radius);
}

} // namespace

void riveted(Canvas& canvas, const Box& bounds, double corner)
{
    canvas.fill(bounds, turnedBrass(bounds.center()), corner);
    canvas.frame(bounds, bevel(bounds), corner);
    const Box face = bounds.inset(rimWidth);
    canvas.fill(face.inset(-1), faded(Qt::black, 0.7), faceRadius + 1);
    canvas.fill(face, deep, faceRadius);
    canvas.fill(face,
        linear(face.topLeft(), face.bottomRight(), {{0, faded(Qt::white, 0.1)}, {0.55, faded(Qt::white, 0)}}),
        faceRadius);
    shadeTop(canvas, face, 6, 0.35, faceRadius / 2);
    const Box places = bounds.inset(rivetPlace);
    for (const QPointF& place : {places.topLeft(), places.topRight(), places.bottomLeft(), places.bottomRight()})
        rivet(canvas, place, rivetRadius);
}

void rivet(Canvas& canvas, QPointF centre, double radius)
{
    canvas.disc(centre + QPointF(0.3, 0.6), radius + 0.6, faded(stamped, 0.6));
    canvas.disc(centre, radius, ball(centre, radius, rivetBrass, brassDark));
}

Box porthole(Canvas& canvas, const Box& box, double ring, int bolts)
{
    const Box circle = box.square();
    const QPointF centre = circle.center();
    const double r = circle.width() / 2;
    canvas.disc(centre + QPointF(0, 1), r, faded(Qt::black, 0.4));
    canvas.disc(centre, r - 0.5, turnedBrass(centre));
    canvas.stroke(arc(circle.inset(1), 0, 1), bevel(circle));

    const Box inside = circle.inset(ring);
    for (int bolt = 0; bolt < bolts; ++bolt)
        rivet(canvas, pointOn(centre, r - ring / 2, (bolt + 0.5) / bolts), ring * 0.24);
    canvas.disc(centre, inside.width() / 2 + 1, brassDark.darker(230));
    canvas.disc(centre, inside.width() / 2, well);
    return inside;
}

void glass(Canvas& canvas, const Box& inside)
{
    const QPointF centre = inside.center();
    const double r = inside.width() / 2;
    canvas.disc(centre, r,
        radial(centre, r, {{0, faded(Qt::black, 0)}, {0.8, faded(Qt::black, 0)}, {1, faded(Qt::black, 0.5)}}));
    const QPointF light = centre + QPointF(r, r) * 0.22;
    QPainterPath gleam = arc(inside.inset(r * 0.05), 0, 1);
    gleam = gleam.subtracted(arc(squareAbout(light, r * 1.12), 0, 1));
    canvas.fill(gleam, faded(Qt::white, 0.16));
}

void window(Canvas& canvas, const Box& box, double radius)
{
    const Box frame = box.inset(-1.6);
    canvas.fill(frame.moved(0, 0.8), faded(Qt::black, 0.4), radius + 1.6);
    canvas.fill(
        frame, downwards(frame, {{0, brassLight}, {0.5, brassDark}, {1, brassLight.darker(115)}}), radius + 1.6);
    canvas.fill(box, well, radius);
    shadeTop(canvas, box, 4, 0.6, radius / 2);
}

void lamp(Canvas& canvas, QPointF centre, double radius, bool lit)
{
    if (lit)
        canvas.disc(centre, radius * 2.4, halo(centre, radius * 2.4, phosphor, 0.6));
    canvas.disc(centre, radius + 1, brassDark.darker(170));
    canvas.disc(centre, radius,
        lit ? ball(centre, radius, phosphor, phosphor.darker(150)) : ball(centre, radius, deep.lighter(150), well));
}

void brassPlate(Canvas& canvas, const Box& box)
{
    constexpr double radius = 2.5;
    canvas.fill(box.moved(0, 1), faded(Qt::black, 0.4), radius);
    canvas.fill(
        box, downwards(box, {{0, strip.lighter(118)}, {0.25, strip.lighter(104)}, {1, strip.darker(108)}}), radius);
    canvas.frame(box, bevel(box), radius);
}

void plateEnd(Canvas& canvas, QPointF place, bool lit)
{
    if (lit) {
        lamp(canvas, place, 2.8, true);
        return;
    }
    rivet(canvas, place, screwRadius);
    canvas.line(place - QPointF(1.2, 1.2), place + QPointF(1.2, 1.2), flatPen(stamped, 0.7));
}

TextStyle struck(const TextStyle& text)
{
    return text.coloured(stamped).engraved(faded(Qt::white, 0.3));
}

void groove(Canvas& canvas, const Box& box)
{
    const Box line = box.centred(box.width(), 1);
    canvas.fill(line, faded(Qt::black, 0.5));
    canvas.fill(line.moved(0, 1), faded(Qt::white, 0.1));
}

void liquid(Canvas& canvas, const Box& box, const QBrush& brush, qsizetype index)
{
    constexpr double pitch = 3;
    canvas.fill(box, brush);
    if (index > 0)
        hatch(canvas, roundedPath(box, 0), index == 1 ? 60 : 0, pitch, flatPen(faded(well, 0.6), 1));
}

} // namespace ambrelle::abyss
