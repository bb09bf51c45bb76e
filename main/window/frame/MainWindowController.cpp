// SPDX-License-Identifier: MIT

#include "window/frame/MainWindowController.h"

#include "window/frame/MainWindow.h"

namespace ambrelle {

MainWindowController::MainWindowController(ActionMenu::Items actions, QObject* parent)
    : QObject(parent)
    , m_actions(std::move(actions))
{
}

MainWindowController::~MainWindowController() = default;

bool MainWindowController::isVisible() const
{
    return m_window && m_window->isVisible() && !m_window->isMinimized();
}

void MainWindowController::toggle()
{
    if (isVisible())
        m_window->close();
    else
        show();
}

void MainWindowController::show(MainTab tab)
{
    m_model.setTab(tab);
    show();
}

void MainWindowController::show()
{
    if (!m_window) {
        m_window = std::make_unique<MainWindow>(m_model, m_actions);
        connect(m_window.get(), &MainWindow::closed, this, &MainWindowController::closed, Qt::QueuedConnection);
    }
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    m_window->show();
    m_window->raise();
    m_window->activateWindow();
}

void MainWindowController::closed()
{
    if (m_window && !m_window->isVisible()) // not opened again meanwhile
        m_window.reset();
}

} // namespace ambrelle
