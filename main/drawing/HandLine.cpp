// SPDX-License-Identifier: MIT

#include "drawing/HandLine.h"

#include "drawing/StrokeManner.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <utility>

namespace ambrelle {

namespace {

double lengthOf(QPointF way)
{
    return std::hypot(way.x(), way.y());
}

/// How far a hand is beside its line: never far from where it was a moment before.
struct Drift {
    QPointF aside{};

    QPointF next(double amount, SeededRandom& random)
    {
        const double right = random.in(-amount, amount);
        const double up = random.in(-amount, amount);
        aside = 0.7 * aside + 0.5 * QPointF(right, up);
        return aside;
    }
};

/// The line with points no further apart than `longest`.
QPolygonF divided(const QPolygonF& points, double longest)
{
    QPolygonF result;
    for (qsizetype index = 0; index < points.size(); ++index) {
        const QPointF from = points[std::max<qsizetype>(0, index - 1)];
        const QPointF way = points[index] - from;
        const int pieces = std::max(1, static_cast<int>(std::ceil(lengthOf(way) / longest)));
        for (int piece = 1; piece <= pieces; ++piece)
            result.append(from + way * (static_cast<double>(piece) / pieces));
    }
    return result;
}

double wholeLength(const QPolygonF& line)
{
    double length = 0;
    for (qsizetype index = 1; index < line.size(); ++index)
        length += lengthOf(line[index] - line[index - 1]);
    return length;
}

/// `widthOf` is asked with the length up to a point.
HandLine handLine(const QPolygonF& points, const std::function<double(double place, qsizetype index)>& widthOf)
{
    HandLine line{points, {}};
    double place = 0;
    for (qsizetype index = 0; index < points.size(); ++index) {
        if (index > 0)
            place += lengthOf(points[index] - points[index - 1]);
        line.widths.append(widthOf(place, index));
    }
    return line;
}

/// The direction of a line at one of its points, of length 1.
QPointF wayAt(const QPolygonF& line, qsizetype index)
{
    const QPointF way = line[std::min(index + 1, line.size() - 1)] - line[std::max<qsizetype>(0, index - 1)];
    return way / std::max(1e-6, lengthOf(way));
}

} // namespace

QPolygonF thinned(const QPolygonF& points, double apart)
{
    constexpr double bend = 0.5; // radians from which a point is a corner
    QPolygonF result;
    for (qsizetype index = 0; index < points.size(); ++index) {
        const bool end = index == 0 || index + 1 == points.size();
        if (!end && lengthOf(points[index] - result.last()) < apart) {
            const QPointF before = points[index] - points[index - 1];
            const QPointF after = points[index + 1] - points[index];
            const double turn = std::atan2(after.y(), after.x()) - std::atan2(before.y(), before.x());
            if (std::abs(std::remainder(turn, 2 * std::numbers::pi)) < bend)
                continue;
        }
        if (result.isEmpty() || points[index] != result.last())
            result.append(points[index]);
    }
    return result;
}

QList<QPolygonF> dashes(const QPolygonF& points, const QPen& pen)
{
    const QList<qreal> pattern = pen.dashPattern();
    const double unit = std::max(1.0, pen.widthF());
    if (pen.style() == Qt::SolidLine || std::ranges::all_of(pattern, [](double length) { return length <= 0; }))
        return {points};
    QList<QPolygonF> result;
    qsizetype part = 0;
    double left = pattern[0] * unit;
    QPolygonF dash{points.value(0)};
    for (qsizetype index = 1; index < points.size(); ++index) {
        QPointF from = points[index - 1];
        double way = lengthOf(points[index] - from);
        while (way > left) {
            from += (points[index] - from) * (left / way);
            way -= left;
            if (part % 2 == 0)
                result.append(dash << from);
            part = (part + 1) % pattern.size();
            left = std::max(1e-3, pattern[part] * unit);
            dash = QPolygonF{from};
        }
        left -= way;
        dash << points[index];
    }
    if (part % 2 == 0 && dash.size() > 1)
        result.append(dash);
    return result;
}

QPolygonF wavered(const QPolygonF& line, double amount, SeededRandom& random)
{
    constexpr double stretch = 4.5; // points on which the hand strays from one place to the next
    const QPolygonF points = divided(line, 3);
    Drift drift;
    QPointF before = drift.next(amount, random);
    QPointF after = drift.next(amount, random);
    double along = 0; // within the stretch
    QPolygonF result;
    for (qsizetype index = 0; index < points.size(); ++index) {
        along += index > 0 ? lengthOf(points[index] - points[index - 1]) : 0;
        for (; along > stretch; along -= stretch)
            before = std::exchange(after, drift.next(amount, random));
        const double t = along / stretch;
        result.append(points[index] + before + (after - before) * (t * t * (3 - 2 * t)));
    }
    return result;
}

HandLine markerLine(const QPolygonF& given, double width, double extent, SeededRandom& random)
{
    const double first = random.in(0, 2 * std::numbers::pi);
    const double second = random.in(0, 2 * std::numbers::pi);
    const QPolygonF points = wavered(given, std::min(0.25, extent / 40), random);
    return handLine(points, [=](double place, qsizetype) {
        return width * (1 + 0.09 * std::sin(place / 5.3 + first) + 0.07 * std::sin(place / 2.1 + second));
    });
}

QList<HandLine> brushLines(const QPolygonF& given, double width, SeededRandom& random)
{
    constexpr double step = 2.5; // points
    const QPolygonF line = wavered(divided(given, step), 0.1, random);
    const double length = wholeLength(line);
    const bool dab = length < 3 * width;
    const double dry = length > 6 * width ? std::clamp(length / 4, 3.0, 12.0) : 0; // points at the end
    QList<HandLine> strokes{handLine(line, [&](double place, qsizetype index) {
        // Downwards the hair lies flat and broad, across it runs on its edge.
        const double broad = width * (0.75 + 0.45 * std::abs(wayAt(line, index).y()));
        const double pressed = dab ? 1 : std::min(1.0, 0.55 + place / (2 * width));
        const double left = length - place;
        const double lifted = dry > 0 ? std::min(1.0, left / dry) : dab ? 1 : std::min(1.0, 0.4 + left / width);
        return broad * pressed * std::sqrt(lifted);
    })};
    for (const double side : {-0.36, -0.05, 0.3}) {
        const double end = length - dry * random.in(0, 0.4);
        HandLine hair;
        double place = 0;
        for (qsizetype index = 0; index < line.size(); ++index) {
            if (index > 0)
                place += lengthOf(line[index] - line[index - 1]);
            if (place < length - dry * 1.1 || place > end)
                continue;
            const QPointF way = wayAt(line, index);
            hair.points.append(line[index] + QPointF(-way.y(), way.x()) * side * width);
            hair.widths.append(std::max(0.35, width * 0.16));
        }
        if (dry > 0)
            strokes.append(hair);
    }
    return strokes;
}

HandLine evenLine(const QPolygonF& points, double width)
{
    return {points, QList<double>(points.size(), width)};
}

QPainterPath wavering(const QPainterPath& path, double amount, SeededRandom& random)
{
    QPainterPath result;
    for (const QPolygonF& stretch : path.toSubpathPolygons()) {
        Drift drift;
        QPolygonF line;
        for (qsizetype i = 0; i < stretch.size(); ++i) {
            const QPointF way = i == 0 ? QPointF() : stretch[i] - stretch[i - 1];
            const int steps = std::max(1, static_cast<int>(lengthOf(way) / (8 * amount)));
            for (int step = 1; step <= steps; ++step) {
                const QPointF aside = drift.next(amount, random);
                line.append(stretch[i] - way * (1 - static_cast<double>(step) / steps) + aside);
            }
        }
        result.addPolygon(line);
    }
    return result;
}

} // namespace ambrelle
