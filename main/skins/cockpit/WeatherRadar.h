// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Readings.h"
#include "skins/cockpit/CockpitStyle.h"

namespace ambrelle::cockpit {

/// The weather radar: range rings, the echoes that such a sky gives, and the turning beam.
void weatherRadar(Canvas& canvas, const SkinStyle& style, const Box& box, Sky sky);

} // namespace ambrelle::cockpit
