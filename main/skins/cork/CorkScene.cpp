// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene corkScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
