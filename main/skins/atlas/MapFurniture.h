// SPDX-License-Identifier: MIT

#pragma once

#include "wallpapers/Painting.h"

namespace ambrelle {

/// What is printed over the land: the graticule, the creases of the folded sheet, the compass rose and the border.
void paintMapFurniture(Painting& painting);

} // namespace ambrelle
