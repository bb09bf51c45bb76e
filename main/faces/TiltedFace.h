// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

namespace ambrelle {

/// The size of a face that hangs askew, in parts of that of an upright one: its corners stay where a shadow may fall.
inline constexpr double tiltedSize = 0.97;

/// The least size of text on the face, so that it is not below the skin's floor where the face is drawn smaller.
inline double textFloor(const FaceRenderer& skin, const FaceContext& face)
{
    return skin.style().floor / (skin.tilt(face) == 0 ? 1 : tiltedSize);
}

} // namespace ambrelle
