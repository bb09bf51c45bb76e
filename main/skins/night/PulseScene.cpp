// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene pulseScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
