// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene monoScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
