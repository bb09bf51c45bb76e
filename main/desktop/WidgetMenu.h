// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/ActionItem.h"

namespace ambrelle {

class QuickMenu;
class WidgetController;
class WidgetManager;

/// What one widget's toolbar does, and the quick actions about all widgets. An item whose widget has gone does nothing.
QList<ActionItem> widgetMenu(WidgetController& widget, WidgetManager& manager, const QuickMenu& quick);

} // namespace ambrelle
