// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Layer.h"

#include <QRectF>

#include <functional>
#include <span>

namespace ambrelle {

/// A picture computed sample by sample, with fewer samples than pixels where that is enough: between them it is
/// interpolated.
class RasterLayer : public Layer {
public:
    /// Computes the samples of one row from number `first` on. Places are in units of the picture's height, y up.
    struct Row {
        int first;
        double origin; ///< the x of the left edge
        double step; ///< from sample to sample
        double y;

        double x(std::size_t i) const { return origin + (first + static_cast<double>(i) + 0.5) * step; }
    };
    using Shader = std::function<void(const Row& row, std::span<Pixel> samples)>;

    /// `area` in pixels, y down; `scale` pixels per sample, at least 1.
    RasterLayer(QSize picture, const QRectF& area, double scale, Shader shader);

    void paint(Tile& tile) const override;

private:
    /// A pixel's place between two samples.
    struct Between {
        int sample;
        float next; ///< the share of the sample after it
    };

    static Between between(int pixel, double start, double perPixel, int count);
    void shade(int row, int first, std::span<Pixel> samples) const;
    void paintExactly(Tile& tile, const QRect& part) const;
    void paintBetween(Tile& tile, const QRect& part) const;

    QSize m_picture;
    QRectF m_area;
    QSize m_samples;
    Shader m_shader;
    bool m_exact; ///< a sample in the middle of each pixel
};

} // namespace ambrelle
