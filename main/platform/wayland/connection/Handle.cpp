// SPDX-License-Identifier: MIT

#include "platform/wayland/connection/Handle.h"

#include <ext-idle-notify-v1-client-protocol.h>
#include <kde-idle-client-protocol.h>
#include <viewporter-client-protocol.h>
#include <wayland-client.h>
#include <wlr-layer-shell-unstable-v1-client-protocol.h>
#include <wlr-output-power-management-unstable-v1-client-protocol.h>
#include <xdg-activation-v1-client-protocol.h>

namespace ambrelle {

void GiveBack::operator()(ext_idle_notification_v1* object) const
{
    ext_idle_notification_v1_destroy(object);
}

void GiveBack::operator()(ext_idle_notifier_v1* object) const
{
    ext_idle_notifier_v1_destroy(object);
}

void GiveBack::operator()(org_kde_kwin_idle* object) const
{
    org_kde_kwin_idle_destroy(object);
}

void GiveBack::operator()(org_kde_kwin_idle_timeout* object) const
{
    org_kde_kwin_idle_timeout_release(object);
}

void GiveBack::operator()(wl_buffer* object) const
{
    wl_buffer_destroy(object);
}

void GiveBack::operator()(wl_compositor* object) const
{
    wl_compositor_destroy(object);
}

void GiveBack::operator()(wl_display* object) const
{
    wl_display_disconnect(object);
}

void GiveBack::operator()(wl_pointer* object) const
{
    wl_pointer_destroy(object);
}

void GiveBack::operator()(wl_region* object) const
{
    wl_region_destroy(object);
}

void GiveBack::operator()(wl_registry* object) const
{
    wl_registry_destroy(object);
}

void GiveBack::operator()(wl_seat* object) const
{
    wl_seat_destroy(object);
}

void GiveBack::operator()(wl_shm* object) const
{
    wl_shm_destroy(object);
}

void GiveBack::operator()(wl_shm_pool* object) const
{
    wl_shm_pool_destroy(object);
}

void GiveBack::operator()(wl_surface* object) const
{
    wl_surface_destroy(object);
}

void GiveBack::operator()(wp_viewport* object) const
{
    wp_viewport_destroy(object);
}

void GiveBack::operator()(wp_viewporter* object) const
{
    wp_viewporter_destroy(object);
}

void GiveBack::operator()(xdg_activation_token_v1* object) const
{
    xdg_activation_token_v1_destroy(object);
}

void GiveBack::operator()(xdg_activation_v1* object) const
{
    xdg_activation_v1_destroy(object);
}

void GiveBack::operator()(zwlr_layer_shell_v1* object) const
{
    // Older versions know no request for it.
    if (zwlr_layer_shell_v1_get_version(object) >= ZWLR_LAYER_SHELL_V1_DESTROY_SINCE_VERSION)
        zwlr_layer_shell_v1_destroy(object);
    else
        wl_proxy_destroy(reinterpret_cast<wl_proxy*>(object));
}

void GiveBack::operator()(zwlr_layer_surface_v1* object) const
{
    zwlr_layer_surface_v1_destroy(object);
}

void GiveBack::operator()(zwlr_output_power_manager_v1* object) const
{
    zwlr_output_power_manager_v1_destroy(object);
}

void GiveBack::operator()(zwlr_output_power_v1* object) const
{
    zwlr_output_power_v1_destroy(object);
}

} // namespace ambrelle
