// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

namespace ambrelle {

/// Plate, header, and the kind's symbol over one sentence: what a widget shows while it has nothing to show.
void drawNotice(Canvas& canvas, const FaceRenderer& skin, const Notice& notice, const FaceContext& face);

} // namespace ambrelle
