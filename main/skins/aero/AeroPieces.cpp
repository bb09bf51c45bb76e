// SPDX-License-Identifier: MIT

#include "skins/aero/AeroPieces.h"

#include "drawing/Arc.h"
#include "drawing/Fraction.h"
#include "drawing/Gauge.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "skins/aero/AeroStyle.h"

#include <cmath>
#include <numbers>

namespace ambrelle::aero {

using namespace Qt::StringLiterals;

namespace {

constexpr double gelEdge = 0.8; // of gel, points

const QColor moonShade(0xB9, 0xD9, 0xF2);
const QColor cloudLight(0xE6, 0xF4, 0xFF);
const QColor cloudShade(0xCF, 0xE9, 0xFA);

QColor skylight(double opacity)
{
    return faded(Qt::white, opacity);
}

/// The same hue, fuller and darker, as a thick layer of it looks.
QColor depthOf(const QColor& colour)
{
    constexpr double fuller = 1.47;
    constexpr double darker = 0.71;
    float hue = 0;
    float saturation = 0;
    float value = 0;
    colour.getHsvF(&hue, &saturation, &value);
    return QColor::fromHsvF(
        hue, std::min(1.0F, static_cast<float>(saturation * fuller)), static_cast<float>(value * darker));
}

} // namespace

Tints::Tints(const QColor& colour)
    : light(blended(colour, Qt::white, 0.55))
    , body(colour)
    , shade(depthOf(colour))
{
}

QPainterPath glossPath(const Box& pane, double corner)
{
    constexpr double dip = 0.12; // of the height, by which its gelEdge hangs through
    const double y = pane.top() + pane.height() * glossShare;
    QPainterPath gloss(pane.topLeft());
    gloss.lineTo(pane.topRight());
    gloss.lineTo(pane.right(), y - pane.height() * dip);
    gloss.quadTo({pane.center().x() + pane.width() * 0.1, y + pane.height() * dip}, {pane.left(), y});
    gloss.closeSubpath();
    return corner > 0 ? gloss.intersected(roundedPath(pane, corner)) : gloss;
}

void well(Canvas& canvas, const Box& box, double radius)
{
    const double lip = std::min(0.3, 3 / box.height());
    canvas.fill(box, downwards(box, {{0, faded(deep, 0.8)}, {lip, faded(deep, 0.52)}, {1, faded(deep, 0.42)}}), radius);
    canvas.frame(box.inset(-0.5), QPen(downwards(box, {{0.4, skylight(0)}, {1, skylight(0.4)}}), 1), radius + 0.5);
}

void liquid(Canvas& canvas, const QPainterPath& shape, const Box& box, const QColor& colour)
{
    const Tints tints(colour);
    canvas.fill(shape, downwards(box, {{0, tints.light}, {0.4, tints.body}, {1, tints.shade}}));
}

void gel(Canvas& canvas, const Box& box, const QColor& colour)
{
    const Tints tints(colour);
    const QBrush body = downwards(box,
        {{0, tints.light}, {0.44, tints.body}, {0.5, blended(tints.body, tints.shade, 0.42)},
            {1, blended(tints.body, tints.light, 0.5)}});
    canvas.fill(box, tints.shade, box.height() / 2);
    canvas.fill(box.inset(gelEdge), body, box.height() / 2 - gelEdge);
    // The sky in its upper half.
    const double r = box.height() / 2;
    Box light = box.inset(std::min(r * 0.45, box.width() * 0.2), std::max(gelEdge, r * 0.14));
    light.setHeight(r * 0.8);
    canvas.fill(light, downwards(light, {{0, skylight(0.85)}, {1, skylight(0.22)}}), light.height() / 2);
}

Box gelBar(Canvas& canvas, const Box& box, double fraction, const QColor& colour)
{
    canvas.still(u"well"_s, box.inset(-1), [&](Canvas& layer) { well(layer, box, box.height() / 2); });
    const double width = box.width() * bounded(fraction);
    if (width <= 0)
        return {};
    const Box filled = Box(box).cutLeft(std::max(width, box.height()));
    gel(canvas, filled, colour);
    return filled;
}

void gelRing(Canvas& canvas, const Box& square, double width, double fraction, const QColor& colour)
{
    constexpr double highlight = 4;
    constexpr double raised = 2; // outside the middle
    const Gauge ring = Gauge::in(square, 0, 360);
    const double middle = ring.radius - width / 2;
    const double inner = 1 - width / ring.radius;
    const auto band = [&](double distance) { return ring.arc(0, bounded(fraction), distance); };
    canvas.stroke(ring.arc(0, 1, middle), QPen(faded(deep, 0.45), width));
    canvas.stroke(ring.arc(0, 1, ring.radius - 0.5), QPen(faded(sky, 0.3), 1));
    if (bounded(fraction) <= 0)
        return;
    const Tints tints(colour);
    canvas.stroke(band(middle), roundPen(tints.shade, width));
    canvas.stroke(band(middle),
        roundPen(radial(ring.centre, ring.radius,
                     {{inner, blended(tints.body, tints.light, 0.4)}, {(inner + 1) / 2, tints.body},
                         {(inner + 1) / 2 + 0.01, blended(tints.body, tints.shade, 0.35)}, {1, tints.body}}),
            width - 2 * gelEdge));
    canvas.stroke(band(middle + raised),
        roundPen(conical(ring.centre, -0.1,
                     {{0, skylight(0.8)}, {0.4, skylight(0.35)}, {0.6, skylight(0.35)}, {1, skylight(0.8)}}),
            highlight));
}

void orb(Canvas& canvas, QPointF centre, double radius, const QColor& colour)
{
    const Tints tints(colour);
    canvas.disc(centre + QPointF(0, radius * 0.1), radius, faded(deep, 0.4));
    canvas.disc(centre, radius, tints.shade);
    canvas.disc(centre, radius - gelEdge,
        radial(
            centre + QPointF(0, radius * 0.6), radius * 1.6, {{0, tints.light}, {0.5, tints.body}, {1, tints.shade}}));
    const Box gleam(centre.x() - radius * 0.66, centre.y() - radius * 0.9, radius * 1.32, radius * 0.92);
    QPainterPath light;
    light.addEllipse(gleam);
    canvas.fill(light, downwards(gleam, {{0, skylight(0.9)}, {1, skylight(0.1)}}));
}

void glossySky(Canvas& canvas, const SkinStyle& style, const Box& square, Sky weather)
{
    constexpr double units = 48; // a side of the picture
    const Pictogram& picture = Pictogram::of(weather);
    const auto placed = [&](const QPainterPath& shape) {
        const QRectF bounds = shape.boundingRect();
        const double scale = square.width() / units;
        return Box(QRectF(square.topLeft() + bounds.topLeft() * scale, bounds.size() * scale));
    };
    const QColor& sun = style.accent3;
    const QGradientStops yellow{{0, blended(sun, Qt::white, 0.75)}, {0.5, sun}, {1, Tints(sun).shade.lighter(130)}};
    const Box disc = placed(picture.disc);
    if (!picture.disc.isEmpty() && !picture.night)
        canvas.disc(disc.center(), square.width() / 2, halo(disc.center(), square.width() / 2, sun, 0.5));
    drawPictogram(canvas, square, weather,
        {.sun = downwards(disc, yellow),
            .moon = downwards(disc, {{0, Qt::white}, {1, moonShade}}),
            .cloud = downwards(placed(picture.cloud), {{0, Qt::white}, {0.5, cloudLight}, {1, cloudShade}}),
            .water = style.accent,
            .bolt = downwards(placed(picture.bolt), yellow)});
}

void bubble(Canvas& canvas, QPointF centre, double radius)
{
    canvas.disc(
        centre, radius, radial(centre, radius, {{0, skylight(0.03)}, {0.7, skylight(0.06)}, {1, skylight(0.3)}}));
    canvas.stroke(arc(squareAbout(centre, radius - gelEdge / 2), 0, 1), QPen(skylight(0.5), gelEdge));
    const double width = std::max(0.7, radius * 0.15);
    canvas.stroke(arc(squareAbout(centre, radius * 0.66), 0.78, 0.17), roundPen(skylight(0.9), width));
    canvas.disc(centre + QPointF(radius, radius) * 0.42, width * 0.6, skylight(0.6));
}

void risingBubbles(Canvas& canvas, const Box& gel, int seed)
{
    constexpr double speed = 8; // points a second
    constexpr double fps = 10;
    constexpr double unseen = 10; // points of their way outside the gel
    constexpr double golden = 0.618; // no two neighbours are level, however many there are
    const bool bar = gel.height() < 20; // one beside the other; in what is higher they rise among each other
    const int count = static_cast<int>(gel.width() / (bar ? 15 : 4));
    if (count <= 0)
        return;
    const double way = gel.height() + unseen;
    canvas.moving(gel, Motion::steady(fps), [&](Canvas& moving, double time) {
        SeededRandom random{static_cast<std::uint64_t>(seed)};
        const double first = random.in(0, 1);
        for (int index = 0; index < count; ++index) {
            const double radius = random.in(0.14, 0.21) * std::min({gel.height(), gel.width(), 14.0});
            const Box column = (bar ? Box(gel).column(index, count) : gel).inset(radius + 0.5);
            const double x = random.in(column.left(), column.right());
            const double risen = std::fmod((first + index * golden) * way + time * speed, way) / gel.height();
            const double shown = risen < 1 ? std::sin(std::numbers::pi * risen) : 0; // comes and goes without a jump
            const QPointF centre(x, column.bottom() - column.height() * risen);
            moving.disc(centre, radius, skylight(0.4 * shown));
            moving.stroke(arc(squareAbout(centre, radius), 0, 1), QPen(faded(deep, 0.4 * shown), 0.6));
            moving.disc(centre - QPointF(radius, radius) * 0.3, radius * 0.35, skylight(shown));
        }
    });
}

} // namespace ambrelle::aero
