// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene obsidianScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
