// SPDX-License-Identifier: MIT

#include "wallpapers/Wallpaper.h"

#include "wallpapers/PngWriter.h"

#include <QFileInfo>
#include <QImageReader>
#include <QPainter>
#include <QRegularExpression>

#include <thread>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

/// The photograph scaled to fill the size, its middle in the middle; null when there is none that can be read.
QImage photograph(const QString& path, QSize pixels)
{
    QImageReader reader(path);
    reader.setAutoTransform(true);
    QImage photo = reader.read();
    if (photo.isNull())
        return photo;
    const QImage filling = photo.scaled(pixels, Qt::KeepAspectRatioByExpanding, Qt::SmoothTransformation);
    const QPoint corner((filling.width() - pixels.width()) / 2, (filling.height() - pixels.height()) / 2);
    return filling.copy({corner, pixels}).convertToFormat(QImage::Format_RGB888);
}

} // namespace

Wallpaper::Wallpaper(WallpaperRecipe (*recipes)(Skin), QString photos)
    : m_recipes(recipes)
    , m_photos(std::move(photos))
{
}

QImage Wallpaper::picture(Skin skin, QSize pixels, int threads) const
{
    const QRect possible(0, 0, largestSide + 1, largestSide + 1);
    if (pixels.isEmpty() || !possible.contains(QPoint(pixels.width(), pixels.height())))
        return {};
    const QString photo = m_photos + u'/' + rawValue(skin) + u".jpg"_s;
    if (QFileInfo::exists(photo)) {
        if (QImage image = photograph(photo, pixels); !image.isNull())
            return image;
    }
    Painting painting(pixels);
    SeededRandom random{seedOf(rawValue(skin))};
    m_recipes(skin)(painting, random);
    return painting.render(threads > 0 ? threads : static_cast<int>(std::thread::hardware_concurrency()));
}

QByteArray Wallpaper::png(Skin skin, QSize pixels) const
{
    return encodedAsPng(picture(skin, pixels));
}

void Wallpaper::draw(QPainter& painter, const QRectF& area, Skin skin) const
{
    const QSize pixels = painter.deviceTransform().mapRect(area).size().toSize();
    painter.drawImage(area, picture(skin, pixels));
}

QString Wallpaper::fileName(Skin skin, QSize pixels)
{
    return u"%1-r%2-%3x%4.png"_s.arg(rawValue(skin)).arg(revision).arg(pixels.width()).arg(pixels.height());
}

std::optional<Skin> Wallpaper::skinOf(const QString& path)
{
    static const QRegularExpression form(u"^([A-Za-z]+)-r[0-9]+-[0-9]+x[0-9]+\\.png$"_s);
    const QRegularExpressionMatch match = form.match(QFileInfo(path).fileName());
    return match.hasMatch() ? parse<Skin>(match.captured(1)) : std::nullopt;
}

} // namespace ambrelle
