// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene overdriveScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
