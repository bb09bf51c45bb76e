// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene cockpitScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
