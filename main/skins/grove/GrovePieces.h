// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/Readings.h"

namespace ambrelle::grove {

/// A leaf that grows `degrees` clockwise from the right, pointed at both ends, half as broad as long.
QPainterPath leaf(QPointF root, double degrees, double length);
/// A leaf at a place (0 to 1) of a stem, `degrees` clockwise from the way the stem grows.
QPainterPath leafOn(const QPainterPath& stem, double place, double degrees, double length);
/// A narrow leaf that fills the box, its stalk at the left or below, whichever way the box is longer.
QPainterPath blade(const Box& box);

/// A stem with leaves in pairs that get smaller towards its tip, and one at the tip.
struct Twig {
    QPainterPath stem{};
    int pairs = 5;
    double length = 7; ///< length of the lowest leaves, points
    double from = 0.12; ///< where they grow, 0 to 1

    QPainterPath leaves() const;
};

/// The cover of the book, stamped with two frames of gold.
void cover(Canvas& canvas, const Box& face, double corner, const QColor& gold);
/// The sprig in its lower right corner, whose two stems grow into the inner frame.
void cornerSprig(Canvas& canvas, const Box& face, const QColor& gold);
/// Two branches beside a box, as they stand on title pages; each `width` points wide.
void branches(Canvas& canvas, const Box& box, double width, const QColor& gold);

/// The line of a graph as a vine: pairs of leaves at each tenth of sixty samples, a bud at the newest.
void vine(Canvas& canvas, const QPainterPath& line, const QColor& colour, const QColor& leaves);
/// A wreath along a circle: leaves every 15 degrees up to the fraction, a thin line for the rest.
void wreath(Canvas& canvas, const Box& circle, double fraction, const QColor& line, const QColor& leaves);

/// The picture of a sky, engraved in gold and tinted with green, in the largest square of the box.
void skyPicture(Canvas& canvas, const Box& box, Sky sky, const QColor& gold, const QColor& ink);

/// A fine rule through the middle of the box that ends in a dot.
void dottedRule(Canvas& canvas, const Box& box);
/// What tells the parts of a whole apart, also without colours: `index` 0 full, 1 veined, 2 and more stippled.
void partTint(Canvas& canvas, const QPainterPath& shape, qsizetype index, const QColor& colour);

} // namespace ambrelle::grove
