// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene hifiScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
