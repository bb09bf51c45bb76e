// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "skins/minimal/MinimalLook.h"
#include "skins/SceneRecipes.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double gridPitch = 20;
constexpr double gridDot = 0.8; // radius
constexpr double gridReach = 40; // beyond the items, where it fades

Scene grid(SceneOrnament on, const QColor& colour)
{
    const double reach = on.scaled(gridReach);
    on.dotGrid(u"grid"_s, on.bounds().adjusted(-reach, -reach, reach, reach), on.scaled(gridPitch), on.scaled(gridDot),
        colour, reach);
    return on.scene();
}

} // namespace

Scene slateScene(SceneOrnament on)
{
    return grid(std::move(on), faded(Qt::white, 0.07));
}

Scene lumenScene(SceneOrnament on)
{
    const QColor ink = MinimalLook::original(Skin::lumen).ink;
    return grid(std::move(on), faded(ink, 0.06));
}

} // namespace ambrelle
