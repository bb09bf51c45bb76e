// SPDX-License-Identifier: MIT

#include "window/frame/MainWindowController.h"

#include "platform/WindowHost.h"
#include "window/frame/MainWindow.h"

#include <algorithm>

namespace ambrelle {

namespace {

constexpr std::chrono::seconds memoryOfWindow{60};
constexpr double mostOfScreen = 0.92;

/// The screen with that point, else the main one; nothing where no screen is connected.
std::optional<ScreenInfo> screenWith(const QPointF& point, const QList<ScreenInfo>& screens)
{
    for (const ScreenInfo& screen : screens) {
        if (screen.frame.contains(point))
            return screen;
    }
    return screens.isEmpty() ? std::nullopt : std::optional(screens.first());
}

} // namespace

MainWindowController::MainWindowController(const Collaborators& collaborators)
    : m_with(collaborators)
{
}

MainWindowController::~MainWindowController()
{
    if (m_window)
        noteSize();
}

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

void MainWindowController::show(MainTab tab, const QString& token)
{
    m_with.model.setTab(tab);
    show(token);
}

void MainWindowController::show(const QString& token)
{
    m_forgetting = {};
    if (!isVisible())
        m_with.model.shown();
    if (!m_window) {
        m_window = m_with.make();
        connect(m_window.get(), &MainWindow::closed, this, &MainWindowController::closed, Qt::QueuedConnection);
        place();
    }
    comeForward(token);
}

void MainWindowController::comeForward(const QString& token)
{
    m_window->setWindowState(m_window->windowState() & ~Qt::WindowMinimized);
    bool isAdmitted = false;
    if (!token.isEmpty()) {
        m_window->winId(); // there is no handle before
        isAdmitted = m_with.host.admit(*m_window->windowHandle(), token);
    }
    m_window->show();
    m_window->raise();
    if (!isAdmitted)
        m_window->activateWindow();
    if (!token.isEmpty())
        m_with.host.dismiss(token);
}

void MainWindowController::place()
{
    const MainWindowModel& model = m_with.model;
    QSize size = model.size().isEmpty() ? MainWindow::firstSize : model.size();
    QSize least = MainWindow::leastSize;
    const std::optional<ScreenInfo> screen = screenWith(m_with.host.pointer(), m_with.host.screens());
    if (screen) {
        const QSize most = (screen->visibleFrame.size() * mostOfScreen).toSize();
        size = size.expandedTo(least).boundedTo(most);
        least = least.boundedTo(most);
    }
    m_window->setMinimumSize(least);
    m_window->resize(size);
    const auto showsPosition = [&](const ScreenInfo& each) {
        return m_with.host.toolkitRect(each.frame).contains(QPointF(*model.position()));
    };
    if (model.position() && std::ranges::any_of(m_with.host.screens(), showsPosition)) { // else its screen has gone
        m_window->move(*model.position());
    } else if (screen) {
        QRectF frame({}, QSizeF(size));
        frame.moveCenter(screen->visibleFrame.center());
        m_window->move(m_with.host.toolkitRect(frame).topLeft().toPoint());
    }
}

void MainWindowController::noteSize()
{
    const bool maximized = m_window->isMaximized();
    m_with.model.hidden((maximized ? m_window->normalGeometry() : m_window->geometry()).size(),
        maximized ? m_window->normalGeometry().topLeft() : m_window->pos());
}

void MainWindowController::closed()
{
    if (!m_window || m_window->isVisible()) // opened again meanwhile
        return;
    noteSize();
    m_window.reset();
    m_forgetting = m_with.clock.after(memoryOfWindow, [this] { Q_EMIT forgotten(); });
}

} // namespace ambrelle
