// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/Readings.h"

namespace ambrelle::chalk {

/// The picture of a sky as a child draws it, in the largest square of the box: a sun with uneven rays that smiles where
/// there is room, clouds of scallops, drops in blue.
void drawSky(Canvas& canvas, const Box& box, Sky sky);

} // namespace ambrelle::chalk
