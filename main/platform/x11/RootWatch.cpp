#include "platform/x11/RootWatch.h"

#include "platform/x11/Reply.h"

#include <QSocketNotifier>

#include <xcb/xfixes.h>

namespace ambrelle {

namespace {

constexpr uint8_t sentFlag = 0x80; // marks events that another client made up

} // namespace

RootWatch::~RootWatch()
{
    if (m_connection)
        xcb_disconnect(m_connection->handle());
}

bool RootWatch::open(const X11Connection& sibling)
{
    xcb_connection_t* connection = xcb_connect(nullptr, nullptr);
    if (xcb_connection_has_error(connection) != 0) {
        xcb_disconnect(connection);
        return false;
    }
    m_connection.emplace(connection, sibling);
    select();
    m_notifier = new QSocketNotifier(xcb_get_file_descriptor(connection), QSocketNotifier::Read, this);
    connect(m_notifier, &QSocketNotifier::activated, this, &RootWatch::drain);
    drain();
    return true;
}

void RootWatch::select()
{
    xcb_connection_t* connection = m_connection->handle();
    const uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    xcb_change_window_attributes(connection, m_connection->root(), XCB_CW_EVENT_MASK, &events);
    const xcb_query_extension_reply_t* fixes = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (fixes && fixes->present) {
        m_selectionEvent = static_cast<uint8_t>(fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY);
        // The server refuses the extension's requests until it was told the version.
        const Reply version(xcb_xfixes_query_version_reply(
            connection, xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, 0), nullptr));
        xcb_xfixes_select_selection_input(connection, m_connection->root(), m_connection->atom(Atom::compositor),
            XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
                | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
    }
    m_connection->flush();
}

void RootWatch::drain()
{
    xcb_connection_t* connection = m_connection->handle();
    while (const Reply event{xcb_poll_for_event(connection)}) {
        const uint8_t type = event->response_type & static_cast<uint8_t>(~sentFlag);
        if (type == XCB_PROPERTY_NOTIFY)
            Q_EMIT propertyChanged(reinterpret_cast<const xcb_property_notify_event_t*>(event.get())->atom);
        else if (m_selectionEvent != 0 && type == m_selectionEvent)
            Q_EMIT compositorChanged();
    }
    // A closed connection stays readable for ever.
    if (xcb_connection_has_error(connection) != 0)
        m_notifier->setEnabled(false);
}

} // namespace ambrelle
