// SPDX-License-Identifier: MIT

#pragma once

#include <xcb/xcb.h>

#include <vector>

namespace ambrelle {

/// A window of the screen, as far as its place among the others matters.
struct StackedWindow {
    enum class Kind {
        desktop, ///< another program's desktop
        scene, ///< ours, the decorations behind all panels
        lowPanel, ///< ours, of the desktop level
        window, ///< what people work in, ours too
        fullScreen, ///< a window that has the screen for itself
        backdrop, ///< ours, behind panels that are arranged
        highPanel, ///< ours, of the floating level
        other, ///< menus, tooltips, screen lockers: they put themselves where they belong
    };

    xcb_window_t window = XCB_WINDOW_NONE;
    Kind kind = Kind::other;
};

/// A window is to go directly above or below another one.
struct StackMove {
    xcb_window_t window = XCB_WINDOW_NONE;
    xcb_window_t sibling = XCB_WINDOW_NONE;
    bool above = true;

    bool operator==(const StackMove&) const = default;
};

/// What puts scenes and panels between desktop, windows and full-screen windows, to be done in this order; nothing
/// where they are there already. `order` begins with the lowest. Panels of one kind keep their order, but for `risen`,
/// which comes to lie above the others of its kind.
std::vector<StackMove> stackMoves(const std::vector<StackedWindow>& order, xcb_window_t risen = XCB_WINDOW_NONE);

} // namespace ambrelle
