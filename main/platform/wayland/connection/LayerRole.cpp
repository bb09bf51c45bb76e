// SPDX-License-Identifier: MIT

#include "platform/wayland/connection/LayerRole.h"

#include <utility>

namespace ambrelle {

namespace {

constexpr int overAllPanels = -1; // they claim no room from it

} // namespace

LayerRole::LayerRole(const WaylandConnection& connection, wl_surface* surface, wl_output* output, ShellLayer layer)
    : m_surface(surface)
    , m_role(zwlr_layer_shell_v1_get_layer_surface(
          connection.layerShell(), surface, output, static_cast<uint32_t>(layer), "ambrelle"))
{
    static const zwlr_layer_surface_v1_listener listener{
        .configure =
            [](void* data, zwlr_layer_surface_v1* role, uint32_t serial, uint32_t, uint32_t) {
                auto* self = static_cast<LayerRole*>(data);
                zwlr_layer_surface_v1_ack_configure(role, serial);
                if (!std::exchange(self->m_ready, true) && self->ready)
                    self->ready();
            },
        .closed =
            [](void* data, zwlr_layer_surface_v1*) {
                if (const auto tell = static_cast<LayerRole*>(data)->closed)
                    tell();
            },
    };
    zwlr_layer_surface_v1_add_listener(m_role.get(), &listener, this);
    zwlr_layer_surface_v1_set_anchor(
        m_role.get(), ZWLR_LAYER_SURFACE_V1_ANCHOR_TOP | ZWLR_LAYER_SURFACE_V1_ANCHOR_LEFT);
    zwlr_layer_surface_v1_set_exclusive_zone(m_role.get(), overAllPanels);
}

void LayerRole::setPlace(const QRect& place)
{
    // The compositor takes 0 for its own choice, which it has none of, and breaks the connection.
    const QSize size = place.size().expandedTo({1, 1});
    zwlr_layer_surface_v1_set_size(
        m_role.get(), static_cast<uint32_t>(size.width()), static_cast<uint32_t>(size.height()));
    zwlr_layer_surface_v1_set_margin(m_role.get(), place.top(), 0, 0, place.left());
}

void LayerRole::setLayer(ShellLayer layer)
{
    if (zwlr_layer_surface_v1_get_version(m_role.get()) >= ZWLR_LAYER_SURFACE_V1_SET_LAYER_SINCE_VERSION)
        zwlr_layer_surface_v1_set_layer(m_role.get(), static_cast<uint32_t>(layer));
}

void LayerRole::joinAgain(ShellLayer layer)
{
    // Should the compositor show the moment between, it shows the surface rather missing than in front.
    setLayer(layer == ShellLayer::bottom ? ShellLayer::background : ShellLayer::bottom);
    commit();
    setLayer(layer);
    commit();
}

void LayerRole::setTakesKeyboard(bool takes)
{
    zwlr_layer_surface_v1_set_keyboard_interactivity(m_role.get(),
        takes ? ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_EXCLUSIVE
              : ZWLR_LAYER_SURFACE_V1_KEYBOARD_INTERACTIVITY_NONE);
}

} // namespace ambrelle
