// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene midnightScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
