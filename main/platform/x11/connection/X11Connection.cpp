// SPDX-License-Identifier: MIT

#include "platform/x11/connection/X11Connection.h"

#include "platform/x11/connection/Reply.h"

#include <algorithm>

namespace ambrelle {

X11Connection::X11Connection(xcb_connection_t* connection, int screenNumber)
    : m_connection(connection)
    , m_atoms(std::make_shared<Atoms>(connection, screenNumber))
{
    xcb_screen_iterator_t screen = xcb_setup_roots_iterator(xcb_get_setup(connection));
    for (int index = 0; index < screenNumber && screen.rem > 1; ++index)
        xcb_screen_next(&screen);
    m_root = screen.data->root;
}

X11Connection::X11Connection(xcb_connection_t* connection, const X11Connection& sibling)
    : m_connection(connection)
    , m_root(sibling.m_root)
    , m_atoms(sibling.m_atoms)
{
}

void X11Connection::setProperty(xcb_window_t window, Atom name, xcb_atom_t type, Values values) const
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, atom(name), type, 32,
        static_cast<uint32_t>(values.size()), values.data());
}

void X11Connection::setProperty(
    xcb_window_t window, Atom name, xcb_atom_t type, std::initializer_list<uint32_t> values) const
{
    setProperty(window, name, type, Values(values.begin(), values.size()));
}

void X11Connection::setText(xcb_window_t window, xcb_atom_t name, xcb_atom_t type, const QByteArray& text) const
{
    xcb_change_property(m_connection, XCB_PROP_MODE_REPLACE, window, name, type, 8, static_cast<uint32_t>(text.size()),
        text.constData());
}

void X11Connection::removeProperty(xcb_window_t window, Atom name) const
{
    xcb_delete_property(m_connection, window, atom(name));
}

void X11Connection::tellManager(xcb_window_t window, Atom message, std::initializer_list<uint32_t> data) const
{
    xcb_client_message_event_t event{};
    event.response_type = XCB_CLIENT_MESSAGE;
    event.format = 32;
    event.window = window;
    event.type = atom(message);
    std::copy_n(data.begin(), std::min<std::size_t>(data.size(), 5), event.data.data32);
    xcb_send_event(m_connection, 0, m_root, XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY | XCB_EVENT_MASK_SUBSTRUCTURE_REDIRECT,
        reinterpret_cast<char*>(&event));
}

xcb_get_property_cookie_t X11Connection::ask(xcb_window_t window, Atom name) const
{
    constexpr uint32_t longest = 65536;
    return xcb_get_property(m_connection, 0, window, atom(name), XCB_GET_PROPERTY_TYPE_ANY, 0, longest);
}

std::vector<uint32_t> X11Connection::values(xcb_get_property_cookie_t cookie) const
{
    const Reply reply(xcb_get_property_reply(m_connection, cookie, nullptr));
    return reply ? values(*reply) : std::vector<uint32_t>();
}

std::vector<uint32_t> X11Connection::values(const xcb_get_property_reply_t& reply)
{
    if (reply.format != 32)
        return {};
    const auto* first = static_cast<const uint32_t*>(xcb_get_property_value(&reply));
    return {first, first + reply.value_len};
}

QByteArray X11Connection::text(xcb_window_t window, Atom name) const
{
    const Reply reply(xcb_get_property_reply(m_connection, ask(window, name), nullptr));
    if (!reply || reply->format != 8)
        return {};
    return {static_cast<const char*>(xcb_get_property_value(reply.get())), xcb_get_property_value_length(reply.get())};
}

} // namespace ambrelle
