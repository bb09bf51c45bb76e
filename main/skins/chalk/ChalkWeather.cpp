// SPDX-License-Identifier: MIT

#include "skins/chalk/ChalkWeather.h"

#include "drawing/Arc.h"
#include "drawing/Colours.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "skins/chalk/ChalkStyle.h"

#include <array>

namespace ambrelle::chalk {

using namespace Qt::StringLiterals;

namespace {

constexpr double unitSide = 48; // of the square that pictures are thought in
constexpr double smilingSide = 34; // points from which the sun has a face
constexpr double haze = 0.14; // of chalk smeared inside a shape

/// Draws in a square of 48 units, y down.
class Sketch {
public:
    Sketch(Canvas& canvas, const Box& square)
        : m_canvas(canvas)
        , m_scale(square.width() / unitSide)
        , m_width(std::clamp(square.width() * 0.048, 1.1, 2.2))
    {
        m_place.translate(square.x(), square.y());
        m_place.scale(m_scale, m_scale);
    }

    double side() const { return m_scale * unitSide; }
    void stroke(const QPainterPath& path, const QColor& colour, double part = 1) const
    {
        m_canvas.stroke(m_place.map(path), roundPen(colour, m_width * part));
    }
    void smear(const QPainterPath& path, const QColor& colour) const
    {
        m_canvas.fill(m_place.map(path), faded(colour, haze));
    }

private:
    Canvas& m_canvas;
    double m_scale;
    double m_width;
    QTransform m_place;
};

/// Scallops from left to right over a base that sags a little.
QPainterPath scallops(double left, double base, double width)
{
    constexpr std::array<QPointF, 6> feet{
        {{0.1, 0}, {0.05, -0.24}, {0.28, -0.46}, {0.62, -0.5}, {0.9, -0.3}, {0.92, 0}}};
    constexpr double bulge = 0.62;
    QPainterPath path(feet.front());
    for (std::size_t foot = 1; foot < feet.size(); ++foot) {
        const QPointF from = feet.at(foot - 1);
        const QPointF way = feet.at(foot) - from;
        const QPointF out = QPointF(way.y(), -way.x()) * bulge;
        path.cubicTo(from + way * 0.1 + out, from + way * 0.9 + out, feet.at(foot));
    }
    path.quadTo(0.5, 0.05, feet.front().x(), feet.front().y());
    QTransform place = QTransform::fromTranslate(left, base);
    place.scale(width, width);
    return place.map(path);
}

/// What of a line stays in sight beside a cloud.
QPainterPath beside(const QPainterPath& path, const QPainterPath& cloud)
{
    QPainterPath kept;
    if (cloud.isEmpty())
        return path;
    QPainterPathStroker rim;
    rim.setWidth(5);
    const QPainterPath covered = cloud.united(rim.createStroke(cloud));
    const QTransform fine = QTransform::fromScale(4, 4);
    for (const QPolygonF& outline : path.toSubpathPolygons(fine)) {
        bool drawing = false;
        for (const QPointF& point : fine.inverted().map(outline)) {
            const bool seen = !covered.contains(point);
            if (seen && drawing)
                kept.lineTo(point);
            else if (seen)
                kept.moveTo(point);
            drawing = seen;
        }
    }
    return kept;
}

void drawSun(const Sketch& sketch, QPointF centre, double radius, const QPainterPath& cloud = {})
{
    constexpr int count = 9;
    constexpr std::array<double, 3> lengths{1.0, 0.62, 0.82};
    QPainterPath disc;
    disc.addEllipse(centre, radius, radius * 0.97);
    sketch.smear(disc.subtracted(cloud), yellow);
    sketch.stroke(beside(disc, cloud), yellow);
    QPainterPath rays;
    for (int ray = 0; ray < count; ++ray) {
        const double turns = (ray + (ray % 2 == 0 ? 0.08 : -0.06)) / count;
        const QPointF from = pointOn(centre, radius * 1.4, turns);
        const QPointF to =
            pointOn(centre, radius * (1.4 + 0.72 * lengths.at(static_cast<std::size_t>(ray) % 3)), turns);
        if (!cloud.boundingRect().adjusted(-1, -1, 1, 1).contains(from)) {
            rays.moveTo(from);
            rays.lineTo(to);
        }
    }
    sketch.stroke(rays, yellow);
    if (!cloud.isEmpty() || sketch.side() < smilingSide)
        return;
    QPainterPath face(centre + QPointF(-3.4, -2.6));
    face.lineTo(centre + QPointF(-3.4, -0.9));
    face.moveTo(centre + QPointF(3.4, -2.6));
    face.lineTo(centre + QPointF(3.4, -0.9));
    face.moveTo(centre + QPointF(-4.4, 2.4));
    face.quadTo(centre + QPointF(0, 6.4), centre + QPointF(4.4, 2.4));
    sketch.stroke(face, yellow, 0.75);
}

void drawMoon(const Sketch& sketch, QPointF centre, double radius, const QPainterPath& cloud = {})
{
    QPainterPath disc;
    disc.addEllipse(centre, radius, radius);
    QPainterPath bite;
    bite.addEllipse(centre + QPointF(radius * 0.6, -radius * 0.36), radius * 0.84, radius * 0.84);
    const QPainterPath crescent = disc.subtracted(bite);
    sketch.smear(crescent.subtracted(cloud), ink);
    sketch.stroke(beside(crescent, cloud), ink);
    const QPointF star = centre + QPointF(radius * 0.72, -radius * 0.42);
    QPainterPath rays;
    for (int ray = 0; ray < 3; ++ray) {
        rays.moveTo(pointOn(star, radius * 0.26, ray / 6.0));
        rays.lineTo(pointOn(star, radius * 0.26, ray / 6.0 + 0.5));
    }
    sketch.stroke(rays, yellow, 0.75);
}

QPainterPath drawCloud(const Sketch& sketch, double left, double base, double width)
{
    const QPainterPath cloud = scallops(left, base, width);
    sketch.smear(cloud, ink);
    sketch.stroke(cloud, ink);
    return cloud;
}

void drawRain(const Sketch& sketch, int count, double length)
{
    QPainterPath lines;
    for (int drop = 0; drop < count; ++drop) {
        const double x = unitSide / 2 + (drop - (count - 1) / 2.0) * 10 + 1.5;
        const double y = drop % 2 == 0 ? 35 : 37;
        lines.moveTo(x + length * 0.2, y);
        lines.lineTo(x - length * 0.2, y + length);
    }
    sketch.stroke(lines, blue);
}

void drawSnow(const Sketch& sketch)
{
    QPainterPath lines;
    for (int flake = 0; flake < 3; ++flake) {
        const QPointF centre(unitSide / 2 + (flake - 1) * 12.5, flake == 1 ? 43 : 38.5);
        for (int arm = 0; arm < 3; ++arm) {
            lines.moveTo(pointOn(centre, 4, arm / 6.0));
            lines.lineTo(pointOn(centre, 4, arm / 6.0 + 0.5));
        }
    }
    sketch.stroke(lines, ink, 0.8);
}

void drawBolt(const Sketch& sketch)
{
    QPainterPath bolt;
    bolt.addPolygon(
        QPolygonF{{27, 31}, {18.5, 40}, {24.5, 39.5}, {20.5, 48}, {31, 37}, {25.4, 37}, {29.5, 31}, {27, 31}});
    sketch.smear(bolt, yellow);
    sketch.stroke(bolt, yellow, 0.85);
}

void drawMist(const Sketch& sketch, std::initializer_list<QLineF> lines)
{
    QPainterPath waves;
    for (const QLineF& line : lines)
        waves.addPath(wavyLine(line.p1(), line.p2(), 1.5, 11));
    sketch.stroke(waves, ink, 0.85);
}

void sketchSky(const Sketch& sketch, Sky sky)
{
    const auto highCloud = [&] { drawCloud(sketch, 4, 30, 40); };
    switch (sky) {
    case Sky::clear: return drawSun(sketch, {24, 24}, 10.5);
    case Sky::clearNight: return drawMoon(sketch, {23, 25}, 16);
    case Sky::partly: return drawSun(sketch, {32, 17}, 8.5, drawCloud(sketch, 1, 43, 38));
    case Sky::partlyNight: return drawMoon(sketch, {33, 16}, 11.5, drawCloud(sketch, 1, 43, 38));
    case Sky::cloudy: drawCloud(sketch, 2, 38, 44); return;
    case Sky::fog:
        drawCloud(sketch, 5, 27, 38);
        return drawMist(sketch, {{8, 33.5, 40, 33.5}, {12, 39.5, 37, 39.5}, {8, 45.5, 40, 45.5}});
    case Sky::drizzle: highCloud(); return drawRain(sketch, 2, 6);
    case Sky::rain: highCloud(); return drawRain(sketch, 3, 10);
    case Sky::snow: highCloud(); return drawSnow(sketch);
    case Sky::thunder: highCloud(); return drawBolt(sketch);
    case Sky::unknown: return drawMist(sketch, {{12, 24, 36, 24}});
    }
}

} // namespace

void drawSky(Canvas& canvas, const Box& box, Sky sky)
{
    const Box square = box.square();
    canvas.still(
        u"sky"_s, square.inset(-2), [&](Canvas& layer) { sketchSky(Sketch(layer, square), sky); }, sky);
}

} // namespace ambrelle::chalk
