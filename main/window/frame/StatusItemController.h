// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "window/look/ActionMenu.h"

#include <memory>

class QSystemTrayIcon;

namespace ambrelle {

/// The program's item in the tray: a click toggles the main window, the right button or a click with Control opens the
/// menu. It comes as soon as told that there is a tray; a tray that starts again gets it again.
class StatusItemController : public QObject {
    Q_OBJECT
public:
    StatusItemController(ActionMenu::Items items, std::function<void()> toggle, Clock& clock);
    ~StatusItemController() override;

    /// Puts the item into the tray; later calls do nothing.
    void show();
    bool isShown() const { return m_item != nullptr; }

Q_SIGNALS:
    void appeared(); ///< isShown() from now on

private:
    void clicked();
    void openMenu();

    std::function<void()> m_toggle;
    Clock& m_clock;
    ActionMenu m_menu;
    std::unique_ptr<QSystemTrayIcon> m_item; // not before there is a tray: the toolkit looks for one only once
    std::optional<double> m_lastClick; // seconds
};

} // namespace ambrelle
