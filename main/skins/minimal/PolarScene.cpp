// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene polarScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
