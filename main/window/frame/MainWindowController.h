// SPDX-License-Identifier: MIT

#pragma once

#include "window/frame/MainWindowModel.h"
#include "window/look/ActionMenu.h"

#include <memory>

namespace ambrelle {

class MainWindow;

/// The main window: made when it is opened and destroyed when it is closed, so that it costs nothing meanwhile.
class MainWindowController : public QObject {
public:
    /// `actions`: the quick actions, offered in the window too.
    explicit MainWindowController(ActionMenu::Items actions, QObject* parent = nullptr);
    ~MainWindowController() override;

    MainWindowModel& model() { return m_model; }
    bool isVisible() const;

    void toggle();
    void show(); ///< on the tab it last showed
    void show(MainTab tab);

private:
    void closed();

    ActionMenu::Items m_actions;
    MainWindowModel m_model;
    std::unique_ptr<MainWindow> m_window;
};

} // namespace ambrelle
