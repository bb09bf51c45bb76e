// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

/// Panes of glass need nothing between them.
Scene glassScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
