// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "window/frame/MainWindowModel.h"

#include <functional>
#include <memory>

namespace ambrelle {

class MainWindow;
class WindowHost;

/// The main window: made when it is opened and destroyed when it is closed, so that it costs nothing meanwhile.
class MainWindowController : public QObject {
    Q_OBJECT
public:
    struct Collaborators {
        MainWindowModel& model;
        WindowHost& host;
        Clock& clock;
        std::function<std::unique_ptr<MainWindow>()> make;
    };

    explicit MainWindowController(const Collaborators& collaborators);
    ~MainWindowController() override;

    bool isVisible() const;
    MainWindow* window() const { return m_window.get(); } ///< null while it is closed

    void toggle();
    /// On the tab it last showed. With the token of whoever asked for it the window may take the focus.
    void show(const QString& token = {});
    void show(MainTab tab, const QString& token = {});

Q_SIGNALS:
    void forgotten(); ///< the window has been closed for a minute: what it left behind may go

private:
    void place();
    void comeForward(const QString& token);
    void noteSize();
    void closed();

    Collaborators m_with;
    std::unique_ptr<MainWindow> m_window;
    Ticket m_forgetting;
};

} // namespace ambrelle
