// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

namespace ambrelle {

/// Plate, header, and the kind's symbol over one sentence: what a widget shows while it has nothing to show.
void drawNotice(Canvas& canvas, const FaceRenderer& skin, const Notice& notice, const FaceContext& face);

/// The three player controls in equal columns of `box`, `size` points each; they answer clicks when `active`.
void drawControls(Canvas& canvas, const Box& box, double size, const QBrush& fill, bool playing, bool active = true);

} // namespace ambrelle
