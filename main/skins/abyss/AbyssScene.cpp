// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene abyssScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
