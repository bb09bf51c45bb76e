// SPDX-License-Identifier: MIT

#include "offline/SitePictures.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <vector>

namespace ambrelle::SitePictures {

namespace {

constexpr int leastAlpha = 32; // of what counts as seen, of 255
constexpr int similarBits = 4; // of each channel, that near duplicates differ in at most
constexpr int apart = 48; // of colours that are told, in all channels together

QImage transparent(const QSize& pixels)
{
    QImage image(pixels, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    return image;
}

/// The smallest part of the picture that holds all its marks; empty when there are none.
QRect inkedArea(const QImage& picture)
{
    int left = picture.width();
    int right = -1;
    int top = picture.height();
    int bottom = -1;
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        const QRgb* end = row + picture.width();
        const auto isInk = [](QRgb pixel) { return qAlpha(pixel) > 0; };
        const QRgb* first = std::find_if(row, end, isInk);
        if (first == end)
            continue;
        const auto last = std::find_if(std::reverse_iterator(end), std::reverse_iterator(first), isInk);
        left = std::min(left, static_cast<int>(first - row));
        right = std::max(right, static_cast<int>(last.base() - row) - 1);
        top = std::min(top, y);
        bottom = y;
    }
    return {QPoint(left, top), QPoint(right, bottom)};
}

int distance(const QColor& one, const QColor& other)
{
    return std::abs(one.red() - other.red()) + std::abs(one.green() - other.green())
        + std::abs(one.blue() - other.blue());
}

} // namespace

QImage face(const FaceView& view, const FaceLook& look, const std::shared_ptr<const Reading>& reading)
{
    const QSizeF size = look.size + QSizeF(2 * margin, 2 * margin);
    QImage image = transparent((size * scale).toSize());
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(margin, margin);
    FacePainter::paintOnce(painter, view, look, reading);
    return image;
}

std::optional<Mark> mark(const Scene& scene, qsizetype index, const QSizeF& screen)
{
    const QRect place = (scene.sprites[index].place() & QRectF({}, screen)).toAlignedRect();
    if (place.isEmpty())
        return std::nullopt;
    QImage image = transparent(place.size() * scale);
    if (image.isNull())
        return std::nullopt;
    QPainter painter(&image);
    painter.scale(scale, scale);
    painter.translate(-place.topLeft());
    Scene(Scene{{scene.sprites[index]}, scene.finish, scene.manner}).draw(painter, place);
    painter.end();
    const QRect inked = inkedArea(image);
    if (inked.isEmpty())
        return std::nullopt;
    const QRectF shown(QPointF(place.topLeft()) + QPointF(inked.topLeft()) / scale, QSizeF(inked.size()) / scale);
    return Mark{image.copy(inked), shown};
}

QColor mean(const QImage& picture)
{
    const QImage image = picture.convertToFormat(QImage::Format_RGB32);
    qint64 red = 0;
    qint64 green = 0;
    qint64 blue = 0;
    for (int y = 0; y < image.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(image.constScanLine(y));
        for (int x = 0; x < image.width(); ++x) {
            red += qRed(row[x]);
            green += qGreen(row[x]);
            blue += qBlue(row[x]);
        }
    }
    const qint64 count = std::max<qint64>(1, static_cast<qint64>(image.width()) * image.height());
    const auto part = [count](qint64 sum) { return static_cast<int>((sum + count / 2) / count); };
    return {part(red), part(green), part(blue)};
}

void ColourCount::add(const QImage& picture)
{
    for (int y = 0; y < picture.height(); ++y) {
        const auto* row = reinterpret_cast<const QRgb*>(picture.constScanLine(y));
        for (int x = 0; x < picture.width(); ++x) {
            if (qAlpha(row[x]) < leastAlpha)
                continue;
            const QRgb pixel = qUnpremultiply(row[x]);
            const auto part = [](int channel) { return static_cast<quint32>(channel >> similarBits); };
            Bin& bin = m_bins[part(qRed(pixel)) << 16 | part(qGreen(pixel)) << 8 | part(qBlue(pixel))];
            ++bin.count;
            bin.red += qRed(pixel);
            bin.green += qGreen(pixel);
            bin.blue += qBlue(pixel);
        }
    }
}

QList<QColor> ColourCount::most(qsizetype count) const
{
    std::vector<Bin> bins;
    bins.reserve(m_bins.size());
    for (const auto& [key, bin] : m_bins)
        bins.push_back(bin);
    std::ranges::stable_sort(bins, std::ranges::greater(), &Bin::count);
    QList<QColor> colours;
    for (const Bin& bin : bins) {
        const auto part = [&bin](qint64 sum) { return static_cast<int>(sum / bin.count); };
        const QColor colour(part(bin.red), part(bin.green), part(bin.blue));
        const auto isNear = [&colour](const QColor& other) { return distance(colour, other) < apart; };
        if (colours.size() < count && std::ranges::none_of(colours, isNear))
            colours.append(colour);
    }
    return colours;
}

} // namespace ambrelle::SitePictures
