// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Sprite.h"

namespace ambrelle::quest {

/// What the letters of the pictures stand for.
const Sprite::Palette& spritePalette();
/// A heart of 13 x 12 pixels with 0, 1 or 2 of its halves full.
const Sprite& heart(int halves);
/// A white glove of 16 x 11 pixels that points to the right.
const Sprite& hand();
/// A triangle of 11 x 10 pixels that warns.
const Sprite& alarm();
/// A coin of 8 x 8 pixels, or the place where one will lie.
const Sprite& coin(bool earned);
/// Two quavers of 8 x 7 pixels.
Sprite note(const QColor& colour);
/// An arrow of 8 x 8 pixels.
Sprite arrow(bool up, const QColor& colour);
/// A tick of 10 x 8 pixels.
Sprite tick(const QColor& colour);
/// A mark of 5 x 3 pixels that there is more to read.
Sprite more(const QColor& colour);

/// A chest of 14 x 12 pixels, and a flag on a pole of 11 x 16: places of the map that the scene draws.
const Sprite& chest();
const Sprite& flag();

/// The sprite about the middle of the box, moved by `step` points in every second frame; only `alive` ones move.
void bob(Canvas& canvas, const Sprite& sprite, const Box& box, double pixel, QPointF step, bool alive = true);

} // namespace ambrelle::quest
