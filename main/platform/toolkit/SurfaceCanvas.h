// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRect>

#include <functional>

class QPainter;

namespace ambrelle {

class RasterSurface;

/// Where the pixels of one surface come from and go to.
class SurfaceCanvas {
public:
    /// Paints what lies in `area` (window points) on a painter that is clipped to it. False: the surface has no owner
    /// any more, and nothing else is to be painted.
    using Paint = std::function<bool(QPainter& painter, const QRect& area)>;

    virtual ~SurfaceCanvas() = default;

    /// Has those parts of the surface painted, transparent before or showing what lies below, and shows them.
    virtual void paint(RasterSurface& surface, const QList<QRect>& parts, const Paint& paint) = 0;
    /// Whether what lies below can show through; to be known before the surface is made.
    virtual bool isTranslucent() const { return true; }
    /// What lies below the surface is painted along, so that a move changes its pixels.
    virtual bool showsGround() const { return false; }
};

} // namespace ambrelle
