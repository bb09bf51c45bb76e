// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/ScreenList.h"
#include "platform/wayland/connection/Activation.h"
#include "platform/wayland/window/LayerOrder.h"

namespace ambrelle {

/// What all windows on one compositor share.
struct WaylandParts {
    WaylandParts(wl_display* display, ScreenList::FactsOf factsOf)
        : connection(display)
        , screens(std::move(factsOf))
    {
    }

    WaylandConnection connection;
    Activation activation{connection};
    ScreenList screens;
    LayerOrder order;
    bool grabsPointer = true; ///< who is pressed hears the pointer until the button is up, as far as is known
};

} // namespace ambrelle
