// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene prismScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
