// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"
#include "scenes/SceneOrnament.h"

namespace ambrelle {

/// The scene of a skin around items, in the user's accent where one is given; drawn from nothing else. Empty without
/// items.
Scene sceneOf(Skin skin, const QList<SceneItem>& items, const QSizeF& size, const std::optional<QColor>& accent);
/// The same in the accent of now. Made on the main thread, drawn on any.
Scene sceneOf(Skin skin, const QList<SceneItem>& items, const QSizeF& size);

// One file each, in the skin's own folder.
Scene paperScene(SceneOrnament on);
Scene neonScene(SceneOrnament on);
Scene bauhausScene(SceneOrnament on);
Scene groveScene(SceneOrnament on);
Scene aeroScene(SceneOrnament on);
Scene classicScene(SceneOrnament on);
Scene overdriveScene(SceneOrnament on);
Scene hifiScene(SceneOrnament on);
Scene grooveScene(SceneOrnament on);
Scene chalkScene(SceneOrnament on);
Scene questScene(SceneOrnament on);
Scene glassScene(SceneOrnament on);
Scene cockpitScene(SceneOrnament on);
Scene apolloScene(SceneOrnament on);
Scene abyssScene(SceneOrnament on);
Scene atlasScene(SceneOrnament on);
Scene kyotoScene(SceneOrnament on);
Scene corkScene(SceneOrnament on);
Scene polarScene(SceneOrnament on);
Scene monoScene(SceneOrnament on);
Scene slateScene(SceneOrnament on);
Scene lumenScene(SceneOrnament on);
Scene fieldScene(SceneOrnament on);
Scene fieldDarkScene(SceneOrnament on);
Scene obsidianScene(SceneOrnament on);
Scene midnightScene(SceneOrnament on);
Scene pulseScene(SceneOrnament on);
Scene prismScene(SceneOrnament on);
Scene carbonScene(SceneOrnament on);
Scene velvetScene(SceneOrnament on);

} // namespace ambrelle
