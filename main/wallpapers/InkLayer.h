// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Ink.h"
#include "wallpapers/Layer.h"

#include <QImage>

namespace ambrelle {

/// An ink over the whole picture, or through a stencil.
class InkLayer : public Layer {
public:
    InkLayer(Ink ink, QSize picture);
    /// `stencil` (Format_Alpha8) says how much of each pixel is covered; its upper left corner lies at `corner`.
    InkLayer(Ink ink, QSize picture, QImage stencil, QPoint corner);

    void paint(Tile& tile) const override;

private:
    Ink m_ink;
    QSize m_picture;
    QImage m_stencil;
    QRect m_area;
};

} // namespace ambrelle
