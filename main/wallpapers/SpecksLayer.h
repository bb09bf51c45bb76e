// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Layer.h"

#include <QRectF>

namespace ambrelle {

/// Very many small rectangles, one over the other in the order they were added.
class SpecksLayer : public Layer {
public:
    explicit SpecksLayer(QSize picture);

    /// `area` in pixels, y down; pixels that it covers in part are tinted in part.
    void add(const QRectF& area, const RGBA& colour);
    void paint(Tile& tile) const override;

private:
    struct Speck {
        QRectF area;
        Pixel colour;
    };

    QSize m_picture;
    std::vector<std::vector<Speck>> m_rows; ///< by the row of tiles they reach into
};

} // namespace ambrelle
