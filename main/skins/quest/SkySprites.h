// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Sprite.h"
#include "faces/Readings.h"

namespace ambrelle::quest {

/// A sky of 16 x 16 pixels in two frames.
const Sprite& skySprite(Sky sky);

} // namespace ambrelle::quest
