// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/ActionItem.h"

namespace ambrelle {

class QuickMenu;

/// What the menu in the tool bar does besides the quick actions.
struct WindowActions {
    std::function<void()> setCity;
    std::function<void()> saveDesktop; ///< null: there is nothing to save
    std::function<void()> importThemes;
    std::function<void()> showShortcuts;
};

/// The menu's lines as things stand now. Without a tray it is how one edits, locks and quits.
QList<ActionItem> moreItems(const QuickMenu& quick, const WindowActions& actions);

} // namespace ambrelle
