// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowList.h"
#include "platform/x11/connection/X11Connection.h"

#include <QRect>

namespace ambrelle {

/// What one window is asked in order to see it as a user does. Asking sends only; so the questions of many windows cost
/// one wait. Every question must be answered once.
class WindowQuestion {
public:
    WindowQuestion(const X11Connection& connection, xcb_window_t window);

    struct Answer {
        QRect place; ///< native pixels of the root window; with its frame, without a shadow it draws itself
        OnscreenWindow window; ///< all but its bounds
    };
    /// None when the window is gone, or not on the screen while that desktop is the current one.
    std::optional<Answer> answer(uint32_t currentDesktop) const;

private:
    const X11Connection& m_connection;
    xcb_get_geometry_cookie_t m_geometry;
    xcb_translate_coordinates_cookie_t m_origin;
    xcb_get_window_attributes_cookie_t m_attributes;
    xcb_get_property_cookie_t m_desktop;
    xcb_get_property_cookie_t m_states;
    xcb_get_property_cookie_t m_types;
    xcb_get_property_cookie_t m_opacity;
    xcb_get_property_cookie_t m_frame;
    xcb_get_property_cookie_t m_shadow;
};

} // namespace ambrelle
