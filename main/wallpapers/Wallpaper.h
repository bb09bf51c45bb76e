// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"
#include "wallpapers/Painting.h"

#include <QByteArray>
#include <QImage>
#include <QSize>

#include <optional>

class QPainter;

namespace ambrelle {

/// Paints one skin's wallpaper; draws from `random` in a fixed order.
using WallpaperRecipe = void (*)(Painting& painting, SeededRandom& random);

/// The desktop pictures that the program paints itself. The same skin and size give the same pixels, always.
class Wallpaper {
public:
    /// Part of the name of every generated and cached file: raising it makes all of them anew.
    static constexpr int revision = 16;
    static constexpr int largestSide = 32768; ///< pixels

    /// `recipes` tells each skin's recipe. A photograph "<skin>.jpg" in the folder `photos` stands in for the recipe.
    Wallpaper(WallpaperRecipe (*recipes)(Skin), QString photos);

    /// The picture of exactly that many pixels in Format_RGB888; null when the size is nonsense or the memory is short.
    /// `threads` of 0: as many as the machine has processors. Any thread may call this.
    QImage picture(Skin skin, QSize pixels, int threads = 0) const;
    /// The same as a PNG file; empty on failure.
    QByteArray png(Skin skin, QSize pixels) const;
    /// Paints the picture into `area` at the resolution of what `painter` paints on.
    void draw(QPainter& painter, const QRectF& area, Skin skin) const;

    /// "neon-r16-2880x1800.png".
    static QString fileName(Skin skin, QSize pixels);
    /// The skin of a file with such a name, of any revision.
    static std::optional<Skin> skinOf(const QString& path);

private:
    WallpaperRecipe (*m_recipes)(Skin);
    QString m_photos;
};

} // namespace ambrelle
