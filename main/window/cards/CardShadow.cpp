// SPDX-License-Identifier: MIT

#include "window/cards/CardShadow.h"

#include <QHash>
#include <QImage>
#include <QPainter>
#include <QPixmap>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

namespace {

/// One layer: how far down it lies, how soft it is, points, and how dark.
struct ShadowLayer {
    double down;
    double blur;
    double alpha;
};

constexpr ShadowLayer shadowLayers[]{{1, 2, 0.16}, {4, 14, 0.10}};
constexpr int shadowReach = 18; // beyond the picture, points

/// A square picture's shadow: corners, and one pixel between them.
QPixmap shadowPieces(double corner, double pixelRatio)
{
    const int reach = static_cast<int>(std::ceil(shadowReach * pixelRatio));
    const int inside = static_cast<int>(std::ceil((corner + 14) * pixelRatio)); // where the blur ends
    const int side = 2 * (reach + inside) + 1;
    QImage image(side, side, QImage::Format_ARGB32_Premultiplied);
    const double half = (side - 2 * reach) / 2.0;
    const double round = corner * pixelRatio;
    for (int y = 0; y < side; ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        for (int x = 0; x < side; ++x) {
            double light = 1;
            for (const ShadowLayer& layer : shadowLayers) {
                const double dx = std::abs(x + 0.5 - side / 2.0) - (half - round);
                const double dy = std::abs(y + 0.5 - side / 2.0 - layer.down * pixelRatio) - (half - round);
                const double distance =
                    std::hypot(std::max(dx, 0.0), std::max(dy, 0.0)) + std::min(std::max(dx, dy), 0.0) - round;
                const double sigma = layer.blur / 2 * pixelRatio;
                light *= 1 - layer.alpha * 0.5 * std::erfc(distance / (sigma * std::numbers::sqrt2));
            }
            line[x] = qRgba(0, 0, 0, static_cast<int>(std::lround(255 * (1 - light))));
        }
    }
    return QPixmap::fromImage(image);
}

} // namespace

void drawCardShadow(QPainter& painter, const QRectF& area, double corner, double pixelRatio)
{
    static QHash<std::pair<int, int>, QPixmap> kept;
    QPixmap& pieces = kept[{qRound(corner * 100), qRound(pixelRatio * 100)}];
    if (pieces.isNull())
        pieces = shadowPieces(corner, pixelRatio);

    const int half = pieces.width() / 2;
    const double reach = std::ceil(shadowReach * pixelRatio) / pixelRatio;
    const QRectF all = area.adjusted(-reach, -reach, reach, reach);
    const double piece = half / pixelRatio;
    const double x[]{all.left(), all.left() + piece, all.right() - piece, all.right()};
    const double y[]{all.top(), all.top() + piece, all.bottom() - piece, all.bottom()};
    const int from[]{0, half, half + 1, pieces.width()};
    for (int row = 0; row < 3; ++row) {
        for (int column = 0; column < 3; ++column) {
            const QRectF target(QPointF(x[column], y[row]), QPointF(x[column + 1], y[row + 1]));
            if ((row == 1 && column == 1) || target.width() <= 0 || target.height() <= 0)
                continue;
            painter.drawPixmap(
                target, pieces, QRectF(QPointF(from[column], from[row]), QPointF(from[column + 1], from[row + 1])));
        }
    }
}

} // namespace ambrelle
