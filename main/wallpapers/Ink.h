// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Pixel.h"

#include <QPointF>

#include <span>
#include <utility>
#include <vector>

namespace ambrelle {

/// A colour at a place of a gradient, 0 to 1; the list ascends.
struct GradientStop {
    double location;
    RGBA colour;
};
using GradientStops = std::vector<GradientStop>;

/// The same colours at the same places, but between them the way starts and ends slowly: no crease shows where one
/// slope meets the next.
GradientStops eased(const GradientStops& stops);

/// What a shape is filled with: one colour, or a gradient in the picture's coordinates (pixels, y up).
class Ink {
public:
    Ink(const RGBA& colour); // NOLINT(google-explicit-constructor): a colour is an ink

    enum class Ends {
        extended, ///< the outer colours go on beyond the gradient
        open, ///< nothing beyond the gradient
    };
    static Ink linear(QPointF from, QPointF to, const GradientStops& stops, Ends ends = Ends::extended);
    /// From the centre (0) to the radius (1).
    static Ink radial(QPointF centre, double radius, const GradientStops& stops, Ends ends = Ends::open);

    /// The columns, first and one past the last, outside of which the ink is clear in the row whose centre is at `y`.
    std::pair<int, int> columns(double y, int width) const;
    /// The ink in the row whose centre is at `y`, from column `first` on.
    void fill(std::span<Pixel> row, int first, double y) const;

private:
    enum class Form { flat, linear, radial };

    Ink() = default;
    const Pixel& at(double t) const;

    Form m_form = Form::flat;
    Ends m_ends = Ends::extended;
    std::vector<Pixel> m_ramp; ///< the colours at even steps; one for a flat ink
    QPointF m_origin; ///< where the gradient is 0
    QPointF m_direction; ///< linear: how much it grows per pixel
    double m_radius = 0;
};

} // namespace ambrelle
