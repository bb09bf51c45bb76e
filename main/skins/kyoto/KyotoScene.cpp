// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene kyotoScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
