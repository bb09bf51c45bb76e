// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Pixel.h"

#include <QRect>

#include <vector>

namespace ambrelle {

/// A part of the picture while it is painted, small enough to stay in a processor's cache under all layers. Rows count
/// from the top of the picture.
class Tile {
public:
    static constexpr int width = 512;
    static constexpr int height = 64;

    explicit Tile(const QRect& area)
        : m_area(area)
        , m_pixels(static_cast<std::size_t>(area.width()) * static_cast<std::size_t>(area.height()), Pixel{0, 0, 0, 1})
    {
    }

    const QRect& area() const { return m_area; }
    /// The pixel at the picture's column `x` and row `y`, and those right of it.
    Pixel* at(int x, int y)
    {
        return m_pixels.data() + static_cast<std::ptrdiff_t>(y - m_area.top()) * m_area.width() + (x - m_area.left());
    }

private:
    QRect m_area;
    std::vector<Pixel> m_pixels;
};

/// One thing painted over what is there. What it paints in a pixel depends on the pixel's place in the picture only,
/// never on the tile: so tiles may be painted in any order, on any number of threads.
class Layer {
public:
    Layer() = default;
    virtual ~Layer() = default;
    Layer(const Layer&) = delete;
    Layer& operator=(const Layer&) = delete;

    virtual void paint(Tile& tile) const = 0;
};

} // namespace ambrelle
