// SPDX-License-Identifier: MIT

#include "drawing/StrokeManner.h"

#include "drawing/DeviceImage.h"
#include "drawing/InkMask.h"

#include <QCache>
#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>
#include <functional>
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

/// How much chalk is left where specks of the board show through, 255 is all, as an endless square of device pixels.
QImage dust(double scale)
{
    constexpr double side = 48; // points
    const int pixels = std::clamp(static_cast<int>(std::lround(side * scale)), 16, 160);
    thread_local QCache<int, QImage> tiles(8);
    if (const QImage* tile = tiles.object(pixels))
        return *tile;
    auto* tile = new QImage(pixels, pixels, QImage::Format_Grayscale8);
    tile->fill(255);
    QPainter painter(tile);
    painter.setRenderHint(QPainter::Antialiasing);
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
    tiles.insert(pixels, tile);
    return *tile;
}

/// A line as the hand draws it: points, and the width at each of them.
struct HandLine {
    QPolygonF points;
    QList<double> widths;
};

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

HandLine markerLine(const QPolygonF& given, double width, double extent, SeededRandom& random)
{
    const double first = random.in(0, 2 * std::numbers::pi);
    const double second = random.in(0, 2 * std::numbers::pi);
    const QPolygonF points = wavered(divided(given, 6), std::min(0.25, extent / 40), random);
    return handLine(points, [=](double place, qsizetype) {
        return width * (1 + 0.09 * std::sin(place / 5.3 + first) + 0.07 * std::sin(place / 2.1 + second));
    });
}

/// The direction of a line at one of its points, of length 1.
QPointF wayAt(const QPolygonF& line, qsizetype index)
{
    const QPointF way = line[std::min(index + 1, line.size() - 1)] - line[std::max<qsizetype>(0, index - 1)];
    return way / std::max(1e-6, lengthOf(way));
}

/// The line itself, then the hairs that leave the last of the ink.
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

/// What one line adds to the mask, and in chalk what the second stroke over it adds to the other.
void cover(std::array<InkMask, 2>& masks, const QPolygonF& line, double width, double extent, StrokeManner manner,
    const QTransform& device, SeededRandom random)
{
    const double scale = std::sqrt(std::abs(device.determinant()));
    const auto add = [&](InkMask& mask, HandLine drawn) {
        for (double& across : drawn.widths)
            across *= scale;
        mask.add(device.map(drawn.points), drawn.widths);
    };
    if (manner == StrokeManner::marker) {
        add(masks[0], markerLine(line, width, extent, random));
    } else if (manner == StrokeManner::brush) {
        for (const HandLine& stroke : brushLines(line, width, random))
            add(masks[0], stroke);
    } else {
        SeededRandom again{random.state + 1};
        const double amount = std::min(unsteadiness, extent / 24);
        const double broad = std::max(0.9, width);
        const auto even = [broad](double, qsizetype) { return broad; };
        add(masks[0], handLine(wavered(line, amount, random), even));
        add(masks[1], handLine(wavered(line, amount, again), even));
    }
}

uint chalkCover(uint first, uint second, uint left)
{
    constexpr uint strong = 230; // opacity 0.9
    constexpr uint faint = 89; // 0.35
    const uint bare = (255 * 255 - strong * first) * (255 * 255 - faint * second) / (255 * 255) / 255;
    return (255 - bare) * left / 255;
}

/// The pen's colours wherever the masks are covered.
QImage inked(const std::array<InkMask, 2>& masks, const QBrush& brush, const QTransform& device, StrokeManner manner)
{
    const QRect& pixels = masks[0].pixels();
    QImage ink(pixels.size(), QImage::Format_ARGB32_Premultiplied);
    if (brush.style() == Qt::SolidPattern) {
        ink.fill(brush.color());
    } else {
        ink.fill(Qt::transparent);
        QPainter painter(&ink);
        painter.setTransform(device * QTransform::fromTranslate(-pixels.x(), -pixels.y()));
        painter.fillRect(painter.transform().inverted().mapRect(QRectF(ink.rect())), brush);
    }
    const QImage specks = dust(std::sqrt(std::abs(device.determinant())));
    const int side = specks.width();
    // The specks lie still when the line moves over the board.
    const QPoint origin = pixels.topLeft() - QPoint(qRound(device.dx()), qRound(device.dy()));
    const auto within = [side](int place) { return ((place % side) + side) % side; };
    for (int y = 0; y < pixels.height(); ++y) {
        auto* row = reinterpret_cast<QRgb*>(ink.scanLine(y));
        const uchar* first = masks[0].row(y);
        const uchar* second = manner == StrokeManner::chalk ? masks[1].row(y) : first;
        const uchar* left = specks.constScanLine(within(origin.y() + y));
        for (int x = 0; x < pixels.width(); ++x) {
            if ((first[x] | second[x]) == 0) {
                row[x] = 0;
                continue;
            }
            const uint alpha = manner == StrokeManner::chalk
                ? chalkCover(first[x], second[x], left[within(origin.x() + x)])
                : first[x];
            const QRgb colour = row[x];
            const auto part = [alpha](int channel) {
                return static_cast<int>((static_cast<uint>(channel) * alpha + 127) / 255);
            };
            row[x] = qRgba(part(qRed(colour)), part(qGreen(colour)), part(qBlue(colour)), part(qAlpha(colour)));
        }
    }
    return ink;
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
    constexpr double apart = 3; // points of a line stand no closer, corners apart
    const QRectF bounds = path.boundingRect();
    const double extent = std::max(bounds.width(), bounds.height());
    const double width = std::max(0.5, pen.widthF());
    const double reach = width + 2 * unsteadiness + 1;
    const QTransform device = painter.deviceTransform();
    const QRect pixels = devicePixels(painter, bounds.adjusted(-reach, -reach, reach, reach));
    constexpr double most = 4096.0 * 4096; // pixels; no face has as many, but a path may be no path
    if (!(static_cast<double>(pixels.width()) * pixels.height() < most))
        return;
    std::array<InkMask, 2> masks{InkMask(pixels), InkMask(manner == StrokeManner::chalk ? pixels : QRect())};
    const auto tenths = [](double points) { return static_cast<std::uint64_t>(std::llround(points * 10)); };
    for (const QPolygonF& stretch : path.toSubpathPolygons()) {
        for (const QPolygonF& line : dashes(thinned(stretch, apart), pen)) {
            if (line.size() < 2)
                continue;
            const QPointF start = line.first();
            const SeededRandom random{seed * 1000003 + tenths(start.x()) * 1009 + tenths(start.y())};
            cover(masks, line, width, extent, manner, device, random);
        }
    }
    paintDeviceImage(painter, pixels.topLeft(), inked(masks, pen.brush(), device, manner));
}

} // namespace ambrelle
