// SPDX-License-Identifier: MIT

#include "platform/x11/connection/Atoms.h"

#include "platform/x11/connection/Reply.h"

#include <string>
#include <string_view>

namespace ambrelle {

namespace {

constexpr std::size_t atomCount = static_cast<std::size_t>(Atom::count);

constexpr std::array<std::string_view, atomCount> names{
    "_NET_ACTIVE_WINDOW",
    "_NET_CLIENT_LIST",
    "_NET_CLIENT_LIST_STACKING",
    "WM_STATE",
    "_NET_WM_CM_S",
    "_NET_CURRENT_DESKTOP",
    "_AMBRELLE_DESKTOP_PICTURE",
    "_NET_FRAME_EXTENTS",
    "_GTK_FRAME_EXTENTS",
    "ESETROOT_PMAP_ID",
    "_NET_RESTACK_WINDOW",
    "_XROOTPMAP_ID",
    "_NET_SHOWING_DESKTOP",
    "_NET_STARTUP_ID",
    "_NET_STARTUP_INFO",
    "_NET_STARTUP_INFO_BEGIN",
    "_NET_WM_STATE_ABOVE",
    "_NET_WM_STATE_BELOW",
    "_NET_WM_STATE_DEMANDS_ATTENTION",
    "_NET_WM_STATE_FULLSCREEN",
    "_NET_WM_STATE_HIDDEN",
    "_NET_WM_STATE_SHADED",
    "_NET_WM_STATE_SKIP_PAGER",
    "_NET_WM_STATE_SKIP_TASKBAR",
    "_NET_WM_STATE_STICKY",
    "_NET_SUPPORTED",
    "_NET_SUPPORTING_WM_CHECK",
    "_NET_WM_WINDOW_TYPE_COMBO",
    "_NET_WM_WINDOW_TYPE_DESKTOP",
    "_NET_WM_WINDOW_TYPE_DIALOG",
    "_NET_WM_WINDOW_TYPE_DOCK",
    "_NET_WM_WINDOW_TYPE_DND",
    "_NET_WM_WINDOW_TYPE_DROPDOWN_MENU",
    "_NET_WM_WINDOW_TYPE_MENU",
    "_NET_WM_WINDOW_TYPE_NORMAL",
    "_NET_WM_WINDOW_TYPE_NOTIFICATION",
    "_NET_WM_WINDOW_TYPE_POPUP_MENU",
    "_NET_WM_WINDOW_TYPE_SPLASH",
    "_NET_WM_WINDOW_TYPE_TOOLBAR",
    "_NET_WM_WINDOW_TYPE_TOOLTIP",
    "_NET_WM_WINDOW_TYPE_UTILITY",
    "_NET_WM_USER_TIME",
    "UTF8_STRING",
    "WM_DELETE_WINDOW",
    "_NET_WM_DESKTOP",
    "_NET_WM_NAME",
    "_NET_WM_PING",
    "WM_PROTOCOLS",
    "_NET_WM_STATE",
    "_NET_WM_SYNC_REQUEST",
    "_NET_WM_WINDOW_OPACITY",
    "_NET_WM_WINDOW_TYPE",
};

} // namespace

Atoms::Atoms(xcb_connection_t* connection, int screenNumber)
{
    std::array<xcb_intern_atom_cookie_t, atomCount> cookies;
    for (std::size_t index = 0; index < atomCount; ++index) {
        std::string name(names[index]);
        if (index == static_cast<std::size_t>(Atom::compositor))
            name += std::to_string(screenNumber);
        cookies[index] = xcb_intern_atom(connection, 0, static_cast<uint16_t>(name.size()), name.data());
    }
    for (std::size_t index = 0; index < atomCount; ++index) {
        const Reply reply(xcb_intern_atom_reply(connection, cookies[index], nullptr));
        m_atoms[index] = reply ? reply->atom : xcb_atom_t{XCB_ATOM_NONE};
    }
}

} // namespace ambrelle
