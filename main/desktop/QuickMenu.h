// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/ActionItem.h"
#include "desktop/MainTab.h"

namespace ambrelle {

class AppSettings;
class FocusTimer;
class WidgetManager;

/// The quick actions: the menu of the tray item, offered in the main window too, where a desktop has no tray.
class QuickMenu {
public:
    /// What the menu says about newer versions of the program.
    struct Updates {
        std::optional<QString> found; ///< a newer version that can be installed
        bool enabled = false; ///< whether it is known where to look
        std::function<void()> install;
        std::function<void()> check;
    };

    struct Collaborators {
        WidgetManager& manager;
        AppSettings& settings;
        FocusTimer& focus;
        std::function<void(std::optional<MainTab>)> open; ///< the main window; none: on its last tab
        std::function<void()> quit;
        std::function<Updates()> updates; ///< empty: nothing in this program updates it
    };

    /// The collaborators outlive the items.
    explicit QuickMenu(Collaborators collaborators);

    /// The lines as things stand now; they are not kept up to date.
    QList<ActionItem> items() const;

    ActionItem openItem() const;
    std::optional<ActionItem> updateItem() const; ///< none: there is nothing newer
    std::optional<ActionItem> checkItem() const; ///< none: nobody knows where to look
    ActionItem quitItem() const;
    ActionItem focusItem() const; ///< starts or pauses the focus timer
    ActionItem editItem() const;
    ActionItem lockItem() const;
    QList<ActionItem> focusItems() const; ///< of the focus timer, with what its widget has no button for

private:
    ActionItem tabItem(const QString& title, const QString& symbol, MainTab tab) const;
    Updates updates() const;

    Collaborators m_with;
};

} // namespace ambrelle
