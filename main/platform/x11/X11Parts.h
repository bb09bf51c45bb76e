#pragma once

#include "platform/x11/CompositorWatch.h"
#include "platform/x11/RootPicture.h"
#include "platform/x11/ScreenList.h"
#include "platform/x11/WindowManager.h"
#include "platform/x11/X11Connection.h"

namespace ambrelle {

/// What all panels of one X server share.
struct X11Parts {
    X11Parts(xcb_connection_t* handle, int screenNumber)
        : connection(handle, screenNumber)
    {
    }

    X11Connection connection;
    CompositorWatch compositor{connection};
    RootPicture picture{connection};
    WindowManager manager{connection};
    ScreenList screens;
};

} // namespace ambrelle
