// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/ScreenList.h"
#include "platform/wayland/connection/Activation.h"

namespace ambrelle {

class LayerWindow;

/// What all windows on one compositor share.
struct WaylandParts {
    explicit WaylandParts(wl_display* display)
        : connection(display)
    {
    }

    WaylandConnection connection;
    Activation activation{connection};
    ScreenList screens;
    QList<LayerWindow*> windows; ///< all of the layers, the last raised last
};

} // namespace ambrelle
