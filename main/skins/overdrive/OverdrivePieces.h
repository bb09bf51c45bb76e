// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Readings.h"

namespace ambrelle::overdrive {

/// The box without its lower right corner, `cut` points of either edge.
QPainterPath slabPath(const Box& box, double cut);
/// A slab, or while it is not lit its outline, which lies inside the box.
void slab(Canvas& canvas, const Box& box, double cut, const QColor& colour, bool lit, double line = 1.2);

/// Bars of 45 degrees, from the upper edge of the box to its lower one.
void hazardStrip(Canvas& canvas, const Box& box, const QColor& colour);
/// The plate with its hazard strip and, at the lower left, a serial number.
void hazardPlate(Canvas& canvas, const SkinStyle& style, const Box& bounds, const QString& serial);
/// Letters that are stamped on the hardware: an ornament, not recorded. Their baseline starts at `start`.
void stamped(Canvas& canvas, QPointF start, const TextStyle& text, const QString& letters);
/// The four corners of what is under observation.
void brackets(Canvas& canvas, const Box& box, const QColor& colour);

/// Blocks that are lit up to `fraction`, one at least where there is anything.
struct BlockRow {
    int count = 24;
    double gap = 1.5; ///< points
    double slant = 0; ///< degrees
    QColor unlit{};

    int lit(double fraction) const;
    void draw(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const;
};

/// A history as bars on the lower edge of the box, as many as it has room for, the newest solid.
struct BarGraph {
    static constexpr double gap = 2; // points

    QColor colour;
    double width = 5; ///< of a bar, points
    double top = 1; ///< the value at the upper edge
    bool hanging = false; ///< from the upper edge
    double limit = 2; ///< in parts of `top`; what is above it is red

    void draw(Canvas& canvas, const Box& box, const History& history) const;
};

/// A sky in the largest square of the box, all of straight lines.
void skyPicture(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky);

/// A figure whose picture tears for a moment now and then: slices of it stand aside between coloured ghosts.
struct Glitch {
    QColor ground; ///< what the figure stands on
    int seed = 1; ///< figures with different ones tear at different moments

    /// Over a figure that was drawn with the same box, value and style.
    void draw(Canvas& canvas, const Box& box, const Units::Pair& value, const FigureStyle& figure) const;
};

} // namespace ambrelle::overdrive
