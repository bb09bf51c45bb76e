// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetConfig.h"

#include <QList>

namespace ambrelle {

/// One widget of a composition, in design points: a free plane with y growing downwards.
struct Spot {
    WidgetKind kind;
    double x; ///< left edge
    double y; ///< upper edge
    WidgetScale scale = WidgetScale::medium;

    bool operator==(const Spot&) const = default;
};

/// A widget of a composition fitted to an area: `frame` is in points of that area, origin at its upper left corner, y
/// growing downwards as in the design.
struct PlacedWidget {
    WidgetConfig config;
    QRectF frame;
};

/// The layout of widgets that belongs to a skin.
struct Composition {
    /// Least distance from the area's edges, points.
    static constexpr double marginX = 56;
    static constexpr double marginY = 30;

    struct Cell {
        WidgetKind kind;
        int column;
        int row;
    };

    QList<Spot> spots; ///< in the order of creation

    bool operator==(const Composition&) const = default;

    static const Composition& preset(Skin skin);
    /// Small widgets 180 points apart.
    static Composition tiled(const QList<Cell>& cells);

    /// The skin's composition centred in an area of `size`, shrunk as a whole where it does not fit, never enlarged; in
    /// the order of the spots. `config.fit` is the shrinking, `config.origin` is (0, 0).
    static QList<PlacedWidget> frames(Skin skin, const QSizeF& size);
    /// The same as widgets of the screen area `area` (global points, y up): the top of the design is at its top.
    static QList<WidgetConfig> widgets(Skin skin, const QRectF& area);
};

} // namespace ambrelle
