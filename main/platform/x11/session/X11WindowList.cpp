// SPDX-License-Identifier: MIT

#include "platform/x11/session/X11WindowList.h"

#include "foundation/Wording.h"
#include "platform/toolkit/NativeScreens.h"
#include "platform/x11/connection/Reply.h"
#include "platform/x11/session/WindowQuestion.h"

#include <chrono>

namespace ambrelle {

namespace {

// A window that is dragged tells of every step.
constexpr std::chrono::milliseconds pause{150};

} // namespace

X11WindowList::X11WindowList(const X11Parts& parts)
    : m_parts(parts)
{
    m_pause.setSingleShot(true);
    m_pause.setInterval(pause);
    connect(&m_pause, &QTimer::timeout, this, &X11WindowList::tell);
}

void X11WindowList::attach(RootWatch& watch)
{
    m_watch = &watch;
    connect(m_watch, &RootWatch::propertyChanged, this, &X11WindowList::rootPropertyChanged);
    connect(m_watch, &RootWatch::windowChanged, this,
        [this](xcb_window_t, xcb_atom_t property) { windowChanged(property); });
    if (m_watching)
        tell();
}

QString X11WindowList::whyNot() const
{
    return isAvailable() ? QString() : Wording::tr("The window manager does not tell which windows there are.");
}

void X11WindowList::setWatching(bool watching)
{
    m_watching = watching;
    m_pause.stop();
    if (m_watch)
        follow(watching ? listed().value_or(QList<xcb_window_t>()) : QList<xcb_window_t>());
}

/// The ids of others' windows; none where no window manager tells them. Not from the list that is ordered by height: it
/// changes with every click on another window, and some window managers keep none while there is one window.
std::optional<QList<xcb_window_t>> X11WindowList::listed() const
{
    if (!m_watch)
        return std::nullopt;
    const X11Connection& x = m_watch->connection();
    const auto cookie = x.ask(x.root(), Atom::clientList);
    const Reply reply(xcb_get_property_reply(x.handle(), cookie, nullptr));
    // What came along with the answer is handled later: it may change what the caller is about.
    QMetaObject::invokeMethod(m_watch, &RootWatch::drain, Qt::QueuedConnection);
    if (!reply || reply->type == XCB_ATOM_NONE)
        return std::nullopt;
    QList<xcb_window_t> windows;
    for (const uint32_t window : X11Connection::values(*reply)) {
        if (!isOurs(window))
            windows.append(window);
    }
    return windows;
}

/// Whether the toolkit made the window: the server gives every client a range of numbers of its own.
bool X11WindowList::isOurs(xcb_window_t window) const
{
    const xcb_setup_t* setup = xcb_get_setup(m_parts.connection.handle());
    return (window & ~setup->resource_id_mask) == setup->resource_id_base;
}

std::optional<QList<OnscreenWindow>> X11WindowList::windows() const
{
    const auto ids = listed();
    if (!ids)
        return std::nullopt;
    const X11Connection& x = m_watch->connection();
    const auto currentAsked = x.ask(x.root(), Atom::currentDesktop);
    const auto showingAsked = x.ask(x.root(), Atom::showingDesktop);
    std::vector<WindowQuestion> questions;
    for (const xcb_window_t window : *ids)
        questions.emplace_back(x, window);
    const std::vector<uint32_t> current = x.values(currentAsked);
    const std::vector<uint32_t> showing = x.values(showingAsked);
    const bool showsDesktop = !showing.empty() && showing.front() != 0;

    const NativeScreens screens;
    const GlobalSpace space = m_parts.screens.space();
    QList<OnscreenWindow> windows;
    for (const WindowQuestion& question : questions) {
        const auto answer = question.answer(current.empty() ? 0 : current.front());
        if (!answer || showsDesktop)
            continue;
        windows.append(answer->window);
        windows.last().bounds = space.turned(screens.toolkitRect(answer->place));
    }
    return windows;
}

void X11WindowList::rootPropertyChanged(xcb_atom_t name)
{
    const X11Connection& x = m_parts.connection;
    if (name == x.atom(Atom::clientList) || name == x.atom(Atom::currentDesktop)
        || name == x.atom(Atom::showingDesktop))
        schedule();
}

void X11WindowList::windowChanged(xcb_atom_t property)
{
    // Titles change much more often than these.
    for (const Atom name : {Atom::wmState, Atom::wmDesktop, Atom::wmWindowOpacity, Atom::wmWindowType,
             Atom::frameExtents, Atom::gtkFrameExtents}) {
        if (property == m_parts.connection.atom(name))
            return schedule();
    }
    if (property == XCB_ATOM_NONE)
        schedule();
}

void X11WindowList::schedule()
{
    if (m_watching && !m_pause.isActive())
        m_pause.start();
}

void X11WindowList::tell()
{
    // Before the list is read, so that whatever happens after that is heard.
    follow(listed().value_or(QList<xcb_window_t>()));
    Q_EMIT changed();
}

void X11WindowList::follow(const QList<xcb_window_t>& windows)
{
    const QSet<xcb_window_t> wanted(windows.begin(), windows.end());
    for (const xcb_window_t window : m_followed - wanted)
        m_watch->follow(window, false);
    for (const xcb_window_t window : wanted - m_followed)
        m_watch->follow(window, true);
    m_followed = wanted;
    m_watch->connection().flush();
}

} // namespace ambrelle
