// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"

#include <QImage>
#include <QRectF>

#include <functional>

namespace ambrelle {

class FaceView;

/// Where every kind stands on a skin's sheet: rows of at most 710 points, 10 points apart, in catalogue order.
struct PreviewSheet {
    static constexpr double rowWidth = 710;
    static constexpr double gap = 10;
    static constexpr double margin = 40;
    static constexpr double scale = 2; ///< pixels per point

    struct Place {
        WidgetKind kind;
        QRectF area; ///< points of the sheet, margin included, y down
    };

    QList<Place> places;
    QSizeF size; ///< points

    static PreviewSheet of(Skin skin);
};

} // namespace ambrelle
