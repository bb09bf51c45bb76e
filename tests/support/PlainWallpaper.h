// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Wallpaper.h"

#include <atomic>
#include <cstdlib>

namespace ambrelle {

/// The same blue picture for every skin, painted at once and counted.
struct PlainWallpaper {
    PlainWallpaper() { painted = 0; }

    static inline std::atomic<int> painted = 0; ///< pictures, in all of a test

    static Wallpaper painter()
    {
        return {[](Skin) -> WallpaperRecipe {
                    return [](Painting& painting, SeededRandom&) {
                        ++painted;
                        painting.fill(hex(0x2040C0));
                    };
                },
            {}};
    }
    /// Whether it shows there, as far as a packed picture tells.
    static bool isAt(const QImage& image, const QPoint& point)
    {
        const QColor colour = image.pixelColor(point);
        const auto isNear = [](int value, int wanted) { return std::abs(value - wanted) < 4; };
        return isNear(colour.red(), 0x20) && isNear(colour.green(), 0x40) && isNear(colour.blue(), 0xC0)
            && colour.alpha() == 255;
    }
    static bool isIn(const QImage& image) { return isAt(image, image.rect().center()); }
};

} // namespace ambrelle
