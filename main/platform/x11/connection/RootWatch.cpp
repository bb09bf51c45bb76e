// SPDX-License-Identifier: MIT

#include "platform/x11/connection/RootWatch.h"

#include "platform/x11/connection/Reply.h"

#include <QSocketNotifier>

#include <xcb/screensaver.h>
#include <xcb/xfixes.h>

#include <utility>

namespace ambrelle {

namespace {

constexpr uint8_t sentFlag = 0x80; // marks events that another client made up

bool isBlanking(uint8_t state)
{
    return state == XCB_SCREENSAVER_STATE_ON || state == XCB_SCREENSAVER_STATE_CYCLE;
}

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
    followOrder(false);
    xcb_prefetch_extension_data(connection, &xcb_xfixes_id);
    xcb_prefetch_extension_data(connection, &xcb_screensaver_id);
    selectCompositor();
    selectScreenSaver();
    m_connection->flush();
}

void RootWatch::selectCompositor()
{
    xcb_connection_t* connection = m_connection->handle();
    const xcb_query_extension_reply_t* fixes = xcb_get_extension_data(connection, &xcb_xfixes_id);
    if (!fixes || !fixes->present)
        return;
    m_selectionEvent = static_cast<uint8_t>(fixes->first_event + XCB_XFIXES_SELECTION_NOTIFY);
    // The server refuses the extension's requests until it was told the version.
    const Reply version(xcb_xfixes_query_version_reply(
        connection, xcb_xfixes_query_version(connection, XCB_XFIXES_MAJOR_VERSION, 0), nullptr));
    xcb_xfixes_select_selection_input(connection, m_connection->root(), m_connection->atom(Atom::compositor),
        XCB_XFIXES_SELECTION_EVENT_MASK_SET_SELECTION_OWNER | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_WINDOW_DESTROY
            | XCB_XFIXES_SELECTION_EVENT_MASK_SELECTION_CLIENT_CLOSE);
}

void RootWatch::selectScreenSaver()
{
    xcb_connection_t* connection = m_connection->handle();
    const xcb_query_extension_reply_t* saver = xcb_get_extension_data(connection, &xcb_screensaver_id);
    if (!saver || !saver->present)
        return;
    m_screenSaverEvent = static_cast<uint8_t>(saver->first_event + XCB_SCREENSAVER_NOTIFY);
    xcb_screensaver_select_input(connection, m_connection->root(), XCB_SCREENSAVER_EVENT_NOTIFY_MASK);
    const auto cookie = xcb_screensaver_query_info(connection, m_connection->root());
    const Reply info(xcb_screensaver_query_info_reply(connection, cookie, nullptr));
    setBlanked(info && isBlanking(info->state));
}

void RootWatch::setBlanked(bool blanked)
{
    if (std::exchange(m_blanked, blanked) != blanked)
        Q_EMIT blankedChanged();
}

void RootWatch::follow(xcb_window_t window, bool on) const
{
    const uint32_t events = on ? XCB_EVENT_MASK_STRUCTURE_NOTIFY | XCB_EVENT_MASK_PROPERTY_CHANGE : 0U;
    xcb_change_window_attributes(m_connection->handle(), window, XCB_CW_EVENT_MASK, &events);
}

void RootWatch::followOrder(bool on)
{
    uint32_t events = XCB_EVENT_MASK_PROPERTY_CHANGE;
    if (on)
        events |= XCB_EVENT_MASK_SUBSTRUCTURE_NOTIFY;
    xcb_change_window_attributes(m_connection->handle(), m_connection->root(), XCB_CW_EVENT_MASK, &events);
    m_connection->flush();
}

void RootWatch::drain()
{
    xcb_connection_t* connection = m_connection->handle();
    while (const Reply event{xcb_poll_for_event(connection)})
        hear(*event);
    // A closed connection stays readable for ever.
    if (xcb_connection_has_error(connection) != 0)
        m_notifier->setEnabled(false);
}

void RootWatch::hear(const xcb_generic_event_t& event)
{
    const uint8_t type = event.response_type & static_cast<uint8_t>(~sentFlag);
    if (type == XCB_PROPERTY_NOTIFY) {
        const auto& change = reinterpret_cast<const xcb_property_notify_event_t&>(event);
        if (change.window == m_connection->root())
            Q_EMIT propertyChanged(change.atom);
        else
            Q_EMIT windowChanged(change.window, change.atom);
    } else if (m_selectionEvent != 0 && type == m_selectionEvent) {
        Q_EMIT compositorChanged();
    } else if (m_screenSaverEvent != 0 && type == m_screenSaverEvent) {
        setBlanked(isBlanking(reinterpret_cast<const xcb_screensaver_notify_event_t&>(event).state));
    } else {
        hearWindow(type, event);
    }
}

/// What the root window tells of its children, and each followed window of itself.
void RootWatch::hearWindow(uint8_t type, const xcb_generic_event_t& event)
{
    switch (type) {
    case XCB_CONFIGURE_NOTIFY:
    case XCB_MAP_NOTIFY:
    case XCB_UNMAP_NOTIFY:
    case XCB_REPARENT_NOTIFY:
    case XCB_CIRCULATE_NOTIFY:
    case XCB_DESTROY_NOTIFY: break;
    default: return;
    }
    // All of these begin alike: with who is told, and of whom.
    const auto& news = reinterpret_cast<const xcb_destroy_notify_event_t&>(event);
    if (news.event == m_connection->root())
        Q_EMIT orderChanged();
    else if (type == XCB_DESTROY_NOTIFY)
        Q_EMIT windowGone(news.window);
    else if (type != XCB_REPARENT_NOTIFY && type != XCB_CIRCULATE_NOTIFY)
        Q_EMIT windowChanged(news.window, xcb_atom_t{XCB_ATOM_NONE});
}

} // namespace ambrelle
