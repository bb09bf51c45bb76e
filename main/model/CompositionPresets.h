// SPDX-License-Identifier: MIT

#pragma once

#include "model/Composition.h"

#include <span>

namespace ambrelle {

/// The spots of the skin's own composition; they live as long as the program.
std::span<const Spot> presetSpots(Skin skin);

} // namespace ambrelle
