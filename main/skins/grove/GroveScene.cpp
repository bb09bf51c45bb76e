// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene groveScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
