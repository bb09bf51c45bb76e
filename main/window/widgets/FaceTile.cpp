// SPDX-License-Identifier: MIT

#include "window/widgets/FaceTile.h"

#include "skins/SkinRegistry.h"
#include "window/cards/CardLayout.h"

#include <QPainter>
#include <QPainterPath>

#include <cmath>

namespace ambrelle {

namespace {

constexpr int piecesAcross = 4; // of a wallpaper, downwards there are one more
constexpr double desktopWidth = 1440; // points that a wallpaper is meant to cover

/// The piece of the wallpaper that a desktop of the face's scale would show.
QRectF pieceOf(const QSizeF& wallpaper, const QSizeF& tile, double scale, int piece)
{
    QSizeF size = tile / scale * wallpaper.width() / desktopWidth;
    size = size.boundedTo(wallpaper);
    const QSizeF rest = wallpaper - size;
    const double across = static_cast<double>(piece % piecesAcross) / (piecesAcross - 1);
    const int row = piece / piecesAcross;
    const double down = std::min(1.0, static_cast<double>(row) / piecesAcross);
    return {QPointF(rest.width() * across, rest.height() * down), size};
}

/// Below whatever the picture shows, and nowhere under it.
void drawShadowOf(QPainter& painter, const QImage& picture, double pixelRatio)
{
    constexpr int coarse = 5; // points; scaled back smoothly, it is a blur
    constexpr double drop = 4;
    const int step = std::max(1, static_cast<int>(std::lround(coarse * pixelRatio)));
    QImage shade = picture.scaled(picture.size() / step, Qt::IgnoreAspectRatio, Qt::SmoothTransformation)
                       .scaled(picture.size(), Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
    if (shade.isNull())
        return;
    {
        QPainter dark(&shade);
        dark.setCompositionMode(QPainter::CompositionMode_SourceIn);
        dark.fillRect(shade.rect(), QColor(0, 0, 0, 90));
    }
    QImage below(picture.size(), QImage::Format_ARGB32_Premultiplied);
    below.fill(Qt::transparent);
    {
        QPainter cut(&below);
        cut.drawImage(QPointF(0, std::round(drop * pixelRatio)), shade);
        cut.setCompositionMode(QPainter::CompositionMode_DestinationOut);
        cut.drawImage(0, 0, picture);
    }
    painter.drawImage(0, 0, below);
}

} // namespace

FaceTile FaceTile::of(WidgetKind kind, Skin skin, std::shared_ptr<const Reading> reading)
{
    return {.view = ambrelle::view(skin, kind),
        .ground = styleOf(skin).ground,
        .face = WidgetConfig(kind, skin).size(),
        .piece = static_cast<int>(kind),
        .reading = std::move(reading)};
}

QImage FaceTile::picture(const QSize& pixels, double pixelRatio, const QImage& wallpaper, LayerCache& layers) const
{
    QImage tile(pixels, QImage::Format_ARGB32_Premultiplied);
    QImage shown(pixels, QImage::Format_ARGB32_Premultiplied);
    if (tile.isNull() || shown.isNull())
        return {};
    const double scale = scaleFor(pixels.width() / pixelRatio);
    shown.fill(Qt::transparent);
    {
        QPainter painter(&shown);
        const QSizeF size = face * scale * pixelRatio;
        painter.translate(
            std::round((pixels.width() - size.width()) / 2), std::round((pixels.height() - size.height()) / 2));
        painter.scale(pixelRatio, pixelRatio);
        FacePainter drawing(view, layers);
        drawing.setLook({.size = face * scale, .scale = scale});
        drawing.setReading(reading);
        drawing.paint(painter, drawing.reach(), 0);
    }
    tile.fill(ground);
    QPainter painter(&tile);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setRenderHint(QPainter::SmoothPixmapTransform);
    if (!wallpaper.isNull())
        painter.drawImage(
            QRectF(tile.rect()), wallpaper, pieceOf(wallpaper.size(), QSizeF(pixels) / pixelRatio, scale, piece));
    drawShadowOf(painter, shown, pixelRatio);
    painter.drawImage(0, 0, shown);
    QPainterPath corners;
    corners.addRect(tile.rect());
    QPainterPath plate;
    plate.addRoundedRect(tile.rect(), CardLayout::corner * pixelRatio, CardLayout::corner * pixelRatio);
    painter.setCompositionMode(QPainter::CompositionMode_DestinationOut);
    painter.fillPath(corners.subtracted(plate), Qt::black);
    return tile;
}

} // namespace ambrelle
