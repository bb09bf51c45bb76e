// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/ScreenList.h"
#include "platform/x11/connection/CompositorWatch.h"
#include "platform/x11/connection/PaintBuffer.h"
#include "platform/x11/connection/WindowManager.h"
#include "platform/x11/connection/X11Connection.h"
#include "platform/x11/root/RootPicture.h"
#include "platform/x11/window/StackOrder.h"

class QPainter;

namespace ambrelle {

/// Draws over what lies below the panels.
class GroundShade {
public:
    virtual ~GroundShade() = default;
    /// On a painter whose origin is that native pixel of the root window.
    virtual void shade(QPainter& painter, const QPoint& origin) const = 0;
};

/// What all panels of one X server share.
struct X11Parts {
    X11Parts(xcb_connection_t* handle, int screenNumber)
        : connection(handle, screenNumber)
    {
    }

    X11Connection connection;
    CompositorWatch compositor{connection};
    PaintBuffer buffer;
    RootPicture picture{connection};
    WindowManager manager{connection};
    StackOrder order{connection};
    ScreenList screens;
    QList<const GroundShade*> shades; ///< the lowest first
};

} // namespace ambrelle
