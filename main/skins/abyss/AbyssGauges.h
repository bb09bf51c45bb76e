// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Gauge.h"
#include "skins/abyss/AbyssStyle.h"

namespace ambrelle::abyss {

/// A pressure gauge: a scale over 250 degrees, a needle with a counterweight that trembles, and a window for the figure
/// in its open lower part.
struct BrassGauge {
    const SkinStyle& style;
    QColor needle{};
    int steps = 20; ///< spaces between ticks
    int every = 2; ///< every so-manyth tick is a long one
    int numerals = 6; ///< in per cent, evenly spread; 0: none
    double red = 1; ///< where the red sector begins
    bool lit = false; ///< an arc of light outside the ticks, up to the value
    double seed = 1; ///< needles of one face differ

    /// The largest one in the box; returns the window.
    Box draw(Canvas& canvas, const Box& box, double fraction) const;

private:
    void scale(Canvas& canvas, const Gauge& gauge) const;
    void point(Canvas& canvas, const Gauge& gauge, double fraction) const;
};

/// An upright glass tube between fittings of brass, with ten marks at its right, filled with water that heaves a
/// little.
struct DepthTube {
    static constexpr double marks = 12; ///< their room, right of the place

    Box place; ///< of the tube
    QColor water;
    bool bubbling = false; ///< while it is being filled

    void draw(Canvas& canvas, double fraction) const;
    /// The height at which the water stands in the middle.
    double surface(double fraction) const;

private:
    Box bore() const;
    QBrush body() const;
    void tube(Canvas& canvas) const;
};

} // namespace ambrelle::abyss
