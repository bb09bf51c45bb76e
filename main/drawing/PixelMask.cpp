// SPDX-License-Identifier: MIT

#include "drawing/PixelMask.h"

#include "drawing/Kept.h"

#include <QCache>
#include <QHash>
#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int side = 4;
constexpr int levels = side * side;
constexpr int bayer[side][side] = {{0, 8, 2, 10}, {12, 4, 14, 6}, {3, 11, 1, 9}, {15, 7, 13, 5}};

bool isBlack(int x, int y, double darkness)
{
    return static_cast<int>(std::lround(darkness * levels)) > bayer[y % side][x % side];
}

double lightness(const QColor& colour)
{
    return qGray(colour.rgb()) / 255.0;
}

/// Dark and light parts drawn apart, so that a picture of middle greys does not become one even pattern.
double stretched(double light, double darkest, double lightest)
{
    return lightest - darkest < 0.1 ? light : std::clamp((light - darkest) / (lightest - darkest), 0.0, 1.0);
}

QImage ditherAfresh(const QImage& picture, const QSize& size)
{
    const QImage grey = picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                            .convertToFormat(QImage::Format_Grayscale8);
    uchar darkest = 255;
    uchar lightest = 0;
    for (int y = 0; y < grey.height(); ++y) {
        const auto [low, high] =
            std::ranges::minmax_element(grey.constScanLine(y), grey.constScanLine(y) + grey.width());
        darkest = std::min(darkest, *low);
        lightest = std::max(lightest, *high);
    }
    QImage bits(size, QImage::Format_RGB32);
    for (int y = 0; y < size.height(); ++y) {
        const uchar* from = grey.constScanLine(y);
        QRgb* to = reinterpret_cast<QRgb*>(bits.scanLine(y));
        for (int x = 0; x < size.width(); ++x) {
            const double light = stretched(from[x] / 255.0, darkest / 255.0, lightest / 255.0);
            to[x] = isBlack(x, y, 1 - light) ? 0xFF000000 : 0xFFFFFFFF;
        }
    }
    return bits;
}

} // namespace

QList<QRect> coveredRuns(const QPainterPath& shape)
{
    const QRect area = shape.boundingRect().toAlignedRect();
    if (area.isEmpty())
        return {};
    QImage mask(area.size(), QImage::Format_Grayscale8);
    mask.fill(0);
    QPainter painter(&mask);
    painter.translate(-area.topLeft());
    painter.fillPath(shape, Qt::white);
    painter.end();
    QList<QRect> runs;
    for (int y = 0; y < mask.height(); ++y) {
        const uchar* row = mask.constScanLine(y);
        for (int x = 0; x < mask.width(); ++x) {
            const int start = x;
            while (x < mask.width() && row[x] > 127)
                ++x;
            if (x > start)
                runs.append({area.x() + start, area.y() + y, x - start, 1});
        }
    }
    return runs;
}

QPainterPath pixelated(const QPainterPath& shape)
{
    QList<QRect> blocks;
    QHash<std::pair<int, int>, qsizetype> open; // by left edge and width: the block that ends in the row above
    for (const QRect& run : coveredRuns(shape)) {
        const auto above = open.constFind({run.x(), run.width()});
        if (above != open.constEnd() && blocks[*above].bottom() + 1 == run.y()) {
            blocks[*above].setBottom(run.bottom());
        } else {
            open.insert({run.x(), run.width()}, blocks.size());
            blocks.append(run);
        }
    }
    QPainterPath outline;
    outline.setFillRule(Qt::WindingFill);
    for (const QRect& block : std::as_const(blocks))
        outline.addRect(block);
    return outline;
}

QImage ditherTile(const QColor& colour, int unit)
{
    QImage tile(side, side, QImage::Format_ARGB32_Premultiplied);
    const double light = lightness(colour);
    const bool open = colour.alphaF() < 1;
    const QRgb ink = open && light > 0.5 ? 0xFFFFFFFF : 0xFF000000;
    const QRgb rest = open ? 0 : 0xFFFFFFFF;
    const double cover = open ? static_cast<double>(colour.alphaF()) : 1 - light;
    for (int y = 0; y < side; ++y) {
        for (int x = 0; x < side; ++x)
            tile.setPixel(x, y, isBlack(x, y, cover) ? ink : rest);
    }
    return tile.scaled(tile.size() * unit);
}

namespace {

/// Results of one way to change a picture, by picture and size.
QImage kept(QCache<QString, QImage>& results, const QImage& picture, const QSize& size,
    QImage (*make)(const QImage&, const QSize&))
{
    const QString key = u"%1 %2 %3"_s.arg(picture.cacheKey()).arg(size.width()).arg(size.height());
    if (const QImage* result = results.object(key))
        return *result;
    QImage result = make(picture, size);
    results.insert(key, new QImage(result), std::max<qsizetype>(1, result.sizeInBytes() / 1024));
    return result;
}

constexpr int keptKilobytes = 4 * 1024;

} // namespace

QImage dithered(const QImage& picture, const QSize& size)
{
    thread_local Kept<QCache<QString, QImage>> results(keptKilobytes);
    return kept(results, picture, size, ditherAfresh);
}

QImage reduced(const QImage& picture, const QSize& size)
{
    thread_local Kept<QCache<QString, QImage>> results(keptKilobytes);
    return kept(results, picture, size, [](const QImage& from, const QSize& to) {
        return from.scaled(to, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
            .convertToFormat(QImage::Format_ARGB32_Premultiplied);
    });
}

} // namespace ambrelle
