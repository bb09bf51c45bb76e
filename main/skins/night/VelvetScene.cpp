// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene velvetScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
