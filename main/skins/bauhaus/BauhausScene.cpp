// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene bauhausScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
