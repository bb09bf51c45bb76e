// SPDX-License-Identifier: MIT

#include "drawing/StrokeManner.h"

#include "drawing/Colours.h"
#include "drawing/Ribbon.h"

#include <QCache>
#include <QImage>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr double unsteadiness = 0.6; // points that chalk strays at most, about
constexpr double dustShare = 0.12; // of a chalk line that is missing

double lengthOf(QPointF way)
{
    return std::hypot(way.x(), way.y());
}

QPolygonF wavered(const QPolygonF& stretch, double amount, SeededRandom& random)
{
    QPolygonF result;
    QPointF drift;
    for (qsizetype i = 0; i < stretch.size(); ++i) {
        const QPointF way = i == 0 ? QPointF() : stretch[i] - stretch[i - 1];
        const int steps = std::max(1, static_cast<int>(lengthOf(way) / (8 * amount)));
        for (int step = 1; step <= steps; ++step) {
            const double right = random.in(-amount, amount);
            const double up = random.in(-amount, amount);
            drift = 0.7 * drift + 0.5 * QPointF(right, up);
            result.append(stretch[i] - way * (1 - static_cast<double>(step) / steps) + drift);
        }
    }
    return result;
}

/// Without the points that follow each other closely on a curve; corners stay.
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

/// The stretches of a line that a dashed pen draws.
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

/// The colour with specks left out, as an endless tile of device pixels.
QImage dusty(const QColor& colour, double scale)
{
    constexpr double side = 48; // points
    const int pixels = std::clamp(static_cast<int>(std::lround(side * scale)), 16, 160);
    thread_local QCache<quint64, QImage> tiles(1024);
    const quint64 key = (static_cast<quint64>(colour.rgba()) << 32) | static_cast<quint64>(pixels);
    if (const QImage* tile = tiles.object(key))
        return *tile;
    auto* tile = new QImage(pixels, pixels, QImage::Format_ARGB32_Premultiplied);
    tile->fill(colour);
    QPainter painter(tile);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.setPen(Qt::NoPen);
    painter.setBrush(Qt::black);
    SeededRandom random{17};
    // Specks fall on each other: so much area of them leaves that share bare.
    for (double bare = -std::log(1 - dustShare) * pixels * pixels; bare > 0;) {
        const double radius = random.in(0.3, 0.65) * pixels / side;
        const double x = random.in(0, pixels);
        const double y = random.in(0, pixels);
        for (const int across : {-pixels, 0, pixels})
            for (const int down : {-pixels, 0, pixels})
                painter.drawEllipse(QPointF(x + across, y + down), radius, radius);
        bare -= std::numbers::pi * radius * radius;
    }
    painter.end();
    tiles.insert(key, tile, pixels * pixels / 256);
    return *tile;
}

void chalkStroke(QPainter& painter, const QList<QPolygonF>& lines, const QPen& pen, double extent, SeededRandom& random)
{
    const double amount = std::min(unsteadiness, extent / 24);
    const QTransform device = painter.deviceTransform();
    painter.save();
    painter.setTransform(device.inverted() * painter.transform());
    QBrush chalk = pen.brush();
    if (chalk.style() == Qt::SolidPattern) {
        chalk = QBrush(dusty(pen.color(), std::sqrt(std::abs(device.determinant()))));
        chalk.setTransform(QTransform::fromTranslate(std::round(device.dx()), std::round(device.dy())));
        painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    } else {
        chalk.setTransform(chalk.transform() * device);
    }
    for (const double opacity : {0.9, 0.35}) {
        QPainterPath strokes;
        strokes.setFillRule(Qt::WindingFill);
        for (const QPolygonF& line : lines)
            strokes.addPath(ribbon(wavered(line, amount, random), std::max(0.9, pen.widthF()), true));
        painter.setOpacity(opacity);
        painter.fillPath(device.map(strokes), chalk);
    }
    painter.restore();
}

QPainterPath markerLine(const QPolygonF& line, double width, double extent, SeededRandom& random)
{
    const double first = random.in(0, 2 * std::numbers::pi);
    const double second = random.in(0, 2 * std::numbers::pi);
    const QPolygonF way = wavered(divided(line, 9), std::min(0.25, extent / 40), random);
    double length = 0;
    for (qsizetype index = 1; index < way.size(); ++index)
        length += lengthOf(way[index] - way[index - 1]);
    const auto widthOf = [=](double along) {
        const double place = along * length;
        return width * (1 + 0.09 * std::sin(place / 5.3 + first) + 0.07 * std::sin(place / 2.1 + second));
    };
    return ribbon(way, widthOf, true);
}

/// A part of a line from `start` to `end` of its length, moved sideways.
QPainterPath bristle(const QPolygonF& line, double start, double end, double aside, double width)
{
    QPolygonF part;
    const auto last = static_cast<double>(line.size() - 1);
    for (qsizetype index = 0; index < line.size(); ++index) {
        const double along = static_cast<double>(index) / last;
        if (along < start || along > end)
            continue;
        const QPointF way = line[std::min(index + 1, line.size() - 1)] - line[std::max<qsizetype>(0, index - 1)];
        part << line[index] + QPointF(-way.y(), way.x()) / std::max(1e-6, lengthOf(way)) * aside;
    }
    return ribbon(part, [width](double along) { return width * (1 - 0.6 * along); });
}

QPainterPath brushLine(const QPolygonF& given, double width, SeededRandom& random)
{
    constexpr double step = 2.5; // points
    const QPolygonF line = wavered(divided(given, step), 0.1, random);
    double length = 0;
    for (qsizetype index = 1; index < line.size(); ++index)
        length += lengthOf(line[index] - line[index - 1]);
    // Downwards the hair lies flat and broad, across it runs on its edge.
    const auto broad = [&](double along) {
        const auto place = static_cast<double>(line.size() - 1) * along;
        const auto index = std::clamp<qsizetype>(static_cast<qsizetype>(place), 0, line.size() - 2);
        const QPointF way = line[index + 1] - line[index];
        return width * (0.75 + 0.45 * std::abs(way.y()) / std::max(1e-6, lengthOf(way)));
    };
    const double dry = length > 6 * width ? std::clamp(10 / length, 0.08, 0.25) : 0; // part of the line at its end
    const auto widthOf = [&](double along) {
        const double pressed = std::min(1.0, 0.55 + along * length / (2 * width));
        const double lifted = dry > 0 ? std::clamp((1 - along) / dry, 0.0, 1.0) : std::min(1.0, 0.4 + 2 * (1 - along));
        return broad(along) * pressed * std::sqrt(lifted);
    };
    QPainterPath strokes = ribbon(line, widthOf, dry <= 0);
    for (const double side : {-0.36, -0.05, 0.3}) {
        if (dry > 0)
            strokes.addPath(
                bristle(line, 1 - dry * 1.1, random.in(1 - dry * 0.4, 1), side * width, std::max(0.35, width * 0.16)));
    }
    return strokes;
}

} // namespace

QPainterPath wavering(const QPainterPath& path, double amount, SeededRandom& random)
{
    QPainterPath result;
    for (const QPolygonF& stretch : path.toSubpathPolygons())
        result.addPolygon(wavered(stretch, amount, random));
    return result;
}

void strokeByHand(QPainter& painter, const QPainterPath& path, const QPen& pen, StrokeManner manner, std::uint64_t seed)
{
    if (path.isEmpty() || pen.style() == Qt::NoPen)
        return;
    const auto tenths = [](double points) { return static_cast<std::uint64_t>(std::llround(points * 10)); };
    const QPointF start = path.elementAt(0);
    SeededRandom random{seed * 1000003 + tenths(start.x()) * 1009 + tenths(start.y())};
    const QRectF bounds = path.boundingRect();
    const double extent = std::max(bounds.width(), bounds.height());
    QList<QPolygonF> lines;
    for (const QPolygonF& stretch : path.toSubpathPolygons()) {
        for (const QPolygonF& dash : dashes(thinned(stretch, 3), pen))
            lines.append(dash);
    }
    if (manner == StrokeManner::chalk) {
        chalkStroke(painter, lines, pen, extent, random);
        return;
    }
    const double width = std::max(0.5, pen.widthF());
    QPainterPath strokes;
    for (const QPolygonF& line : lines) {
        if (line.size() > 1)
            strokes.addPath(manner == StrokeManner::marker ? markerLine(line, width, extent, random)
                                                           : brushLine(line, width, random));
    }
    strokes.setFillRule(Qt::WindingFill);
    painter.fillPath(strokes, pen.brush());
}

} // namespace ambrelle
