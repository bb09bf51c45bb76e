// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene classicScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
