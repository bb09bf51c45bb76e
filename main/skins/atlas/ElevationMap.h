// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Perlin.h"

#include <vector>

namespace ambrelle {

/// The land of a map: heights of 0 to 1, computed once at close places, so that looking one up is cheap and its slope
/// comes with it. Places are in units of the picture's height.
class ElevationMap {
public:
    /// `spacing` is the distance between two computed heights.
    ElevationMap(const Perlin& field, double width, double height, double spacing);

    struct Land {
        double height;
        double right; ///< how much it grows per unit to the right
        double up;

        double steepness() const;
    };
    Land at(double x, double y) const;

private:
    double m_spacing;
    int m_columns;
    int m_rows;
    std::vector<float> m_heights;
};

} // namespace ambrelle
