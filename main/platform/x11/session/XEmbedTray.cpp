// SPDX-License-Identifier: MIT

#include "platform/x11/session/XEmbedTray.h"

#include "foundation/Wording.h"
#include "platform/x11/connection/Reply.h"
#include "platform/x11/connection/ToolkitConnection.h"

#include <QCoreApplication>

#include <string>
#include <string_view>

namespace ambrelle {

namespace {

xcb_intern_atom_cookie_t ask(xcb_connection_t* connection, std::string_view name)
{
    return xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
}

xcb_atom_t answer(xcb_connection_t* connection, xcb_intern_atom_cookie_t cookie)
{
    const Reply reply(xcb_intern_atom_reply(connection, cookie, nullptr));
    return reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
}

} // namespace

bool XEmbedTray::isAvailable() const
{
    if (!m_connection)
        return false;
    const auto cookie = xcb_get_selection_owner(m_connection, m_selection);
    const Reply reply(xcb_get_selection_owner_reply(m_connection, cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

QString XEmbedTray::whyNot() const
{
    if (!m_connection)
        return Wording::tr("There is no X server whose panel could take tray items.");
    return isAvailable() ? QString() : Wording::tr("No panel of the X server takes tray items.");
}

void XEmbedTray::start()
{
    m_connection = toolkitConnection();
    if (!m_connection)
        return;
    const auto selection = ask(m_connection, "_NET_SYSTEM_TRAY_S" + std::to_string(toolkitScreen()));
    const auto manager = ask(m_connection, "MANAGER");
    m_selection = answer(m_connection, selection);
    m_manager = answer(m_connection, manager);
    // First, lest a tray comes between the look and the watch.
    QCoreApplication::instance()->installNativeEventFilter(this);
    if (isAvailable())
        Q_EMIT appeared();
}

bool XEmbedTray::nativeEventFilter(const QByteArray&, void* message, qintptr*)
{
    const auto* event = static_cast<const xcb_generic_event_t*>(message);
    if ((event->response_type & static_cast<uint8_t>(~sentByClient)) != XCB_CLIENT_MESSAGE)
        return false;
    // A new tray tells so to the root window.
    const auto* told = reinterpret_cast<const xcb_client_message_event_t*>(event);
    if (told->type == m_manager && told->data.data32[1] == m_selection)
        Q_EMIT appeared();
    return false;
}

} // namespace ambrelle
