// SPDX-License-Identifier: MIT

#include "platform/wayland/connection/WaylandConnection.h"

#include <algorithm>

namespace ambrelle {

namespace {

constexpr uint32_t compositorVersion = 4; // damage in pixels
constexpr uint32_t layerShellVersion = 4;

} // namespace

WaylandConnection::WaylandConnection(wl_display* display)
    : m_display(display)
    , m_registry(wl_display_get_registry(display))
{
    static const wl_registry_listener listener{
        .global =
            [](void* self, wl_registry*, uint32_t name, const char* interface, uint32_t version) {
                QHash<QByteArray, Offer>& offers = static_cast<WaylandConnection*>(self)->m_offers;
                if (!offers.contains(interface))
                    offers.insert(interface, {name, version});
            },
        .global_remove =
            [](void* self, wl_registry*, uint32_t name) {
                static_cast<WaylandConnection*>(self)->m_offers.removeIf(
                    [name](const auto& offer) { return offer.value().name == name; });
            },
    };
    wl_registry_add_listener(m_registry.get(), &listener, this);
    wl_display_roundtrip(display);
    m_compositor.reset(bind<wl_compositor>(wl_compositor_interface, compositorVersion));
    m_memory.reset(bind<wl_shm>(wl_shm_interface, 1));
    m_layerShell.reset(bind<zwlr_layer_shell_v1>(zwlr_layer_shell_v1_interface, layerShellVersion));
    m_viewporter.reset(bind<wp_viewporter>(wp_viewporter_interface, 1));
}

void* WaylandConnection::bindOffer(const wl_interface& interface, uint32_t version) const
{
    const auto offer = m_offers.constFind(interface.name);
    if (offer == m_offers.constEnd())
        return nullptr;
    return wl_registry_bind(m_registry.get(), offer->name, &interface, std::min(version, offer->version));
}

} // namespace ambrelle
