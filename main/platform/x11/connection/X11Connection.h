// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/Atoms.h"

#include <QByteArray>

#include <cstdint>
#include <initializer_list>
#include <memory>
#include <span>
#include <vector>

namespace ambrelle {

/// A connection to the X server that somebody else keeps open, with the few requests this program makes. Writing never
/// waits; each read waits once for the server.
class X11Connection {
public:
    /// Asks for the atoms, which waits once.
    X11Connection(xcb_connection_t* connection, int screenNumber);
    /// Another connection to the same server: the atoms are the same, so nothing is asked.
    X11Connection(xcb_connection_t* connection, const X11Connection& sibling);

    xcb_connection_t* handle() const { return m_connection; }
    xcb_window_t root() const { return m_root; }
    xcb_atom_t atom(Atom name) const { return (*m_atoms)[name]; }
    void flush() const { xcb_flush(m_connection); }

    using Values = std::span<const uint32_t>;
    void setProperty(xcb_window_t window, Atom name, xcb_atom_t type, Values values) const;
    void setProperty(xcb_window_t window, Atom name, xcb_atom_t type, std::initializer_list<uint32_t> values) const;
    void setText(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const QByteArray& text) const;
    void removeProperty(xcb_window_t window, Atom name) const;
    /// Sends the window manager a message about a window.
    void tellManager(xcb_window_t window, Atom message, std::initializer_list<uint32_t> data) const;

    xcb_get_property_cookie_t ask(xcb_window_t window, Atom name) const;
    std::vector<uint32_t> values(xcb_get_property_cookie_t cookie) const; ///< empty when unset or not of 32 bits
    static std::vector<uint32_t> values(const xcb_get_property_reply_t& reply);
    std::vector<uint32_t> values(xcb_window_t window, Atom name) const { return values(ask(window, name)); }
    QByteArray text(xcb_window_t window, Atom name) const;

private:
    xcb_connection_t* m_connection;
    xcb_window_t m_root = XCB_WINDOW_NONE;
    std::shared_ptr<const Atoms> m_atoms;
};

} // namespace ambrelle
