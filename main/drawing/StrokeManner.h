// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SeededRandom.h"

#include <QPainter>
#include <QPainterPath>
#include <QPen>

namespace ambrelle {

/// What lines are drawn with. In a crisp finish all lines are plain.
enum class StrokeManner {
    plain, ///< a pen: exactly the path
    chalk, ///< wavers, is struck twice, and the board shows through an eighth of it
    marker, ///< round ends, a slightly uneven width
    brush, ///< broad downwards, narrow across, and dry where it ends
};

/// The path in small steps, each up to about `amount` beside it.
QPainterPath wavering(const QPainterPath& path, double amount, SeededRandom& random);

/// Strokes a path in a manner other than plain. How it wavers follows from `seed` and from where the path begins: the
/// same path gives the same picture each time, and one that only grows keeps what was there before.
void strokeByHand(
    QPainter& painter, const QPainterPath& path, const QPen& pen, StrokeManner manner, std::uint64_t seed);

} // namespace ambrelle
