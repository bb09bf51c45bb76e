// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene questScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
