// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene apolloScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
