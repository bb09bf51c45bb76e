// SPDX-License-Identifier: MIT

#include "skins/chalk/ChalkDoodles.h"

#include "drawing/Pens.h"
#include "drawing/SeededRandom.h"
#include "drawing/StrokeManner.h"

#include <QPainter>

#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

/// The lines of a drawing, in a square of -1 to 1 with y up.
using Lines = QPainterPath;

QPointF onCircle(QPointF centre, double radius, double turn)
{
    const double angle = 2 * std::numbers::pi * turn;
    return centre + radius * QPointF(std::cos(angle), std::sin(angle));
}

void line(Lines& lines, QPointF from, QPointF to)
{
    lines.moveTo(from);
    lines.lineTo(to);
}

void arrow(Lines& lines, QPointF from, QPointF to)
{
    line(lines, from, to);
    const QPointF back = (from - to) / std::hypot(from.x() - to.x(), from.y() - to.y()) * 0.12;
    const QPointF aside(-back.y() * 0.6, back.x() * 0.6);
    line(lines, to, to + back + aside);
    line(lines, to, to + back - aside);
}

/// A triangle with the squares over its three sides.
Lines theorem()
{
    Lines lines;
    const QPointF right(-0.12, -0.1);
    const QPointF up(-0.12, 0.42);
    const QPointF side(0.57, -0.1);
    lines.addPolygon(QPolygonF{right, up, side, right});
    lines.addPolygon(QPolygonF{right, {-0.64, -0.1}, {-0.64, 0.42}, up});
    lines.addPolygon(QPolygonF{right, {-0.12, -0.79}, {0.57, -0.79}, side});
    lines.addPolygon(QPolygonF{up, {0.4, 1.11}, {1.09, 0.59}, side});
    lines.addPolygon(QPolygonF{{-0.02, -0.1}, {-0.02, 0}, {-0.12, 0}});
    return lines;
}

/// A parabola over its axes.
Lines curve()
{
    Lines lines;
    arrow(lines, {-1, -0.6}, {1, -0.6});
    arrow(lines, {-0.1, -0.95}, {-0.1, 1});
    for (int tick = -3; tick <= 4; ++tick)
        if (tick != 0)
            line(lines, {-0.1 + 0.22 * tick, -0.65}, {-0.1 + 0.22 * tick, -0.55});
    for (int step = -16; step <= 16; ++step) {
        const double x = 0.05 * step;
        const QPointF place(-0.1 + x, -0.4 + 1.9 * x * x);
        if (step == -16)
            lines.moveTo(place);
        else
            lines.lineTo(place);
    }
    return lines;
}

/// A sun with uneven rays and a smile.
Lines sun()
{
    Lines lines;
    lines.addEllipse(QPointF(), 0.45, 0.45);
    for (int ray = 0; ray < 12; ++ray) {
        const double turn = (ray + 0.2) / 12;
        line(lines, onCircle({}, 0.58, turn), onCircle({}, ray % 3 == 0 ? 1 : 0.82, turn));
    }
    for (const double eye : {-0.16, 0.16})
        line(lines, {eye, 0.06}, {eye, 0.16});
    lines.moveTo(-0.22, -0.1);
    lines.quadTo(0, -0.34, 0.22, -0.1);
    return lines;
}

/// A cube seen from above, its hidden edges in dashes.
Lines cube()
{
    Lines lines;
    const QPointF depth(0.48, 0.42);
    const QRectF face(-0.85, -0.8, 1.1, 1.1);
    lines.addRect(face);
    lines.addPolygon(QPolygonF{face.bottomLeft(), face.bottomLeft() + depth, face.bottomRight() + depth,
        face.topRight() + depth, face.topRight()});
    line(lines, face.bottomRight(), face.bottomRight() + depth);
    const QPointF hidden = face.topLeft() + depth;
    const auto dashes = [&](QPointF to) {
        for (int dash = 0; dash < 5; ++dash)
            line(lines, hidden + (to - hidden) * (dash / 5.0), hidden + (to - hidden) * (dash / 5.0 + 0.11));
    };
    dashes(face.topLeft());
    dashes(face.bottomLeft() + depth);
    dashes(face.topRight() + depth);
    return lines;
}

/// Three electrons round a core.
Lines atom()
{
    Lines lines;
    lines.addEllipse(QPointF(), 0.1, 0.1);
    for (int orbit = 0; orbit < 3; ++orbit) {
        QPainterPath ring;
        ring.addEllipse(QPointF(), 1, 0.36);
        ring.addEllipse(onCircle({}, 1, 0) * 0.96 + QPointF(0, 0.1), 0.05, 0.05);
        lines.addPath(QTransform().rotate(60 * orbit + 10).map(ring));
    }
    return lines;
}

/// Drawn twice, the second time more faintly and beside the first; then the rough board shows through.
void chalked(QPainter& painter, const QPainterPath& path, double thickness, SeededRandom& random)
{
    const auto pen = [thickness](float opacity) { return roundPen(QColor::fromRgbF(0, 0, 0, opacity), thickness); };
    painter.strokePath(wavering(path, 0.35 * thickness, random), pen(0.9F));
    painter.strokePath(wavering(path, 0.7 * thickness, random), pen(0.35F));

    const QRectF area = path.boundingRect().adjusted(-thickness, -thickness, thickness, thickness);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setBrush(QColor::fromRgbF(0, 0, 0, 0.75F));
    const double dot = 0.16 * thickness;
    for (int count = static_cast<int>(0.8 * area.width() * area.height() / (thickness * thickness)); count > 0;
         --count) {
        const double x = random.in(area.left(), area.right());
        const double y = random.in(area.top(), area.bottom());
        painter.drawEllipse(QPointF(x, y), dot, dot);
    }
    painter.setCompositionMode(QPainter::CompositionMode_SourceOver);
}

struct Doodle {
    Lines lines;
    QPointF centre; ///< from the nearest corner, in units of `unit` in paintChalkDoodles
    double size;
    double turn; ///< degrees
    bool right;
    bool top;
};

} // namespace

void paintChalkDoodles(Painting& painting)
{
    const Doodle doodles[]{
        {theorem(), {0.14, 0.16}, 0.075, 4, false, true},
        {curve(), {0.15, 0.15}, 0.085, -3, true, true},
        {sun(), {0.13, 0.14}, 0.08, 0, false, false},
        {cube(), {0.13, 0.13}, 0.07, -4, true, false},
        {atom(), {0.31, 0.12}, 0.06, 12, true, false},
    };
    const double unit = std::min(painting.height(), painting.width());
    const double thickness = std::max(1.0, 0.0032 * unit);
    SeededRandom random{9};
    for (const Doodle& doodle : doodles) {
        const double x = doodle.right ? painting.width() - doodle.centre.x() * unit : doodle.centre.x() * unit;
        const double y = doodle.top ? painting.height() - doodle.centre.y() * unit : doodle.centre.y() * unit;
        const double scale = doodle.size * unit;
        const QPainterPath path =
            QTransform().translate(x, y).rotate(doodle.turn).scale(scale, scale).map(doodle.lines);
        const QRectF area = path.boundingRect().adjusted(-2 * thickness, -2 * thickness, 2 * thickness, 2 * thickness);
        painting.stencil(area, white(0.16), [&](QPainter& painter) { chalked(painter, path, thickness, random); });
    }
}

} // namespace ambrelle
