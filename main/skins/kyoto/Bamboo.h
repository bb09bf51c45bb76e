// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/SeededRandom.h"
#include "wallpapers/Painting.h"

namespace ambrelle {

/// Two stalks at the left edge with sixteen leaves, in washes of `ink`. Per stalk one draw for each joint, then three
/// for each leaf.
void paintBamboo(Painting& painting, const RGBA& ink, SeededRandom& random);

} // namespace ambrelle
