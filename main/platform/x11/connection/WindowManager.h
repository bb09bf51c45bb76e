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

/// What must be known about the window manager that runs, if one does. Asked when first needed, and again after
/// forget().
class WindowManager {
public:
    explicit WindowManager(const X11Connection& connection);

    void forget();
    /// It keeps windows of the desktop below the others and leaves them where they are. One that does not would tile
    /// panels, frame them and give them the focus; past such a one, and where none runs, panels go straight to the X
    /// server, and their order is this program's business.
    bool keepsPanels() const;
    /// The window type of a panel above the others. A dock stays where it is put and survives "show desktop", but Xfwm4
    /// draws a shadow round a dock's transparent rectangle.
    xcb_atom_t floatingType() const;
    bool canRestack() const; ///< it reorders windows on request
    xcb_window_t window() const; ///< a window that goes when the window manager goes; none where none runs

private:
    struct Facts {
        xcb_window_t window;
        QByteArray name;
        std::vector<uint32_t> supported; ///< none where no window manager runs
    };
    const Facts& facts() const;
    bool supports(Atom hint) const;

    const X11Connection& m_connection;
    mutable std::optional<Facts> m_facts;
};

} // namespace ambrelle
