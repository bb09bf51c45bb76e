// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/ActionItem.h"
#include "desktop/MainTab.h"
#include "model/RawEnum.h"

namespace ambrelle {

class AppSettings;
class FocusTimer;
class WidgetManager;

/// What the quick menu offers, and others outside the program by name: the command line, the message bus, the desktop's
/// menu of programs.
enum class QuickAction {
    openWindow,
    themes,
    addWidgets,
    toggleFocus, ///< starts or pauses the focus timer
    skip, ///< to the timer's next period
    reset, ///< the timer
    edit, ///< begins or ends
    lock, ///< or unlock
    settings,
    checkForUpdates,
    update,
    quit,
};

namespace tables {
using namespace Qt::StringLiterals;
struct QuickActionRow {
    QuickAction value;
    QLatin1StringView raw;
};
inline constexpr std::array quickActionRows = std::to_array<QuickActionRow>({
    {QuickAction::openWindow, "open-window"_L1},
    {QuickAction::themes, "themes"_L1},
    {QuickAction::addWidgets, "add-widgets"_L1},
    {QuickAction::toggleFocus, "toggle-focus"_L1},
    {QuickAction::skip, "skip"_L1},
    {QuickAction::reset, "reset"_L1},
    {QuickAction::edit, "edit"_L1},
    {QuickAction::lock, "lock"_L1},
    {QuickAction::settings, "settings"_L1},
    {QuickAction::checkForUpdates, "check-for-updates"_L1},
    {QuickAction::update, "update"_L1},
    {QuickAction::quit, "quit"_L1},
});
} // namespace tables

template <> inline constexpr auto rawRows<QuickAction> = tables::quickActionRows;

/// The quick actions: the menu of the tray item, offered in the main window too, where a desktop has no tray.
class QuickMenu {
public:
    /// What the menu says about newer versions of the program.
    struct Updates {
        std::optional<QString> found; ///< a newer version that can be installed
        bool enabled = false; ///< whether it is known where to look
        bool busy = false; ///< something of the kind is under way
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
    /// One of them, or of the focus timer's; none while it is not offered.
    std::optional<ActionItem> item(QuickAction action) const;

    ActionItem openItem() const;
    static QString updateTitle(const QString& version);
    std::optional<ActionItem> updateItem() const; ///< none: there is nothing newer
    static QString checkTitle();
    std::optional<ActionItem> checkItem() const; ///< none: nobody knows where to look
    ActionItem quitItem() const;
    ActionItem focusItem() const;
    ActionItem editItem() const;
    ActionItem lockItem() const;
    QList<ActionItem> focusItems() const; ///< of the focus timer, with what its widget has no button for

private:
    ActionItem tabItem(const QString& title, const QString& symbol, MainTab tab) const;
    ActionItem settingsItem() const;
    ActionItem skipItem() const;
    ActionItem resetItem() const;
    Updates updates() const;

    Collaborators m_with;
};

} // namespace ambrelle
