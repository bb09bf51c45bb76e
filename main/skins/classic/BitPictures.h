// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Sprite.h"
#include "faces/Readings.h"

namespace ambrelle::classic {

/// A weather picture of 16 x 16 black pixels.
const Sprite& bitPicture(Sky sky);

} // namespace ambrelle::classic
