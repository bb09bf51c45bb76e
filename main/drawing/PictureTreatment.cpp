// SPDX-License-Identifier: MIT

#include "drawing/PictureTreatment.h"

#include "drawing/Kept.h"

#include "drawing/Colours.h"
#include "drawing/DeviceImage.h"
#include "drawing/PixelPaint.h"

#include <QCache>

#include <array>
#include <cmath>
#include <numbers>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int treatedKilobytes = 4 * 1024;

/// The middle of the picture in the proportions of `size`.
QImage cropped(const QImage& picture, const QSize& size)
{
    const QSize part = size.scaled(picture.size(), Qt::KeepAspectRatio).expandedTo({1, 1});
    const QPoint corner((picture.width() - part.width()) / 2, (picture.height() - part.height()) / 2);
    return part == picture.size() ? picture : picture.copy(QRect(corner, part));
}

QImage smoothlyScaled(const QImage& picture, const QSize& size)
{
    return picture.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

/// Each pixel by its lightness.
template <typename Colour> QImage mapped(const QImage& picture, Colour colourOf)
{
    const QImage from = picture.convertToFormat(QImage::Format_ARGB32);
    QImage result(from.size(), QImage::Format_ARGB32);
    for (int y = 0; y < from.height(); ++y) {
        const QRgb* source = reinterpret_cast<const QRgb*>(from.constScanLine(y));
        QRgb* target = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < from.width(); ++x)
            target[x] = (colourOf(qGray(source[x]), x, y) & 0xFFFFFF) | (source[x] & 0xFF000000);
    }
    return result.convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

using Ramp = std::array<QRgb, 256>;

Ramp rampOf(const QColor& dark, const QColor& light)
{
    Ramp ramp{};
    for (std::size_t level = 0; level < ramp.size(); ++level)
        ramp[level] = blended(dark, light, static_cast<double>(level) / 255).rgb();
    return ramp;
}

/// A screen of round dots that meet as squares in the middle tones (two crossed waves).
QImage printedDots(const QImage& picture, const Ramp& ramp, double pitch, double degrees)
{
    constexpr int phases = 1024;
    static const std::array<float, phases> wave = [] {
        std::array<float, phases> values{};
        for (std::size_t phase = 0; phase < phases; ++phase)
            values[phase] =
                static_cast<float>(std::cos(2 * std::numbers::pi * static_cast<double>(phase) / phases) * 0.25 + 0.25);
        return values;
    }();
    const auto at = [](double turns) {
        return wave[static_cast<std::size_t>(static_cast<long>(std::floor(turns * phases)) & (phases - 1))];
    };
    const double angle = degrees * std::numbers::pi / 180;
    const double across = std::cos(angle) / pitch;
    const double down = std::sin(angle) / pitch;
    const float sharpness = static_cast<float>(std::max(1.5, pitch * 0.75)); // a rim of about one pixel
    return mapped(picture, [&](int grey, int column, int row) {
        const double x = column + 0.5;
        const double y = row + 0.5;
        const float screen = at(across * x + down * y) + at(across * y - down * x);
        const float paper = std::clamp((static_cast<float>(grey) / 255 - screen) * sharpness + 0.5F, 0.0F, 1.0F);
        return ramp[static_cast<std::size_t>(std::lround(paper * 255))];
    });
}

} // namespace

PictureTreatment PictureTreatment::grey()
{
    PictureTreatment treatment;
    treatment.m_kind = Kind::grey;
    return treatment;
}

PictureTreatment PictureTreatment::duotone(const QColor& dark, const QColor& light)
{
    PictureTreatment treatment;
    treatment.m_kind = Kind::duotone;
    treatment.m_dark = dark;
    treatment.m_light = light;
    return treatment;
}

PictureTreatment PictureTreatment::halftone(const QColor& ink, const QColor& paper, double pitch, double degrees)
{
    PictureTreatment treatment = duotone(ink, paper);
    treatment.m_kind = Kind::halftone;
    treatment.m_pitch = pitch;
    treatment.m_degrees = degrees;
    return treatment;
}

PictureTreatment PictureTreatment::pixels(int count)
{
    PictureTreatment treatment;
    treatment.m_kind = Kind::pixels;
    treatment.m_count = std::max(1, count);
    return treatment;
}

PictureTreatment PictureTreatment::blurred(int count)
{
    PictureTreatment treatment = pixels(count);
    treatment.m_kind = Kind::blurred;
    return treatment;
}

QString PictureTreatment::key() const
{
    return u"%1 %2 %3 %4 %5 %6"_s.arg(static_cast<int>(m_kind))
        .arg(m_dark.rgb())
        .arg(m_light.rgb())
        .arg(m_pitch)
        .arg(m_degrees)
        .arg(m_count);
}

QImage PictureTreatment::applied(const QImage& picture, const QSize& size, double scale) const
{
    if (picture.isNull() || size.isEmpty())
        return {};
    thread_local Kept<QCache<QString, QImage>> kept(treatedKilobytes);
    const QString name =
        u"%1 %2 %3 %4 %5"_s.arg(picture.cacheKey()).arg(size.width()).arg(size.height()).arg(scale).arg(key());
    if (const QImage* known = kept.object(name))
        return *known;
    QImage fresh = made(picture, size, scale);
    kept.insert(name, new QImage(fresh), std::max<qsizetype>(1, fresh.sizeInBytes() / 1024));
    return fresh;
}

QImage PictureTreatment::made(const QImage& picture, const QSize& size, double scale) const
{
    const QImage part = cropped(picture, size);
    const QSize few = (QSizeF(size) * m_count / std::max(size.width(), size.height())).toSize().expandedTo({1, 1});
    const Ramp ramp = rampOf(m_dark, m_light);
    switch (m_kind) {
    case Kind::none: return smoothlyScaled(part, size);
    case Kind::grey:
    case Kind::duotone:
        return mapped(
            smoothlyScaled(part, size), [&](int grey, int, int) { return ramp[static_cast<std::size_t>(grey)]; });
    case Kind::halftone: return printedDots(smoothlyScaled(part, size), ramp, m_pitch * scale, m_degrees);
    case Kind::pixels: return smoothlyScaled(part, few).scaled(size);
    case Kind::blurred: return smoothlyScaled(smoothlyScaled(part, few), size);
    }
    Q_UNREACHABLE();
}

void drawPicture(
    Canvas& canvas, const QPainterPath& shape, const QImage& picture, const PictureTreatment& treatment, double opacity)
{
    const Box box = shape.boundingRect();
    if (picture.isNull() || box.isEmpty())
        return;
    canvas.paint([&](QPainter& painter) {
        // Pixel for pixel where nothing is turned, so that dots and edges stay as sharp as they were made.
        const QTransform& device = painter.deviceTransform();
        const bool upright = device.type() <= QTransform::TxScale;
        const double scale = std::hypot(device.m11(), device.m12());
        const QRect pixels = upright ? devicePixels(painter, box)
                                     : QRectF(QPointF(), box.size() * scale).adjusted(0, 0, 2, 2).toAlignedRect();
        const QImage image = treatment.applied(picture, pixels.size(), scale);
        painter.setOpacity(painter.opacity() * opacity);
        if (canvas.finish() != Finish::smooth) {
            painter.setRenderHint(QPainter::Antialiasing, false);
            painter.setClipPath(shape, Qt::IntersectClip);
            PixelPaint(painter, canvas.finish()).picture(box, image, image.rect());
            return;
        }
        QTransform place;
        if (upright) {
            place = QTransform::fromTranslate(pixels.x(), pixels.y()) * device.inverted();
        } else {
            place.translate(box.x(), box.y()).scale(1 / scale, 1 / scale).translate(-1, -1);
        }
        QBrush texture(image); // not a clip: clips are not antialiased
        texture.setTransform(place);
        painter.fillPath(shape, texture);
    });
}

} // namespace ambrelle
