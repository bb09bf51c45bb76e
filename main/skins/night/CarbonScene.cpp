// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene carbonScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
