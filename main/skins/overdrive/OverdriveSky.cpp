// SPDX-License-Identifier: MIT

#include "drawing/Pens.h"
#include "skins/overdrive/OverdrivePieces.h"
#include "skins/overdrive/OverdriveStyle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle::overdrive {

using namespace Qt::StringLiterals;

namespace {

// Pictures of 48 by 48 units without a curve.

constexpr double units = 48;
constexpr double barWidth = 3.4;

/// A shape of a picture. One with an edge hides what is behind it.
struct Cut {
    QPainterPath path;
    QColor fill;
    QColor edge{};
};

QPainterPath polygon(const QPolygonF& corners)
{
    QPainterPath path;
    path.addPolygon(corners);
    path.closeSubpath();
    return path;
}

QPainterPath octagon(QPointF centre, double radius)
{
    QPolygonF corners;
    for (int corner = 0; corner < 8; ++corner) {
        const double angle = std::numbers::pi * (2 * corner + 1) / 8;
        corners.append(centre + QPointF(std::cos(angle), std::sin(angle)) * radius);
    }
    return polygon(corners);
}

/// A bar whose ends are cut along the horizontal.
QPainterPath slash(QPointF from, QPointF to, double width)
{
    const QPointF half(width / 2, 0);
    return polygon({from - half, from + half, to + half, to - half});
}

/// Bars about a centre, `inner` to `outer` units from it.
QPainterPath star(QPointF centre, int count, double inner, double outer, double width)
{
    QPainterPath bars;
    for (int bar = 0; bar < count; ++bar) {
        QTransform turn = QTransform::fromTranslate(centre.x(), centre.y());
        turn.rotate(180.0 * bar / count * (inner < 0 ? 1 : 2));
        QPainterPath one;
        one.addRect(-width / 2, inner, width, outer - inner);
        bars.addPath(turn.map(one));
    }
    bars.setFillRule(Qt::WindingFill);
    return bars;
}

QList<Cut> sun(QPointF centre, double radius, const QColor& colour)
{
    return {
        {octagon(centre, radius), colour}, {star(centre, 8, radius * 1.35, radius * 1.85, barWidth * 0.85), colour}};
}

Cut moon(QPointF centre, double radius, const QColor& colour)
{
    const QPointF shadow = centre + QPointF(0.55, -0.35) * radius;
    return {octagon(centre, radius).subtracted(octagon(shadow, radius * 0.86)), colour};
}

/// Hexagons that have grown together, on the level `base`.
Cut cloud(double left, double base, double width, const QColor& colour)
{
    const QPolygonF outline{
        {5, 0}, {0, -6.5}, {4, -13}, {10, -13}, {15, -22}, {25, -22}, {30, -14}, {36, -14}, {40, -7}, {36, 0}};
    QTransform place = QTransform::fromTranslate(left, base);
    place.scale(width / 40, width / 40);
    return {place.map(polygon(outline)), plateColour, colour};
}

QList<Cut> rain(int count, double length)
{
    QList<Cut> slashes;
    for (int drop = 0; drop < count; ++drop) {
        const QPointF from(27 + (drop - (count - 1) / 2.0) * 10, 34);
        slashes.append({slash(from, from + QPointF(-length * 0.45, length), barWidth), cyan});
    }
    return slashes;
}

QList<Cut> snow()
{
    QList<Cut> flakes;
    for (const QPointF centre : {QPointF(13, 38), QPointF(24.5, 42), QPointF(36, 38)})
        flakes.append({star(centre, 3, -4.2, 4.2, 1.8), cyan});
    return flakes;
}

QList<Cut> fog(const QColor& colour)
{
    QList<Cut> bars;
    const QList<QLineF> lines{{12, 12, 44, 12}, {4, 20.5, 38, 20.5}, {10, 29, 45, 29}, {4, 37.5, 30, 37.5}};
    for (const QLineF& bar : lines) {
        const QPointF lean(2, 4);
        bars.append({polygon({bar.p1() + QPointF(lean.x(), 0), bar.p2() + QPointF(lean.x(), 0),
                         bar.p2() + QPointF(0, lean.y()), bar.p1() + QPointF(0, lean.y())}),
            colour});
    }
    return bars;
}

QList<Cut> cutsOf(const SkinStyle& style, Sky sky)
{
    const Cut high = cloud(4, 30, 41, style.ink); // with something below it
    const Cut low = cloud(2, 43, 37, style.ink); // with something behind it
    const Cut bolt{polygon({{27, 31}, {17, 40}, {22.5, 40}, {19, 48}, {31, 37.5}, {25, 37.5}, {30, 31}}), style.accent};
    switch (sky) {
    case Sky::clear: return sun({24, 24}, 11.5, style.accent);
    case Sky::clearNight: return {moon({22, 26}, 17, style.ink)};
    case Sky::partly: return sun({31, 17}, 8.5, style.accent) + QList{low};
    case Sky::partlyNight: return {moon({33, 17}, 12, style.accent), low};
    case Sky::cloudy: return {cloud(3, 36, 42, style.ink)};
    case Sky::fog: return fog(style.ink);
    case Sky::drizzle: return QList{high} + rain(2, 8);
    case Sky::rain: return QList{high} + rain(3, 12);
    case Sky::snow: return QList{high} + snow();
    case Sky::thunder: return {high, bolt};
    case Sky::unknown: return {{polygon({{14, 22}, {36, 22}, {34, 27}, {12, 27}}), style.soft}};
    }
    Q_UNREACHABLE();
}

} // namespace

void skyPicture(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky)
{
    constexpr double thinnest = 1.4;
    const Box square = box.square();
    const double scale = square.width() / units;
    QTransform place = QTransform::fromTranslate(square.x(), square.y());
    place.scale(scale, scale);
    const auto draw = [&](Canvas& layer) {
        for (const Cut& cut : cutsOf(style, sky)) {
            const QPainterPath shape = place.map(cut.path);
            if (cut.edge.isValid()) // the ground keeps what is behind apart
                layer.stroke(shape, flatPen(plateColour, std::max(thinnest, 2.6 * scale) + 3));
            layer.fill(shape, cut.fill);
            if (cut.edge.isValid())
                layer.stroke(shape, flatPen(cut.edge, std::max(thinnest, 2.6 * scale)));
        }
    };
    canvas.still(u"sky"_s, square.inset(-2), draw, sky);
}

} // namespace ambrelle::overdrive
