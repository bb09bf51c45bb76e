// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/LayerCache.h"
#include "faces/FacePainter.h"

#include <QImage>

namespace ambrelle {

/// A face in the middle of a piece of a wallpaper. It is made on the main thread, with the accents of that moment, and
/// drawn on any.
struct FaceTile {
    /// Of a face by its own size, where a tile is that many points wide: the same for all faces.
    static double scaleFor(double width) { return 0.56 * width / 240; }

    static FaceTile of(WidgetKind kind, Skin skin, std::shared_ptr<const Reading> reading);

    FaceView view;
    QColor ground; ///< where there is no wallpaper
    QSizeF face; ///< points at its own size
    int piece = 0; ///< of the wallpaper: each kind has another
    std::shared_ptr<const Reading> reading;

    /// The tile in exactly that many pixels, which has round corners. `layers` belongs to this thread meanwhile.
    QImage picture(const QSize& pixels, double pixelRatio, const QImage& wallpaper, LayerCache& layers) const;
};

} // namespace ambrelle
