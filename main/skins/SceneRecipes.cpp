// SPDX-License-Identifier: MIT

#include "skins/SceneRecipes.h"

#include "model/ThemeAccent.h"

namespace ambrelle {

namespace {

Scene drawn(Skin skin, const SceneOrnament& on)
{
    switch (skin) {
    case Skin::paper: return paperScene(on);
    case Skin::neon: return neonScene(on);
    case Skin::bauhaus: return bauhausScene(on);
    case Skin::grove: return groveScene(on);
    case Skin::aero: return aeroScene(on);
    case Skin::classic: return classicScene(on);
    case Skin::overdrive: return overdriveScene(on);
    case Skin::hifi: return hifiScene(on);
    case Skin::groove: return grooveScene(on);
    case Skin::chalk: return chalkScene(on);
    case Skin::quest: return questScene(on);
    case Skin::glass: return glassScene(on);
    case Skin::cockpit: return cockpitScene(on);
    case Skin::apollo: return apolloScene(on);
    case Skin::abyss: return abyssScene(on);
    case Skin::atlas: return atlasScene(on);
    case Skin::kyoto: return kyotoScene(on);
    case Skin::cork: return corkScene(on);
    case Skin::polar: return polarScene(on);
    case Skin::mono: return monoScene(on);
    case Skin::slate: return slateScene(on);
    case Skin::lumen: return lumenScene(on);
    case Skin::field: return fieldScene(on);
    case Skin::fieldDark: return fieldDarkScene(on);
    case Skin::obsidian: return obsidianScene(on);
    case Skin::midnight: return midnightScene(on);
    case Skin::pulse: return pulseScene(on);
    case Skin::prism: return prismScene(on);
    case Skin::carbon: return carbonScene(on);
    case Skin::velvet: return velvetScene(on);
    }
    Q_UNREACHABLE();
}

} // namespace

Scene sceneOf(Skin skin, const QList<SceneItem>& items, const QSizeF& size, const std::optional<QColor>& accent)
{
    return items.isEmpty() ? Scene() : drawn(skin, SceneOrnament(items, size, accent));
}

Scene sceneOf(Skin skin, const QList<SceneItem>& items, const QSizeF& size)
{
    return sceneOf(skin, items, size, ThemeAccent::shared().color(skin));
}

} // namespace ambrelle
