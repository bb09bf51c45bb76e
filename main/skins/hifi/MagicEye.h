// SPDX-License-Identifier: MIT

#pragma once

#include "skins/hifi/HiFiStyle.h"

namespace ambrelle::hifi {

/// A tuning eye: a glowing fan about a dark cap whose shadow closes as `percent` rises. Returns the box of
/// the cap, where a figure may stand.
Box magicEye(Canvas& canvas, const Box& box, int percent, bool low);

} // namespace ambrelle::hifi
