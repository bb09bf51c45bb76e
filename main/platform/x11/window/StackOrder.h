// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/window/StackPlan.h"

#include <map>

namespace ambrelle {

/// Where this program's windows stand among all others, for the time when no window manager sees to it.
class StackOrder {
public:
    explicit StackOrder(const X11Connection& connection);

    /// From now on that window of this program has its place. It need not be on the screen. False if it has been of
    /// that kind before.
    bool set(xcb_window_t window, StackedWindow::Kind kind);
    void remove(xcb_window_t window) { m_ours.erase(window); }

    /// What is missing; waits for the server three times. `risen` is to lie above the others of its kind.
    std::vector<StackMove> moves(xcb_window_t risen = XCB_WINDOW_NONE) const;
    void apply(const std::vector<StackMove>& moves) const;
    void settle(xcb_window_t risen = XCB_WINDOW_NONE) const { apply(moves(risen)); }

private:
    std::vector<StackedWindow> order() const;

    const X11Connection& m_connection;
    std::map<xcb_window_t, StackedWindow::Kind> m_ours;
};

} // namespace ambrelle
