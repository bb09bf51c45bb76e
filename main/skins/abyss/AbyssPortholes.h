// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "faces/Readings.h"
#include "skins/abyss/AbyssStyle.h"

namespace ambrelle::abyss {

// What is seen in the large portholes, each the largest circle of its box.

/// The dial of a ship's chronometer and its hands of blued steel.
void chronometer(Canvas& canvas, const SkinStyle& style, const Box& box, int hour, int minute);
/// A sonar screen: the echoes of a minute's traffic around the boat, and the turning beam.
void sonar(Canvas& canvas, const Box& box, const NetworkReading& reading);
/// The sky over the sea; returns the inside.
Box seaView(Canvas& canvas, const Box& box, Sky sky);
/// A porthole that rings run from while it is listening. Returns the inside, still to be filled.
Box hydrophone(Canvas& canvas, const Box& box, bool listening);

} // namespace ambrelle::abyss
