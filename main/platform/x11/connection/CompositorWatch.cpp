// SPDX-License-Identifier: MIT

#include "platform/x11/connection/CompositorWatch.h"

#include "platform/x11/connection/Reply.h"

namespace ambrelle {

CompositorWatch::CompositorWatch(const X11Connection& connection)
    : m_connection(connection)
    , m_active(look())
{
}

void CompositorWatch::refresh()
{
    if (look() == m_active)
        return;
    m_active = !m_active;
    Q_EMIT changed();
}

bool CompositorWatch::look() const
{
    xcb_connection_t* connection = m_connection.handle();
    const auto cookie = xcb_get_selection_owner(connection, m_connection.atom(Atom::compositor));
    const Reply reply(xcb_get_selection_owner_reply(connection, cookie, nullptr));
    return reply && reply->owner != XCB_WINDOW_NONE;
}

} // namespace ambrelle
