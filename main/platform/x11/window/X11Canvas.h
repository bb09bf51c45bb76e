// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/RasterSurface.h"
#include "platform/x11/window/X11Parts.h"

namespace ambrelle {

class PixelGrid;

/// Paints part by part in a buffer that all windows share, over a copy of the desktop picture where nothing composites:
/// the window keeps no copy of its pixels.
class X11Canvas final : public SurfaceCanvas {
public:
    /// Over backdrops: what they draw lies below too.
    enum class Ground { picture, pictureAndShades };
    static constexpr int pixelsOfPanel = 1 << 19; ///< what one needs at twice the usual pixel ratio

    /// What lies below an opaque one never shows through, and the server keeps no copy of its pixels either.
    /// So many pixels are painted at once: meanwhile this program and the server hold as many.
    X11Canvas(X11Parts& parts, Ground ground, bool translucent = true, int mostPixels = pixelsOfPanel);

    void paint(RasterSurface& surface, const QList<QRect>& parts, const Paint& paint) override;
    bool isTranslucent() const override { return m_translucent; }
    bool showsGround() const override { return !m_parts.compositor.isActive(); }

    /// The pixel of the root window where the surface begins.
    static QPoint nativeCorner(const RasterSurface& surface);

private:
    bool paintTogether(RasterSurface& surface, const PixelGrid& grid, const QList<QRect>& areas, const Paint& paint);

    X11Parts& m_parts;
    Ground m_ground;
    bool m_translucent;
    int m_mostPixels;
    uint8_t m_depth = 0; ///< of the surface's pixels; 0 before the first are shown
};

} // namespace ambrelle
