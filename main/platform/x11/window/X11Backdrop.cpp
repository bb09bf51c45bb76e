// SPDX-License-Identifier: MIT

#include "platform/x11/window/X11Backdrop.h"

#include "platform/x11/connection/Reply.h"
#include "platform/x11/window/X11Canvas.h"

#include <QPainter>

namespace ambrelle {

X11Backdrop::X11Backdrop(BackdropDelegate& delegate, X11Parts& parts)
    : m_surface(new BackdropSurface(delegate, std::make_unique<X11Canvas>(parts, X11Canvas::Ground::picture)))
    , m_parts(parts)
{
    m_surface->create();
    m_window = static_cast<xcb_window_t>(m_surface->winId());
    QObject::connect(m_surface, &BackdropSurface::appeared, m_surface, [this] { appeared(); });
    dress();
}

X11Backdrop::~X11Backdrop()
{
    m_parts.order.remove(m_window);
    m_parts.shades.removeOne(this);
    if (onDestroyed)
        onDestroyed(this);
    returnKeyboard();
    QObject::disconnect(m_surface, &BackdropSurface::appeared, nullptr, nullptr);
    m_surface->retire();
}

/// One point short of the screen: Openbox takes a focused, borderless window of exactly the screen's size for a full
/// screen one, and puts it above every panel.
void X11Backdrop::setFrame(const QRectF& screen)
{
    m_frame = screen;
    const QRect whole = m_parts.screens.space().turnedBack(screen).toRect();
    m_surface->setGeometry(m_bypassed ? whole : whole.adjusted(0, 0, 0, -1));
}

void X11Backdrop::show()
{
    if (!m_parts.shades.contains(this))
        m_parts.shades.append(this);
    if (onShown)
        onShown();
    m_surface->show();
    announce();
}

void X11Backdrop::shade(QPainter& painter, const QPoint& origin) const
{
    painter.save();
    painter.translate(QPointF(X11Canvas::nativeCorner(*m_surface) - origin) / m_surface->devicePixelRatio());
    m_surface->paintOn(painter);
    painter.restore();
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
    if (m_bypassed)
        return takeKeyboard();
    m_surface->requestActivate();
    m_parts.connection.tellManager(
        m_window, Atom::activeWindow, {WindowHint::fromPager, XCB_CURRENT_TIME, XCB_WINDOW_NONE});
}

/// Whoever manages the other windows does not hear of this one, so the keyboard is taken, and given back.
void X11Backdrop::takeKeyboard()
{
    xcb_connection_t* connection = m_parts.connection.handle();
    const Reply focus(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (focus && focus->focus != m_window)
        m_formerFocus = focus->focus;
    xcb_set_input_focus(connection, XCB_INPUT_FOCUS_POINTER_ROOT, m_window, XCB_CURRENT_TIME);
}

void X11Backdrop::returnKeyboard() const
{
    xcb_connection_t* connection = m_parts.connection.handle();
    if (m_formerFocus == XCB_WINDOW_NONE)
        return;
    const Reply focus(xcb_get_input_focus_reply(connection, xcb_get_input_focus(connection), nullptr));
    if (!focus || focus->focus != m_window)
        return;
    const auto cookie =
        xcb_set_input_focus_checked(connection, XCB_INPUT_FOCUS_POINTER_ROOT, m_formerFocus, XCB_CURRENT_TIME);
    xcb_discard_reply(connection, cookie.sequence); // it may have gone meanwhile
}

void X11Backdrop::redress()
{
    const bool changesHands = m_bypassed == m_parts.manager.keepsPanels();
    if (changesHands)
        m_surface->hide();
    dress();
    if (changesHands) {
        setFrame(m_frame);
        m_surface->show();
    }
    announce();
}

/// Writes what a window manager reads when the window appears.
void X11Backdrop::dress()
{
    const X11Connection& x = m_parts.connection;
    m_bypassed = !m_parts.manager.keepsPanels();
    const uint32_t bypassed = m_bypassed ? 1 : 0;
    xcb_change_window_attributes(x.handle(), m_window, XCB_CW_OVERRIDE_REDIRECT, &bypassed);
    m_parts.order.set(m_window, StackedWindow::Kind::backdrop);
    x.setProperty(m_window, Atom::wmState, XCB_ATOM_ATOM,
        {x.atom(Atom::stateSticky), x.atom(Atom::stateSkipTaskbar), x.atom(Atom::stateSkipPager)});
    x.setProperty(m_window, Atom::wmDesktop, XCB_ATOM_CARDINAL, {WindowHint::everyDesktop});
    x.setText(m_window, XCB_ATOM_WM_CLASS, XCB_ATOM_STRING, QByteArray("ambrelle\0Ambrelle\0", 18));
    x.setText(m_window, x.atom(Atom::wmName), x.atom(Atom::utf8String), "Ambrelle");
}

/// The toolkit writes states of its own when the window appears.
void X11Backdrop::announce() const
{
    if (m_bypassed)
        return;
    const X11Connection& x = m_parts.connection;
    x.tellManager(m_window, Atom::wmState,
        {WindowHint::addState, x.atom(Atom::stateSkipTaskbar), x.atom(Atom::stateSkipPager),
            WindowHint::fromApplication});
    x.tellManager(m_window, Atom::wmState,
        {WindowHint::addState, x.atom(Atom::stateSticky), XCB_ATOM_NONE, WindowHint::fromApplication});
    x.tellManager(m_window, Atom::wmDesktop, {WindowHint::everyDesktop, WindowHint::fromApplication});
}

} // namespace ambrelle
