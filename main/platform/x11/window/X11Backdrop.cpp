// SPDX-License-Identifier: MIT

#include "platform/x11/window/X11Backdrop.h"

namespace ambrelle {

X11Backdrop::X11Backdrop(BackdropDelegate& delegate, X11Parts& parts)
    : m_surface(new BackdropSurface(delegate, parts))
    , m_parts(parts)
{
    m_surface->create();
    m_window = static_cast<xcb_window_t>(m_surface->winId());
    QObject::connect(m_surface, &BackdropSurface::appeared, m_surface, [this] { appeared(); });
    dress();
}

X11Backdrop::~X11Backdrop()
{
    if (onDestroyed)
        onDestroyed(this);
    QObject::disconnect(m_surface, &BackdropSurface::appeared, nullptr, nullptr);
    m_surface->retire();
}

/// One point short of the screen: Openbox takes a focused, borderless window of exactly the screen's size for a full
/// screen one, and puts it above every panel.
void X11Backdrop::setFrame(const QRectF& screen)
{
    m_frame = screen;
    m_surface->setGeometry(m_parts.screens.space().turnedBack(screen).toRect().adjusted(0, 0, 0, -1));
}

void X11Backdrop::show()
{
    m_surface->show();
    announce();
}

void X11Backdrop::takeFocus()
{
    m_wantsFocus = true;
    if (m_surface->isExposed())
        activate();
}

void X11Backdrop::appeared()
{
    if (m_wantsFocus)
        activate();
}

void X11Backdrop::activate()
{
    m_surface->requestActivate();
    m_parts.connection.tellManager(
        m_window, Atom::activeWindow, {WindowHint::fromPager, XCB_CURRENT_TIME, XCB_WINDOW_NONE});
    m_parts.connection.flush();
}

void X11Backdrop::redress()
{
    dress();
    announce();
}

/// Writes what a window manager reads when the window appears.
void X11Backdrop::dress() const
{
    const X11Connection& x = m_parts.connection;
    x.setProperty(m_window, Atom::wmState, XCB_ATOM_ATOM,
        {x.atom(Atom::stateSticky), x.atom(Atom::stateSkipTaskbar), x.atom(Atom::stateSkipPager)});
    x.setProperty(m_window, Atom::wmDesktop, XCB_ATOM_CARDINAL, {WindowHint::everyDesktop});
    x.setText(m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, QByteArray("ambrelle\0Ambrelle\0", 18));
    x.setText(m_window, x.atom(Atom::wmName), x.atom(Atom::utf8String), "Ambrelle");
    x.flush();
}

/// The toolkit writes states of its own when the window appears.
void X11Backdrop::announce() const
{
    const X11Connection& x = m_parts.connection;
    x.tellManager(m_window, Atom::wmState,
        {WindowHint::addState, x.atom(Atom::stateSkipTaskbar), x.atom(Atom::stateSkipPager),
            WindowHint::fromApplication});
    x.tellManager(m_window, Atom::wmState,
        {WindowHint::addState, x.atom(Atom::stateSticky), XCB_ATOM_NONE, WindowHint::fromApplication});
    x.tellManager(m_window, Atom::wmDesktop, {WindowHint::everyDesktop, WindowHint::fromApplication});
    x.flush();
}

} // namespace ambrelle
