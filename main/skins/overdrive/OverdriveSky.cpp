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

/// A shape of a picture; an outlined one hides what is behind it.
struct Cut {
    QPainterPath path;
    QColor colour;
    bool outlined = false;
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

QPainterPath crescent(QPointF centre, double radius)
{
    return octagon(centre, radius).subtracted(octagon(centre + QPointF(0.55, -0.35) * radius, radius * 0.86));
}

/// Bars all around between two distances from a centre.
QPainterPath rays(QPointF centre, int count, double inner, double outer, double width)
{
    QPainterPath bars;
    for (int bar = 0; bar < count; ++bar) {
        QPainterPath one;
        one.addRect(-width / 2, inner, width, outer - inner);
        bars.addPath(QTransform::fromTranslate(centre.x(), centre.y()).rotate(360.0 * bar / count).map(one));
    }
    bars.setFillRule(Qt::WindingFill);
    return bars;
}

/// A bar from the upper edge of a box to its lower one, cut along both, `width` units across.
QPainterPath slash(QPointF top, QPointF way, double width)
{
    return polygon({top, top + QPointF(width, 0), top + way + QPointF(width, 0), top + way});
}

QList<Cut> sun(QPointF centre, double radius, const QColor& colour)
{
    return {{octagon(centre, radius), colour}, {rays(centre, 8, radius * 1.35, radius * 1.85, 2.9), colour}};
}

/// Hexagons that have grown together, on the level `base`.
Cut cloud(double left, double base, double width, const QColor& colour)
{
    const QPolygonF outline{
        {5, 0}, {0, -6.5}, {4, -13}, {10, -13}, {15, -22}, {25, -22}, {30, -14}, {36, -14}, {40, -7}, {36, 0}};
    const QTransform place = QTransform::fromTranslate(left, base).scale(width / 40, width / 40);
    return {place.map(polygon(outline)), colour, true};
}

/// Equal shapes in a row under a cloud.
QList<Cut> falling(int count, double pitch, const QPainterPath& shape)
{
    QList<Cut> shapes;
    for (int index = 0; index < count; ++index)
        shapes.append({shape.translated(25 + (index - (count - 1) / 2.0) * pitch, 34), cyan});
    return shapes;
}

QList<Cut> fog(const QColor& colour)
{
    QList<Cut> bars;
    for (const QRectF& bar : {QRectF(12, 11, 31, 4), {4, 20, 33, 4}, {11, 29, 33, 4}, {4, 38, 25, 4}})
        bars.append({slash(bar.topLeft() + QPointF(2, 0), {-2, bar.height()}, bar.width()), colour});
    return bars;
}

QList<Cut> cutsOf(const SkinStyle& style, Sky sky)
{
    const Cut high = cloud(4, 30, 41, style.ink); // with something below it
    const Cut low = cloud(2, 43, 37, style.ink); // with something behind it
    const QPolygonF bolt{{27, 31}, {17, 40}, {22.5, 40}, {19, 48}, {31, 37.5}, {25, 37.5}, {30, 31}};
    switch (sky) {
    case Sky::clear: return sun({24, 24}, 11.5, style.accent);
    case Sky::clearNight: return {{crescent({22, 26}, 17), style.ink}};
    case Sky::partly: return sun({31, 17}, 8.5, style.accent) + QList{low};
    case Sky::partlyNight: return {{crescent({33, 17}, 12), style.ink}, low};
    case Sky::cloudy: return {cloud(3, 36, 42, style.ink)};
    case Sky::fog: return fog(style.ink);
    case Sky::drizzle: return QList{high} + falling(2, 10, slash({0, 0}, {-3.6, 8}, 3.4));
    case Sky::rain: return QList{high} + falling(3, 10, slash({1, 0}, {-5.4, 12}, 3.4));
    case Sky::snow: return QList{high} + falling(3, 12, rays({0, 5}, 6, 0, 4.6, 1.8));
    case Sky::thunder: return {high, {polygon(bolt), style.accent}};
    case Sky::unknown: return {{slash({14, 22}, {-2, 5}, 22), style.soft}};
    }
    Q_UNREACHABLE();
}

} // namespace

void skyPicture(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky)
{
    const Box square = box.square();
    const double scale = square.width() / 48;
    const double line = std::max(1.4, 2.6 * scale);
    const QTransform place = QTransform::fromTranslate(square.x(), square.y()).scale(scale, scale);
    const auto draw = [&](Canvas& layer) {
        for (const Cut& cut : cutsOf(style, sky)) {
            const QPainterPath shape = place.map(cut.path);
            layer.fill(shape, cut.outlined ? plateColour : cut.colour);
            if (!cut.outlined)
                continue;
            layer.stroke(shape, flatPen(plateColour, line + 3)); // apart from what is behind
            layer.stroke(shape, flatPen(cut.colour, line));
        }
    };
    canvas.still(u"sky"_s, square.inset(-2), draw, sky);
}

} // namespace ambrelle::overdrive
