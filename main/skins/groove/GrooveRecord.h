// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Readings.h"

namespace ambrelle::groove {

inline constexpr double secondsPerTurn = 1.8; ///< 33 1/3 a minute

/// A long-playing record in the largest circle of the box, the artwork for its label, which turns while music plays.
/// The arm, right of the box, follows the groove inwards as the track goes on; it rests beside a record that stands.
void recordPlayer(Canvas& canvas, const SkinStyle& style, const Box& box, const NowPlayingReading& reading);

} // namespace ambrelle::groove
