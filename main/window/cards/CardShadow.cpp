// SPDX-License-Identifier: MIT

#include "window/cards/CardShadow.h"

#include <QImage>
#include <QPainter>
#include <QPixmap>
#include <QPixmapCache>

#include <algorithm>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// One layer: how far down it lies, how soft it is, points, and how dark.
struct ShadowLayer {
    double down;
    double blur;
    double alpha;
};

constexpr ShadowLayer shadowLayers[]{{1, 2, 0.16}, {4, 14, 0.10}};
constexpr int shadowReach = 18; // beyond the picture, points
constexpr int blurReach = 14; // within it

/// The pixmap kept under that name, made where it is not. What nobody draws any more the toolkit lets go of.
template <typename Make> QPixmap keptRim(const QString& name, const Make& make)
{
    QPixmap pixmap;
    if (!QPixmapCache::find(name, &pixmap)) {
        pixmap = make();
        QPixmapCache::insert(name, pixmap);
    }
    return pixmap;
}

/// The shadow of a square picture: its corners, and one pixel between them.
QImage shadowPieces(double corner, double pixelRatio, int reach, int inside)
{
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
    return image;
}

/// The pieces laid around a picture of that size, device pixels.
QPixmap shadowAround(const QSize& size, double corner, double pixelRatio, int reach)
{
    const int inside = std::min({static_cast<int>(std::ceil((corner + blurReach) * pixelRatio)), (size.width() - 1) / 2,
        (size.height() - 1) / 2});
    const QImage pieces = shadowPieces(corner, pixelRatio, reach, inside);
    const int half = reach + inside;
    const QSize whole = size + QSize(2 * reach, 2 * reach);
    QImage image(whole, QImage::Format_ARGB32_Premultiplied);
    const auto from = [half](int place, int length) {
        return place < half ? place : place >= length - half ? 2 * half + 1 - (length - place) : half;
    };
    for (int y = 0; y < whole.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(image.scanLine(y));
        const auto* piece = reinterpret_cast<const QRgb*>(pieces.constScanLine(from(y, whole.height())));
        for (int x = 0; x < whole.width(); ++x)
            line[x] = piece[from(x, whole.width())];
    }
    return QPixmap::fromImage(image);
}

/// A line within the edge of that many device pixels.
QPixmap lineWithin(const QSize& size, double corner, double width, const QColor& ink)
{
    QImage image(size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(QPen(ink, width));
    const double half = width / 2;
    painter.drawRoundedRect(QRectF(image.rect()).adjusted(half, half, -half, -half), corner - half, corner - half);
    painter.end();
    return QPixmap::fromImage(image);
}

/// Draws what lies around the edge of a picture and `reach` beyond it; below the picture only its corners are needed.
/// In the screen's own pixels nothing has to be scaled. Asked to do so smoothly the toolkit would take a path that
/// wakes other threads for every strip, and waits for them.
void drawRim(
    QPainter& painter, const QPointF& place, const QPixmap& pixmap, int reach, double corner, double pixelRatio)
{
    painter.save();
    painter.setRenderHint(QPainter::SmoothPixmapTransform, false);
    painter.translate(place);
    painter.scale(1 / pixelRatio, 1 / pixelRatio);
    const QSize whole = pixmap.size();
    const QSize size = whole - QSize(2 * reach, 2 * reach);
    const int rim = std::min(static_cast<int>(std::ceil(corner * pixelRatio)), size.height() / 2);
    const int side = std::min(reach + rim, size.width() / 2);
    const int middle = whole.height() - 2 * (reach + rim);
    for (const QRect& strip :
        {QRect(0, 0, whole.width(), reach + rim), QRect(0, whole.height() - reach - rim, whole.width(), reach + rim),
            QRect(0, reach + rim, side, middle), QRect(whole.width() - side, reach + rim, side, middle)})
        painter.drawPixmap(strip.topLeft() - QPoint(reach, reach), pixmap, strip);
    painter.restore();
}

} // namespace

void drawCardShadow(QPainter& painter, const QRectF& area, double corner, double pixelRatio)
{
    const QSize size = (area.size() * pixelRatio).toSize();
    const int reach = static_cast<int>(std::ceil(shadowReach * pixelRatio));
    if (size.isEmpty())
        return;
    const QPixmap shadow =
        keptRim(u"card shadow %1 %2 %3 %4"_s.arg(size.width()).arg(size.height()).arg(corner).arg(pixelRatio),
            [&] { return shadowAround(size, corner, pixelRatio, reach); });
    drawRim(painter, area.topLeft(), shadow, reach, corner, pixelRatio);
}

void drawCardLine(QPainter& painter, const QRectF& area, double corner, const QPen& pen, double pixelRatio)
{
    const QSize size = (area.size() * pixelRatio).toSize();
    if (size.isEmpty())
        return;
    QColor ink = pen.color();
    ink.setAlphaF(1);
    const double round = corner * pixelRatio;
    const double width = pen.widthF() * pixelRatio;
    const QPixmap line =
        keptRim(u"card line %1 %2 %3 %4 %5"_s.arg(size.width()).arg(size.height()).arg(round).arg(width).arg(ink.rgb()),
            [&] { return lineWithin(size, round, width, ink); });
    const double opacity = painter.opacity();
    painter.setOpacity(opacity * pen.color().alphaF());
    drawRim(painter, area.topLeft(), line, 0, corner, pixelRatio);
    painter.setOpacity(opacity);
}

} // namespace ambrelle
