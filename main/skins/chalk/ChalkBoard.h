// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"

namespace ambrelle::chalk {

/// The board in its wooden frame, wiped with an eraser and dusty at its lower edge. Boards of different seeds were
/// wiped otherwise.
void drawBoard(Canvas& canvas, const Box& box, double corner, unsigned seed);

/// A stick of chalk on the lower rail of that board.
void drawStick(Canvas& canvas, const Box& box, unsigned seed);

/// A print on white paper that two strips of tape hold, a little askew; `draw` paints into the box it gets.
void drawTaped(Canvas& canvas, const Box& box, const std::function<void(Canvas&, const Box&)>& draw);

} // namespace ambrelle::chalk
