#pragma once

#include <xcb/xcb.h>

#include <array>

namespace ambrelle {

enum class Atom {
    activeWindow,
    clientListStacking,
    compositor, ///< the selection a compositing manager of the screen owns
    desktopPicture, ///< what this program has put on the root window
    otherRootPixmap, ///< also names the root window's picture if that outlives the program that set it
    restackWindow,
    rootPixmap,
    stateAbove,
    stateBelow,
    stateDemandsAttention,
    stateSkipPager,
    stateSkipTaskbar,
    stateSticky,
    supported,
    supportingWmCheck,
    typeDesktop,
    typeDock,
    typeUtility,
    utf8String,
    wmDeleteWindow,
    wmDesktop,
    wmName,
    wmPing,
    wmProtocols,
    wmState,
    wmSyncRequest,
    wmWindowOpacity,
    wmWindowType,
    count,
};

/// The server's numbers for the names used here. Asked for together, so that all of them cost one wait.
class Atoms {
public:
    Atoms(xcb_connection_t* connection, int screenNumber);
    xcb_atom_t operator[](Atom atom) const { return m_atoms[static_cast<std::size_t>(atom)]; }

private:
    std::array<xcb_atom_t, static_cast<std::size_t>(Atom::count)> m_atoms{};
};

} // namespace ambrelle
