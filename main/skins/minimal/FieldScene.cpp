// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

namespace ambrelle {

Scene fieldScene(SceneOrnament /*on*/)
{
    return {};
}

Scene fieldDarkScene(SceneOrnament /*on*/)
{
    return {};
}

} // namespace ambrelle
