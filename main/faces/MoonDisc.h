// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

namespace ambrelle {

/// The moon's disc with its lit part: `fraction` of the lunation, 0 new, 0.5 full; waxing lights the right side, as
/// seen from the northern half of the earth.
struct MoonDisc {
    QBrush lit;
    QBrush dark;
    QPen edge;

    void draw(Canvas& canvas, const Box& box, double fraction) const;
};

/// The way of the sun from sunrise to sunset over a horizon, with the sun where it stands now.
struct SunArc {
    QPen arc;
    QPen horizon;
    QBrush sun;

    /// `position` from 0 (sunrise) to 1 (sunset); none: no sun in the sky.
    void draw(Canvas& canvas, const Box& box, std::optional<double> position) const;
};

} // namespace ambrelle
