// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/Handle.h"

#include <viewporter-client-protocol.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>

#include <QByteArray>
#include <QHash>
#include <QObject>

namespace ambrelle {

/// The toolkit's connection to the compositor, and what of its offers panels need. Everything on it is told by the
/// toolkit's event loop, on the thread of the application object.
class WaylandConnection {
public:
    /// Waits once for the compositor.
    explicit WaylandConnection(wl_display* display);

    wl_display* display() const { return m_display; }
    wl_compositor* compositor() const { return m_compositor.get(); } ///< never null while isComplete()
    wl_shm* memory() const { return m_memory.get(); } ///< likewise
    zwlr_layer_shell_v1* layerShell() const { return m_layerShell.get(); } ///< likewise
    wp_viewporter* viewporter() const { return m_viewporter.get(); } ///< null where there is none
    bool isComplete() const { return m_compositor && m_memory && m_layerShell; }

    /// Binds one more of the compositor's offers, at most as that version; null where it does not offer it.
    template <typename T> T* bind(const wl_interface& interface, uint32_t version) const
    {
        return static_cast<T*>(bindOffer(interface, version));
    }

private:
    struct Offer {
        uint32_t name = 0;
        uint32_t version = 0;
    };

    void* bindOffer(const wl_interface& interface, uint32_t version) const;

    wl_display* m_display;
    Handle<wl_registry> m_registry;
    QHash<QByteArray, Offer> m_offers; ///< by interface; of several the first
    Handle<wl_compositor> m_compositor;
    Handle<wl_shm> m_memory;
    Handle<zwlr_layer_shell_v1> m_layerShell;
    Handle<wp_viewporter> m_viewporter;
};

} // namespace ambrelle
