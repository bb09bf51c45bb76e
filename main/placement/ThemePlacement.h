// SPDX-License-Identifier: MIT

#pragma once

#include "model/SavedTheme.h"
#include "placement/StoredWidget.h"
#include "platform/WindowHost.h"

namespace ambrelle {

/// Where the widgets of saved desktops stand: their lower left corners are parts of a screen's work area.
namespace ThemePlacement {

/// The widget as it stands on that screen, which it may lie partly off.
SavedWidget saved(const WidgetConfig& widget, const ScreenInfo& screen);

/// The widgets of the theme at home on that screen, in their order. One that would not be whole in its work area is
/// moved into it, unless it stood at that very place when it was saved.
QList<StoredWidget> placed(const SavedTheme& theme, const ScreenInfo& screen);

} // namespace ThemePlacement

} // namespace ambrelle
