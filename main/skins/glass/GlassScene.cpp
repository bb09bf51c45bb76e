// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

/// Panes of glass need nothing between them: each has its own shadow, and one under all would lie on empty ground.
Scene glassScene(SceneOrnament /*on*/) // NOLINT(performance-unnecessary-value-param): declared as all scenes
{
    return {};
}

} // namespace ambrelle
