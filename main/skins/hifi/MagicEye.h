#pragma once

#include "skins/hifi/HiFiStyle.h"

namespace ambrelle::hifi {

/// A tuning eye: a glowing fan about a dark cap whose shadow closes as `fraction` (0 to 1) rises. Returns the box of
/// the cap, where a figure may stand.
Box magicEye(Canvas& canvas, const Box& box, double fraction, bool low);

} // namespace ambrelle::hifi
