// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "skins/abyss/AbyssStyle.h"

namespace ambrelle::abyss {

// Fittings of the boat. Those of brass belong into still layers.

/// The riveted brass rim around the dark face.
void riveted(Canvas& canvas, const Box& bounds, double corner);
void rivet(Canvas& canvas, QPointF centre, double radius);
/// A brass ring with bolts in the largest circle of the box, over something dark; returns the square of what is inside.
Box porthole(Canvas& canvas, const Box& box, double ring, int bolts);
/// What lies over a porthole's inside: the shade of its ring, and the glass.
void glass(Canvas& canvas, const Box& inside);
/// A dark window in a narrow brass frame.
void window(Canvas& canvas, const Box& box, double radius = 4);
/// A small lamp behind green glass.
void lamp(Canvas& canvas, QPointF centre, double radius, bool lit);
/// A plate of brass to strike letters into.
void brassPlate(Canvas& canvas, const Box& box);
/// What a plate ends with: a lamp that is lit, or a screw.
void plateEnd(Canvas& canvas, QPointF place, bool lit);
/// How letters are struck into brass.
TextStyle struck(const TextStyle& text);

/// A groove cut along the middle of the box, lit from above.
void groove(Canvas& canvas, const Box& box);
/// A part of a whole as one of three liquids, told apart by more than their colour.
void liquid(Canvas& canvas, const Box& box, const QBrush& brush, qsizetype index);

} // namespace ambrelle::abyss
