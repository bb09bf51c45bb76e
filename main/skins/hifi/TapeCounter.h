// SPDX-License-Identifier: MIT

#pragma once

#include "skins/hifi/HiFiStyle.h"

namespace ambrelle::hifi {

/// A number on the drums of a tape counter, one digit each; the last one is pale. Drums are made smaller where the
/// number is wide. Returns the width.
double tapeCounter(
    Canvas& canvas, const SkinStyle& style, const Box& box, const QString& value, const QString& unit, double cap);

} // namespace ambrelle::hifi
