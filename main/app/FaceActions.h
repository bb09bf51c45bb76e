// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/FaceAction.h"

namespace ambrelle {

class LiveServices;

/// Carries out what a click on a part of a face asks for. What opens a program is not handled here.
void perform(const FaceAction& action, LiveServices& services);

} // namespace ambrelle
