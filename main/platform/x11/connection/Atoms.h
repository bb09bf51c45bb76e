// SPDX-License-Identifier: MIT

#pragma once

#include <xcb/xcb.h>

#include <array>

namespace ambrelle {

enum class Atom {
    activeWindow,
    clientList,
    clientListStacking,
    clientState, ///< a window manager marks with it the windows it manages
    compositor, ///< the selection a compositing manager of the screen owns
    currentDesktop,
    desktopPicture, ///< what this program has put on the root window
    frameExtents,
    gtkFrameExtents, ///< the shadow that a window draws round itself
    otherRootPixmap, ///< also names the root window's picture if that outlives the program that set it
    restackWindow,
    rootPixmap,
    showingDesktop,
    startupId,
    startupInfo, ///< goes on with a message
    startupInfoBegin,
    stateAbove,
    stateBelow,
    stateDemandsAttention,
    stateFullScreen,
    stateHidden,
    stateShaded,
    stateSkipPager,
    stateSkipTaskbar,
    stateSticky,
    supported,
    supportingWmCheck,
    typeCombo,
    typeDesktop,
    typeDialog,
    typeDock,
    typeDragged,
    typeDropdownMenu,
    typeMenu,
    typeNormal,
    typeNotification,
    typePopupMenu,
    typeSplash,
    typeToolbar,
    typeTooltip,
    typeUtility,
    userTime,
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
