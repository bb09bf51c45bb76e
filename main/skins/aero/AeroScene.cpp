// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene aeroScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
