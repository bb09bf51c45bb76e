// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene chalkScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
