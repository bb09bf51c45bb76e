// SPDX-License-Identifier: MIT

#include "skins/cockpit/WeatherRadar.h"

#include "drawing/Colours.h"
#include "drawing/Gauge.h"
#include "drawing/Gradients.h"
#include "drawing/Pens.h"
#include "drawing/RadarSweep.h"
#include "drawing/SeededRandom.h"
#include "skins/cockpit/CockpitPieces.h"

#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle::cockpit {

using namespace Qt::StringLiterals;

namespace {

const QColor screen(0x0B, 0x1A, 0x13);

/// A cell of weather; places and radii are in parts of the screen's radius.
struct Cell {
    double turns;
    double distance;
    double radius;
};

constexpr std::array<Cell, 7> cells{{{0.09, 0.52, 0.25}, {0.83, 0.6, 0.2}, {0.2, 0.66, 0.17}, {0.66, 0.46, 0.19},
    {0.4, 0.62, 0.23}, {0.95, 0.3, 0.12}, {0.53, 0.74, 0.14}}};

/// What a sky sends back.
struct Echo {
    int cells = 0;
    QList<QColor> shades{}; ///< from the edge of a cell to its core
};

Echo echoOf(Sky sky)
{
    switch (sky) {
    case Sky::clear:
    case Sky::clearNight:
    case Sky::unknown: return {};
    case Sky::partly:
    case Sky::partlyNight: return {3, {faded(green, 0.22)}};
    case Sky::cloudy: return {6, {faded(green, 0.22), faded(green, 0.2)}};
    case Sky::fog: return {7, {faded(Qt::white, 0.12)}};
    case Sky::drizzle: return {4, {faded(green, 0.4), faded(green, 0.45)}};
    case Sky::rain: return {6, {faded(green, 0.45), faded(green, 0.5), faded(amber, 0.8)}};
    case Sky::snow: return {6, {faded(blue, 0.3), faded(blue, 0.4)}};
    case Sky::thunder: return {7, {faded(green, 0.45), faded(amber, 0.8), faded(red, 0.9)}};
    }
    return {};
}

/// A ragged patch, longer than broad.
QPainterPath patch(QPointF centre, double radius, SeededRandom random)
{
    constexpr int corners = 48;
    constexpr double turn = 2 * std::numbers::pi;
    const double lying = random.in(0, turn);
    const std::array<double, 3> phases{random.in(0, turn), random.in(0, turn), random.in(0, turn)};
    QPolygonF outline;
    for (int corner = 0; corner < corners; ++corner) {
        const double angle = turn * corner / corners;
        const double ragged = 0.8 + 0.2 * std::sin(2 * angle + phases[0]) + 0.14 * std::sin(3 * angle + phases[1])
            + 0.08 * std::sin(7 * angle + phases[2]);
        outline.append({1.3 * radius * ragged * std::cos(angle), 0.85 * radius * ragged * std::sin(angle)});
    }
    QPainterPath path;
    path.addPolygon(outline);
    path.closeSubpath();
    return QTransform::fromTranslate(centre.x(), centre.y()).rotateRadians(lying).map(path);
}

void echoes(Canvas& canvas, const Gauge& disc, Sky sky)
{
    const Echo echo = echoOf(sky);
    for (std::size_t index = 0; index < static_cast<std::size_t>(echo.cells); ++index) {
        const Cell& cell = cells[index];
        const QPointF centre = disc.at(cell.turns, disc.radius * cell.distance);
        double size = 1;
        for (const QColor& shade : echo.shades) {
            canvas.fill(patch(centre, disc.radius * cell.radius * size, {index + 1}), shade);
            size -= 0.34;
        }
    }
}

void rings(Canvas& canvas, const Gauge& disc)
{
    const QPen line(faded(green, 0.3), 0.8);
    for (const double range : {0.25, 0.5, 0.75})
        canvas.stroke(disc.arc(0, 1, disc.radius * range), line);
    for (const double side : {0.0, 0.25})
        canvas.line(disc.at(side, disc.radius), disc.at(side + 0.5, disc.radius), QPen(faded(green, 0.16), 0.8));
    disc.ticks(canvas, 36, 3, {6, flatPen(faded(green, 0.8), 1.2)}, {3, flatPen(faded(green, 0.5), 0.8)});
}

} // namespace

void weatherRadar(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky)
{
    const Box place = box.square();
    const Gauge disc = Gauge::in(place.inset(2), 0, 360);
    canvas.still(
        u"radar"_s, place,
        [&](Canvas& layer) {
            const double r = disc.radius;
            layer.disc(disc.centre, r, radial(disc.centre, r, {{0, screen.lighter(135)}, {1, well}}));
            echoes(layer, disc, sky);
            rings(layer, disc);
            roundRim(layer, disc);
            layer.symbol(place, u"airplane"_s, 13, style.ink);
        },
        sky);
    RadarSweep{.colour = green, .period = 6}.draw(canvas, Box(place).inset(2.5));
}

} // namespace ambrelle::cockpit
