// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetConfig.h"
#include "scenes/SceneLayout.h"

namespace ambrelle {

/// Which scene belongs to widgets: that of most of them, drawn around those alone.
namespace SceneChoice {

/// The skin of most widgets, of equally many the one that comes first; `fallback` where there are none.
Skin skin(const QList<WidgetConfig>& widgets, Skin fallback);
/// The widgets of that skin which show on a screen, all in global points; their order stays.
QList<SceneItem> items(const QList<WidgetConfig>& widgets, Skin skin, const QRectF& screen);

} // namespace SceneChoice

} // namespace ambrelle
