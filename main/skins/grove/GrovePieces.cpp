// SPDX-License-Identifier: MIT

#include "skins/grove/GrovePieces.h"

#include "drawing/Arc.h"
#include "drawing/Charts.h"
#include "drawing/Fraction.h"
#include "drawing/Gradients.h"
#include "drawing/Hatch.h"
#include "drawing/Pens.h"
#include "drawing/Plates.h"
#include "faces/Pictogram.h"
#include "skins/grove/GroveStyle.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle::grove {

using namespace Qt::StringLiterals;

namespace {

constexpr double spread = 42; // degrees between a stem and its leaves
constexpr double outerFrame = 4; // from the edge of the cover, points
constexpr double innerFrame = 7;
constexpr double sprigReach = 46; // of the sprigs along the edges
constexpr double stamped = 0.65; // opacity of the gold of frames
constexpr double worn = 0.35; // of what is stamped more lightly

double degreesOf(QPointF way)
{
    return std::atan2(way.y(), way.x()) * 180 / std::numbers::pi;
}

/// The inner frame as far as to the sprigs in its lower right corner, and the way they go on from there.
QPainterPath openFrame(const Box& face, double corner)
{
    const Box box = face.inset(innerFrame);
    const double round = 2 * (corner - innerFrame);
    QPainterPath path(QPointF(box.right(), face.bottom() - sprigReach));
    path.arcTo({box.right() - round, box.top(), round, round}, 0, 90);
    path.arcTo({box.left(), box.top(), round, round}, 90, 90);
    path.arcTo({box.left(), box.bottom() - round, round, round}, 180, 90);
    path.lineTo(face.right() - sprigReach, box.bottom());
    return path;
}

/// The rays of a sun as petals, drops as leaves: a leaf for each line.
QPainterPath leavesFor(const QPainterPath& lines, double longer)
{
    QPainterPath all;
    for (int index = 0; index + 1 < lines.elementCount(); index += 2) {
        const QPointF from = lines.elementAt(index);
        const QPointF way = QPointF(lines.elementAt(index + 1)) - from;
        all.addPath(leaf(from, degreesOf(way), longer * std::hypot(way.x(), way.y())));
    }
    return all;
}

} // namespace

QPainterPath leaf(QPointF root, double degrees, double length)
{
    QPainterPath path(QPointF(0, 0));
    path.cubicTo(0.22 * length, -0.3 * length, 0.66 * length, -0.27 * length, length, 0);
    path.cubicTo(0.62 * length, 0.27 * length, 0.2 * length, 0.26 * length, 0, 0);
    return QTransform().translate(root.x(), root.y()).rotate(degrees).map(path);
}

QPainterPath leafOn(const QPainterPath& stem, double place, double degrees, double length)
{
    return leaf(stem.pointAtPercent(place), degrees - stem.angleAtPercent(place), length);
}

QPainterPath blade(const Box& box)
{
    const bool upright = box.height() > box.width();
    const double length = std::max(box.width(), box.height());
    const double swell = 2.0 / 3 * std::min(box.width(), box.height()); // of the handles, for half the breadth
    QPainterPath path(QPointF(0, 0));
    path.cubicTo(0.08 * length, -swell, 0.76 * length, -swell, length, 0);
    path.cubicTo(0.76 * length, swell, 0.08 * length, swell, 0, 0);
    const QPointF root = upright ? QPointF(box.center().x(), box.bottom()) : QPointF(box.left(), box.center().y());
    return QTransform().translate(root.x(), root.y()).rotate(upright ? -90 : 0).map(path);
}

QPainterPath Twig::leaves() const
{
    constexpr double waning = 0.4; // by which the uppermost leaves are shorter
    QPainterPath all;
    all.setFillRule(Qt::WindingFill);
    for (int pair = 0; pair < pairs; ++pair) {
        const double place = from + (0.97 - from) * pair / pairs;
        for (const double side : {-spread, spread})
            all.addPath(leafOn(stem, place, side, length * (1 - waning * place)));
    }
    all.addPath(leafOn(stem, 1, 0, length * (1 - waning)));
    return all;
}

void cover(Canvas& canvas, const Box& face, double corner, const QColor& gold)
{
    dropShadow(canvas, face, corner, Qt::black, 0.045, 8, 2);
    canvas.fill(face,
        downwards(face, {{0, blended(cloth, Qt::white, 0.025)}, {0.5, cloth}, {1, blended(cloth, Qt::black, 0.1)}}),
        corner);
    canvas.frame(face.inset(outerFrame), QPen(faded(gold, stamped), hairline), corner - outerFrame);
    canvas.stroke(openFrame(face, corner), QPen(faded(gold, worn), 0.6));
}

void cornerSprig(Canvas& canvas, const Box& face, const QColor& gold)
{
    constexpr double berry = 2;
    const QPointF corner = face.bottomRight();
    const QPointF root = corner - QPointF(10.5, 10.5);
    QPainterPath stem(root);
    stem.quadTo(corner - QPointF(28, 10.5), corner - QPointF(sprigReach, innerFrame));
    const Twig twig{.stem = stem, .length = 6.2, .from = 0.1};
    const QTransform mirror(0, 1, 1, 0, corner.x() - corner.y(), corner.y() - corner.x()); // about the diagonal
    const QPainterPath leaves = twig.leaves();
    for (const QTransform& side : {QTransform(), mirror}) {
        canvas.stroke(side.map(stem), roundPen(faded(gold, stamped), 0.7));
        canvas.fill(side.map(leaves), faded(gold, stamped));
    }
    canvas.disc(root, berry, gold);
}

void branches(Canvas& canvas, const Box& box, double width, const QColor& gold)
{
    const double x = box.right();
    QPainterPath stem(QPointF(x + 0.2 * width, box.bottom()));
    stem.cubicTo({x + 0.85 * width, box.bottom() - 0.3 * box.height()},
        {x + 0.85 * width, box.top() + 0.35 * box.height()}, {x + 0.4 * width, box.top()});
    const Twig twig{.stem = stem, .pairs = 7, .length = 18, .from = 0.1};
    const QPainterPath leaves = twig.leaves();
    for (const QTransform& side : {QTransform(), QTransform(-1, 0, 0, 1, 2 * box.center().x(), 0)}) {
        canvas.stroke(side.map(stem), roundPen(faded(gold, stamped), 1));
        canvas.fill(side.map(leaves), leafGreen);
    }
}

void vine(Canvas& canvas, const QPainterPath& line, const QColor& colour, const QColor& leaves)
{
    constexpr double width = 1.6;
    constexpr double length = 7;
    constexpr double bud = 2.3;
    constexpr int pairs = 5;
    constexpr double apart = 10.0 / 59;
    if (line.isEmpty())
        return;
    const double left = line.elementAt(0).x;
    const QPointF tip = line.currentPosition();
    QPainterPath all;
    all.setFillRule(Qt::WindingFill);
    int index = 1;
    for (int pair = 1; pair <= pairs; ++pair) {
        const double x = left + (tip.x() - left) * pair * apart;
        while (index + 1 < line.elementCount() && line.elementAt(index).x < x)
            ++index;
        const QPointF from = line.elementAt(index - 1);
        const double slope = degreesOf(QPointF(line.elementAt(index)) - from);
        for (const double side : {-50.0, 50.0})
            all.addPath(leaf(from, slope + side, length));
    }
    canvas.fill(all, leaves);
    graphLine(canvas, line, colour, width);
    canvas.disc(tip, bud, colour);
}

void wreath(Canvas& canvas, const Box& circle, double fraction, const QColor& line, const QColor& leaves)
{
    constexpr int places = 24;
    constexpr double outer = 10;
    constexpr double inner = 7.5;
    const double reached = bounded(fraction);
    const QPointF centre = circle.center();
    const double radius = circle.width() / 2;
    QPainterPath all;
    all.setFillRule(Qt::WindingFill);
    for (int place = 0; place < places * reached - 0.3; ++place) {
        const double turns = (place + 0.3) / places;
        const QPointF root = pointOn(centre, radius, turns);
        all.addPath(leaf(root, 360 * turns - spread, outer));
        all.addPath(leaf(root, 360 * turns + spread, inner));
    }
    canvas.stroke(arc(circle, 0, 1), QPen(trackGreen, hairline));
    if (reached <= 0)
        return;
    canvas.fill(all, leaves);
    canvas.stroke(arc(circle, 0, reached), roundPen(line, stemWidth));
}

void skyPicture(Canvas& canvas, const Box& box, Sky sky, const QColor& gold, const QColor& ink)
{
    constexpr double units = 48; // of a side of a pictogram
    const Pictogram& picture = Pictogram::of(sky);
    const Box square = box.square();
    QTransform place = QTransform::fromTranslate(square.x(), square.y());
    place.scale(square.width() / units, square.width() / units);
    const auto line = [&](const QPainterPath& path, const QColor& colour) {
        canvas.stroke(place.map(path), roundPen(colour, lineWidth));
    };
    const QPainterPath& whole = Pictogram::of(sky == Sky::thunder ? Sky::rain : sky).cloud; // without its notch
    const QPainterPath shade = picture.cloud.subtracted(whole.translated(-3.5, -5));
    canvas.fill(place.map(shade), leafGreen);
    line(picture.cloud, gold);
    line(picture.disc, gold);
    canvas.fill(place.map(picture.night ? picture.disc : QPainterPath()), faded(gold, worn));
    canvas.fill(place.map(leavesFor(picture.rays, 1.5)), gold);
    if (sky == Sky::snow)
        line(picture.water, ink);
    else
        canvas.fill(place.map(leavesFor(picture.water, 1.3)), leafGreen);
    line(picture.mist, gold);
    canvas.fill(place.map(picture.bolt), gold);
}

void dottedRule(Canvas& canvas, const Box& box)
{
    constexpr double dot = 1; // radius
    const double y = box.center().y();
    canvas.line({box.left(), y}, {box.right(), y}, flatPen(trackGreen, 0.5));
    canvas.disc({box.right() - dot, y}, dot, trackGreen);
}

void partTint(Canvas& canvas, const QPainterPath& shape, qsizetype index, const QColor& colour)
{
    canvas.fill(shape, index < 2 ? colour : faded(colour, 0.45));
    if (index == 1)
        hatch(canvas, shape, 60, 3.4, QPen(cloth, 1));
    if (index > 1)
        canvas.stroke(shape, QPen(colour, hairline));
}

} // namespace ambrelle::grove
