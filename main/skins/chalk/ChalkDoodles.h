// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Painting.h"

namespace ambrelle {

/// What is left of the lesson: five drawings in the corners of the board, half wiped away.
void paintChalkDoodles(Painting& painting);

} // namespace ambrelle
