// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceView.h"
#include "model/Skin.h"

#include <QColor>

namespace ambrelle {

/// The faces of a skin, in its accent or the user's override. Views made before a change of accents keep the old one.
/// Made on the main thread, drawn on any.
FaceView view(Skin skin, WidgetKind kind);
/// The skin's style record with the accent override applied.
SkinStyle styleOf(Skin skin);
/// The accent of the skin's style before any override.
QColor originalAccent(Skin skin);

} // namespace ambrelle
