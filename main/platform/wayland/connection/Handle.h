// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

struct ext_idle_notification_v1;
struct ext_idle_notifier_v1;
struct org_kde_kwin_idle;
struct org_kde_kwin_idle_timeout;
struct wl_buffer;
struct wl_compositor;
struct wl_display;
struct wl_pointer;
struct wl_region;
struct wl_registry;
struct wl_seat;
struct wl_shm;
struct wl_shm_pool;
struct wl_surface;
struct wp_viewport;
struct wp_viewporter;
struct xdg_activation_token_v1;
struct xdg_activation_v1;
struct zwlr_layer_shell_v1;
struct zwlr_layer_surface_v1;
struct zwlr_output_power_manager_v1;
struct zwlr_output_power_v1;

namespace ambrelle {

/// Gives objects back to the compositor. (The functions that do are different ones in each file that is compiled, so
/// that they cannot be part of a type.)
struct GiveBack {
    void operator()(ext_idle_notification_v1* object) const;
    void operator()(ext_idle_notifier_v1* object) const;
    void operator()(org_kde_kwin_idle* object) const;
    void operator()(org_kde_kwin_idle_timeout* object) const;
    void operator()(wl_buffer* object) const;
    void operator()(wl_compositor* object) const;
    void operator()(wl_display* object) const;
    void operator()(wl_pointer* object) const;
    void operator()(wl_region* object) const;
    void operator()(wl_registry* object) const;
    void operator()(wl_seat* object) const;
    void operator()(wl_shm* object) const;
    void operator()(wl_shm_pool* object) const;
    void operator()(wl_surface* object) const;
    void operator()(wp_viewport* object) const;
    void operator()(wp_viewporter* object) const;
    void operator()(xdg_activation_token_v1* object) const;
    void operator()(xdg_activation_v1* object) const;
    void operator()(zwlr_layer_shell_v1* object) const;
    void operator()(zwlr_layer_surface_v1* object) const;
    void operator()(zwlr_output_power_manager_v1* object) const;
    void operator()(zwlr_output_power_v1* object) const;
};

/// Owns an object of the compositor's.
template <typename T> using Handle = std::unique_ptr<T, GiveBack>;

} // namespace ambrelle
