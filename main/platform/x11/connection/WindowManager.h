// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/X11Connection.h"

#include <optional>

namespace ambrelle {

/// Words of the messages to a window manager, from the Extended Window Manager Hints.
namespace WindowHint {
inline constexpr uint32_t everyDesktop = 0xFFFFFFFF;
inline constexpr uint32_t removeState = 0;
inline constexpr uint32_t addState = 1;
inline constexpr uint32_t fromApplication = 1;
inline constexpr uint32_t fromPager = 2; ///< the source whose wishes for the focus and the order are always granted
} // namespace WindowHint

/// What must be known about the window manager that runs. Asked when first needed, and again after forget().
class WindowManager {
public:
    explicit WindowManager(const X11Connection& connection);

    void forget();
    /// The window type of a panel above the others. A dock stays where it is put and survives "show desktop", but Xfwm4
    /// draws a shadow round a dock's transparent rectangle.
    xcb_atom_t floatingType() const;
    bool canRestack() const; ///< it reorders windows on request

private:
    const X11Connection& m_connection;
    mutable std::optional<xcb_atom_t> m_floatingType;
    mutable std::optional<bool> m_canRestack;
};

} // namespace ambrelle
