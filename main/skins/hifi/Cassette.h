// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Readings.h"
#include "skins/hifi/HiFiStyle.h"

namespace ambrelle::hifi {

/// A tape cassette: a cream label with the track, and a window with two reels that turn while music plays. The tape
/// winds from the left reel to the right one as the track goes on.
void cassette(Canvas& canvas, const SkinStyle& style, const Box& box, const NowPlayingReading& reading);

/// Two upright level meters, which move while music plays.
void levelBars(Canvas& canvas, const Box& box, const NowPlayingReading& reading);

} // namespace ambrelle::hifi
