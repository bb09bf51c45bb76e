// SPDX-License-Identifier: MIT

#include "platform/x11/X11WindowHost.h"

#include "foundation/Wording.h"
#include "platform/toolkit/PanelAccess.h"
#include "platform/x11/connection/ToolkitConnection.h"
#include "platform/x11/window/StartupToken.h"

#include <QAbstractEventDispatcher>
#include <QWindow>

#include <algorithm>
#include <chrono>

namespace ambrelle {

namespace {

// Long enough for every panel to have been painted; nothing that is watched is needed for that.
constexpr std::chrono::milliseconds watchDelay{400};

// A window manager says piece by piece what it can do, and may come a moment after the one it replaces has gone.
constexpr std::chrono::milliseconds managerSettling{250};

} // namespace

X11WindowHost::X11WindowHost()
{
    xcb_connection_t* connection = toolkitConnection();
    if (!connection)
        return;
    m_parts = std::make_unique<X11Parts>(connection, toolkitScreen());
    // What panels and backdrops ask for in one turn of the event loop goes out together.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
        [this] { m_parts->connection.flush(); });
    m_windows = std::make_unique<X11WindowList>(*m_parts);
    PanelAccess::install();
    m_shield = std::make_unique<PopupShield>();
    connect(&m_parts->compositor, &CompositorWatch::changed, this, &X11WindowHost::groundChanged);
    connect(&m_parts->screens, &ScreenList::changed, this, &X11WindowHost::screensSettled);
    m_watchStart.setSingleShot(true);
    m_watchStart.setInterval(watchDelay);
    connect(&m_watchStart, &QTimer::timeout, this, &X11WindowHost::watch);
    m_managerSettling.setSingleShot(true);
    m_managerSettling.setInterval(managerSettling);
    connect(&m_managerSettling, &QTimer::timeout, this, &X11WindowHost::managerSettled);
}

X11WindowHost::~X11WindowHost() = default;

QString X11WindowHost::whyNot() const
{
    return m_parts ? QString() : Wording::tr("Widgets on the desktop need an X server, and there is none here.");
}

std::unique_ptr<PanelWindow> X11WindowHost::makePanel(PanelDelegate& delegate)
{
    auto panel = std::make_unique<X11Panel>(delegate, *m_parts);
    take(*panel);
    return panel;
}

std::unique_ptr<SceneWindow> X11WindowHost::makeScene(OrnamentDelegate& delegate)
{
    return std::make_unique<X11Scene>(delegate, *m_parts, [this](X11Panel& panel) {
        if (m_guard && m_parts->manager.keepsPanels()) // before, the panels that it belongs below are not there either
            panel.holdBack();
        take(panel);
    });
}

void X11WindowHost::take(X11Panel& panel)
{
    panel.onDestroyed = [this](X11Panel* gone) { m_panels.removeOne(gone); };
    m_panels.append(&panel);
    if (!m_watch && !m_watchStart.isActive())
        m_watchStart.start();
}

std::unique_ptr<BackdropWindow> X11WindowHost::makeBackdrop(BackdropDelegate& delegate)
{
    auto backdrop = std::make_unique<X11Backdrop>(delegate, *m_parts);
    backdrop->onShown = [this] { shadesChanged(); };
    backdrop->onDestroyed = [this](X11Backdrop* gone) {
        m_backdrops.removeOne(gone);
        shadesChanged();
    };
    m_backdrops.append(backdrop.get());
    return backdrop;
}

bool X11WindowHost::admit(QWindow& window, const QString& token)
{
    if (!m_parts)
        return false;
    const StartupToken startup(m_parts->connection, token);
    const auto id = static_cast<xcb_window_t>(window.winId());
    startup.mark(id);
    // A window that is not on the screen yet gets the focus when the window manager puts it there.
    return window.isVisible() && m_parts->manager.window() != XCB_WINDOW_NONE && startup.activate(id);
}

void X11WindowHost::dismiss(const QString& token)
{
    if (m_parts)
        StartupToken(m_parts->connection, token).end();
}

void X11WindowHost::watch()
{
    QList<X11Panel*> missing;
    std::ranges::copy_if(m_panels, std::back_inserter(missing),
        [](const X11Panel* panel) { return panel->isShown() && !panel->isOnScreen(); });
    if (missing.size() != std::exchange(m_missing, missing.size())) {
        m_watchStart.start(); // the window manager is at work
        return;
    }
    // A window manager that is itself just starting may lose the request to show a window.
    for (X11Panel* panel : missing)
        panel->remap();
    // The toolkit listens for assistive technology from this question on. It asks it itself only once a window of
    // controls is shown.
    QAccessible::isActive();
    m_watch = std::make_unique<RootWatch>();
    connect(m_watch.get(), &RootWatch::propertyChanged, this, &X11WindowHost::rootPropertyChanged);
    connect(m_watch.get(), &RootWatch::windowGone, this, [this](xcb_window_t window) {
        if (window == m_manager)
            m_managerSettling.start();
    });
    connect(m_watch.get(), &RootWatch::compositorChanged, &m_parts->compositor, &CompositorWatch::refresh);
    if (!m_watch->open(m_parts->connection))
        return;
    m_guard = std::make_unique<StackingGuard>(*m_watch, *m_parts, m_panels, m_backdrops);
    connect(m_watch.get(), &RootWatch::orderChanged, m_guard.get(), &StackingGuard::schedule);
    watchManager();
    m_windows->attach(*m_watch);
    m_visibility.attach(*m_watch);
    // All may have changed while nobody watched.
    const bool kept = m_parts->manager.keepsPanels();
    m_parts->manager.forget();
    if (m_parts->manager.window() != m_manager || m_parts->manager.keepsPanels() != kept)
        m_managerSettling.start();
    m_parts->compositor.refresh();
    if (!m_parts->compositor.isActive() && m_parts->picture.isOutdated())
        groundChanged();
}

void X11WindowHost::rootPropertyChanged(xcb_atom_t name)
{
    const X11Connection& x = m_parts->connection;
    if (name == x.atom(Atom::rootPixmap) && !m_parts->compositor.isActive())
        groundChanged();
    else if (name == x.atom(Atom::supportingWmCheck) || name == x.atom(Atom::supported))
        m_managerSettling.start();
    else if (name == x.atom(Atom::clientListStacking) && m_guard)
        m_guard->schedule();
}

void X11WindowHost::groundChanged()
{
    m_parts->picture.forget();
    // What the delegates do about it may close panels.
    for (X11Panel* panel : QList(m_panels)) {
        if (m_panels.contains(panel))
            panel->groundChanged();
    }
    for (X11Backdrop* backdrop : m_backdrops)
        backdrop->groundChanged();
}

void X11WindowHost::shadesChanged()
{
    if (m_parts->compositor.isActive())
        return;
    for (X11Panel* panel : m_panels)
        panel->surface().groundShaded();
}

void X11WindowHost::watchManager()
{
    m_manager = m_parts->manager.window();
    if (m_manager != XCB_WINDOW_NONE)
        m_watch->follow(m_manager, true);
    m_watch->followOrder(!m_parts->manager.keepsPanels());
    m_guard->schedule();
}

void X11WindowHost::managerSettled()
{
    m_parts->manager.forget();
    watchManager();
    for (X11Panel* panel : m_panels)
        panel->redress();
    for (X11Backdrop* backdrop : m_backdrops)
        backdrop->redress();
}

void X11WindowHost::screensSettled()
{
    for (X11Panel* panel : m_panels)
        panel->place();
    Q_EMIT screensChanged();
}

} // namespace ambrelle
