// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene grooveScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
