#pragma once

#include "platform/x11/X11Connection.h"

#include <optional>

namespace ambrelle {

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
