// SPDX-License-Identifier: MIT

#include "faces/Pictogram.h"

#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr double side = 48;
constexpr std::size_t skies = static_cast<std::size_t>(Sky::unknown) + 1;

QPainterPath circle(double x, double y, double radius)
{
    QPainterPath path;
    path.addEllipse(QPointF(x, y), radius, radius);
    return path;
}

/// Clouds have flat bases, which lie on `base`. Shapes that are united become polygons whose corners are the farther
/// apart, the smaller they are meanwhile: `detail` is the width of the cloud by then.
struct Clouds {
    double detail = side;

    QPainterPath at(double left, double base, double width) const;
};

QPainterPath Clouds::at(double left, double base, double width) const
{
    const auto puff = [&](double x, double y, double radius) {
        return circle(x * detail, y * detail, radius * detail);
    };
    QPainterPath whole;
    whole.addRoundedRect(
        QRectF(0.04 * detail, -0.24 * detail, 0.92 * detail, 0.24 * detail), 0.12 * detail, 0.12 * detail);
    whole = whole.united(puff(0.24, -0.20, 0.20)).united(puff(0.47, -0.36, 0.27)).united(puff(0.75, -0.24, 0.21));
    QTransform place = QTransform::fromTranslate(left, base);
    place.scale(width / detail, width / detail);
    return place.map(whole.simplified());
}

QPainterPath raysAt(double x, double y, double inner, double outer)
{
    QPainterPath path;
    for (int index = 0; index < 8; ++index) {
        const double angle = std::numbers::pi * index / 4;
        const QPointF way(std::cos(angle), std::sin(angle));
        path.moveTo(QPointF(x, y) + way * inner);
        path.lineTo(QPointF(x, y) + way * outer);
    }
    return path;
}

QPainterPath crescent(double x, double y, double radius)
{
    return circle(x, y, radius).subtracted(circle(x + radius * 0.55, y - radius * 0.35, radius * 0.85));
}

/// A thicker copy, to keep a gap between a cloud and what stands behind it.
QPainterPath grown(const QPainterPath& path, double by)
{
    QPainterPathStroker stroker;
    stroker.setWidth(by * 2);
    return path.united(stroker.createStroke(path));
}

/// Only the rays that stay clear of the cloud.
QPainterPath raysBeside(const QPainterPath& rays, const QPainterPath& cloud)
{
    QPainterPath kept;
    for (int index = 0; index + 1 < rays.elementCount(); index += 2) {
        const QPointF from = rays.elementAt(index);
        const QPointF to = rays.elementAt(index + 1);
        if (cloud.contains(from) || cloud.contains(to))
            continue;
        kept.moveTo(from);
        kept.lineTo(to);
    }
    return kept;
}

QPainterPath drops(int count, double length)
{
    QPainterPath path;
    for (int index = 0; index < count; ++index) {
        const double x = side / 2 + (index - (count - 1) / 2.0) * 9 + 1;
        path.moveTo(x + length * 0.18, 35);
        path.lineTo(x - length * 0.18, 35 + length);
    }
    return path;
}

QPainterPath flakes()
{
    QPainterPath path;
    for (int index = 0; index < 3; ++index) {
        const QPointF centre(side / 2 + (index - 1) * 11, index == 1 ? 42 : 38);
        for (int arm = 0; arm < 3; ++arm) {
            const double angle = std::numbers::pi * (arm / 3.0 + 0.5);
            const QPointF way = QPointF(std::cos(angle), std::sin(angle)) * 3.4;
            path.moveTo(centre - way);
            path.lineTo(centre + way);
        }
    }
    return path;
}

QPainterPath boltPath()
{
    QPainterPath path;
    path.addPolygon(
        QPolygonF{{26, 30}, {18, 39.5}, {23, 39.5}, {20.5, 47}, {30, 36.5}, {24.6, 36.5}, {28.4, 30}, {26, 30}});
    return path;
}

QPainterPath level(std::initializer_list<QLineF> lines)
{
    QPainterPath path;
    for (const QLineF& line : lines) {
        path.moveTo(line.p1());
        path.lineTo(line.p2());
    }
    return path;
}

void coverWith(Pictogram& picture, const QPainterPath& cloud)
{
    const QPainterPath covered = grown(cloud, 1.8);
    picture.cloud = cloud;
    picture.disc = picture.disc.subtracted(covered);
    picture.rays = raysBeside(picture.rays, grown(cloud, 3));
}

Pictogram make(Sky sky, const Clouds& clouds)
{
    Pictogram picture;
    const QPainterPath highCloud = clouds.at(5, 30, 38);
    switch (sky) {
    case Sky::clear:
        picture.disc = circle(24, 24, 10);
        picture.rays = raysAt(24, 24, 15, 20);
        break;
    case Sky::clearNight: picture.disc = crescent(22, 26, 16); break;
    case Sky::partly:
        picture.disc = circle(31, 18, 8);
        picture.rays = raysAt(31, 18, 11.5, 15);
        coverWith(picture, clouds.at(2, 41, 36));
        break;
    case Sky::partlyNight:
        picture.disc = crescent(32, 17, 11);
        coverWith(picture, clouds.at(2, 41, 36));
        break;
    case Sky::cloudy: picture.cloud = clouds.at(3, 38, 42); break;
    case Sky::fog:
        picture.cloud = clouds.at(6, 27, 36);
        picture.mist = level({{8, 33, 40, 33}, {12, 39, 36, 39}, {8, 45, 40, 45}});
        break;
    case Sky::drizzle:
        picture.cloud = highCloud;
        picture.water = drops(2, 6);
        break;
    case Sky::rain:
        picture.cloud = highCloud;
        picture.water = drops(3, 10);
        break;
    case Sky::snow:
        picture.cloud = highCloud;
        picture.water = flakes();
        break;
    case Sky::thunder:
        picture.cloud = highCloud;
        picture.bolt = boltPath();
        picture.cloud = picture.cloud.subtracted(grown(picture.bolt, 1.8));
        break;
    case Sky::unknown: picture.mist = level({{16, 24, 32, 24}}); break;
    }
    picture.night = sky == Sky::clearNight || sky == Sky::partlyNight;
    return picture;
}

/// Every curve as two chords: a circle becomes an octagon.
QPainterPath straightened(const QPainterPath& path)
{
    constexpr double shortest = 1.2; // units; a chord below is left out
    constexpr int curveParts = 3; // a cubic is stored as its first control point and two more elements
    QPainterPath result;
    const auto lineTo = [&result](QPointF point) {
        if (QLineF(result.currentPosition(), point).length() > shortest)
            result.lineTo(point);
    };
    for (int index = 0; index < path.elementCount(); ++index) {
        const QPainterPath::Element& element = path.elementAt(index);
        if (element.isMoveTo()) {
            result.moveTo(element);
        } else if (element.isLineTo()) {
            lineTo(element);
        } else {
            const QPointF from = path.elementAt(index - 1);
            const QPointF end = path.elementAt(index + 2);
            lineTo((from + 3 * QPointF(element) + 3 * QPointF(path.elementAt(index + 1)) + end) / 8);
            lineTo(end);
            index += curveParts - 1;
        }
    }
    return result;
}

Pictogram makeRound(Sky sky)
{
    return make(sky, {});
}

Pictogram makeStraight(Sky sky)
{
    constexpr double coarse = 1;
    Pictogram picture = make(sky, {.detail = coarse});
    for (QPainterPath* shape : {&picture.disc, &picture.cloud}) {
        if (shape->isEmpty())
            continue;
        *shape = straightened(*shape);
        shape->closeSubpath();
    }
    return picture;
}

const Pictogram& kept(Sky sky, Pictogram (*draw)(Sky), std::array<std::optional<Pictogram>, skies>& made)
{
    std::optional<Pictogram>& slot = made.at(static_cast<std::size_t>(sky));
    if (!slot)
        slot = draw(sky);
    return *slot;
}

} // namespace

const Pictogram& Pictogram::of(Sky sky)
{
    thread_local std::array<std::optional<Pictogram>, skies> made;
    return kept(sky, makeRound, made);
}

const Pictogram& Pictogram::straightOf(Sky sky)
{
    thread_local std::array<std::optional<Pictogram>, skies> made;
    return kept(sky, makeStraight, made);
}

void drawPictogram(Canvas& canvas, const Box& box, Sky sky, const PictogramPaint& paint)
{
    const Pictogram& picture = paint.straight ? Pictogram::straightOf(sky) : Pictogram::of(sky);
    const Qt::PenCapStyle cap = paint.straight ? Qt::FlatCap : Qt::RoundCap;
    const Qt::PenJoinStyle join = paint.straight ? Qt::MiterJoin : Qt::RoundJoin;
    const Box square = box.square();
    const double scale = square.width() / side;
    QTransform place = QTransform::fromTranslate(square.x(), square.y());
    place.scale(scale, scale);
    const double width = paint.outline > 0 ? paint.outline : paint.line * scale;
    const auto shape = [&](const QPainterPath& path, const QBrush& brush) {
        if (path.isEmpty())
            return;
        if (paint.outline > 0)
            canvas.stroke(place.map(path), QPen(brush, paint.outline, Qt::SolidLine, cap, join));
        else
            canvas.fill(place.map(path), brush);
    };
    const auto lines = [&](const QPainterPath& path, const QBrush& brush) {
        if (!path.isEmpty())
            canvas.stroke(place.map(path), QPen(brush, width, Qt::SolidLine, cap));
    };
    shape(picture.disc, picture.night ? paint.moon : paint.sun);
    lines(picture.rays, paint.sun);
    shape(picture.cloud, paint.cloud);
    lines(picture.mist, paint.cloud);
    lines(picture.water, paint.water);
    shape(picture.bolt, paint.bolt);
}

} // namespace ambrelle
