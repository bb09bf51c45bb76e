// SPDX-License-Identifier: MIT

#include "drawing/StrokeManner.h"

#include "drawing/DeviceImage.h"
#include "drawing/HandLine.h"
#include "drawing/InkMask.h"

#include <QCache>
#include <QImage>

#include <algorithm>
#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

constexpr double unsteadiness = 0.6; // points that chalk strays at most, about
constexpr double dustShare = 0.12; // of a chalk line that is missing

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
        const double radius = random.in(0.15, 0.42) * pixels / side;
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
        add(masks[0], evenLine(wavered(line, amount, random), broad));
        add(masks[1], evenLine(wavered(line, amount, again), broad));
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

void strokeByHand(QPainter& painter, const QPainterPath& path, const QPen& pen, StrokeManner manner, std::uint64_t seed)
{
    if (path.isEmpty() || pen.style() == Qt::NoPen)
        return;
    constexpr double apart = 1.2; // points of a line stand no closer, corners apart
    const QTransform fine = QTransform::fromScale(4, 4); // for curves in pieces that nobody sees
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
    for (const QPolygonF& stretch : path.toSubpathPolygons(fine)) {
        for (const QPolygonF& line : dashes(thinned(fine.inverted().map(stretch), apart), pen)) {
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
