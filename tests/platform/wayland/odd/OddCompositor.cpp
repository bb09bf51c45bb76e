// SPDX-License-Identifier: MIT

#include "platform/wayland/odd/OddCompositor.h"

#include <wayland-server-protocol.h>
#include <wlr-layer-shell-unstable-v1-server-protocol.h>
#include <wlr-output-power-management-unstable-v1-server-protocol.h>

#include <sys/eventfd.h>
#include <unistd.h>

#include <algorithm>
#include <future>
#include <memory>
#include <utility>

namespace ambrelle::test {

struct OddCompositor::Surface {
    OddCompositor& owner;
    std::unique_ptr<Layer> layer;
    bool hasPixels = false; ///< attached since the last commit
};

struct OddRequests {
    using Surface = OddCompositor::Surface;
    using Layer = OddCompositor::Layer;

    template <typename T> static T* of(wl_resource* resource)
    {
        return static_cast<T*>(wl_resource_get_user_data(resource));
    }
    static void destroy(wl_client*, wl_resource* resource) { wl_resource_destroy(resource); }

    static void dropLayer(Surface& surface)
    {
        if (surface.layer)
            surface.owner.m_layers.removeOne(surface.layer.get());
        surface.layer.reset();
    }

    static void attach(wl_client*, wl_resource* resource, wl_resource* buffer, int32_t, int32_t)
    {
        of<Surface>(resource)->hasPixels = buffer != nullptr;
        if (buffer)
            wl_buffer_send_release(buffer);
    }
    static void commit(wl_client*, wl_resource* resource)
    {
        auto* const surface = of<Surface>(resource);
        const bool hasPixels = std::exchange(surface->hasPixels, false);
        Layer* const layer = surface->layer.get();
        if (!layer)
            return;
        if (hasPixels && !layer->isConfigured)
            return wl_resource_post_error(layer->role, 0, "pixels before the first configure");
        layer->commits += hasPixels ? 1 : 0;
        if (layer->isConfigured)
            return;
        if (layer->wanted.isEmpty())
            return wl_resource_post_error(layer->role, 1, "no size");
        const QSize told = surface->owner.configured.isValid() ? surface->owner.configured : layer->wanted;
        zwlr_layer_surface_v1_send_configure(
            layer->role, 1, static_cast<uint32_t>(told.width()), static_cast<uint32_t>(told.height()));
    }
    static void setScale(wl_client*, wl_resource* resource, int32_t scale)
    {
        if (scale < 1)
            wl_resource_post_error(resource, WL_SURFACE_ERROR_INVALID_SCALE, "scale %d", scale);
    }
    static void createRegion(wl_client* client, wl_resource*, uint32_t id)
    {
        static const struct wl_region_interface requests {
            .destroy = destroy, .add = [](wl_client*, wl_resource*, int32_t, int32_t, int32_t, int32_t) {},
            .subtract = [](wl_client*, wl_resource*, int32_t, int32_t, int32_t, int32_t) {},
        };
        wl_resource_set_implementation(
            wl_resource_create(client, &wl_region_interface, 1, id), &requests, nullptr, nullptr);
    }
    static void createSurface(wl_client* client, wl_resource* compositor, uint32_t id)
    {
        static const struct wl_surface_interface requests {
            .destroy = destroy, .attach = attach,
            .damage = [](wl_client*, wl_resource*, int32_t, int32_t, int32_t, int32_t) {},
            .frame =
                [](wl_client* who, wl_resource*, uint32_t callback) {
                    wl_resource* done = wl_resource_create(who, &wl_callback_interface, 1, callback);
                    wl_callback_send_done(done, 0);
                    wl_resource_destroy(done);
                },
            .set_opaque_region = [](wl_client*, wl_resource*, wl_resource*) {},
            .set_input_region = [](wl_client*, wl_resource*, wl_resource*) {}, .commit = commit,
            .set_buffer_transform = [](wl_client*, wl_resource*, int32_t) {}, .set_buffer_scale = setScale,
            .damage_buffer = [](wl_client*, wl_resource*, int32_t, int32_t, int32_t, int32_t) {},
            .offset = [](wl_client*, wl_resource*, int32_t, int32_t) {},
        };
        auto* const owner = of<OddCompositor>(compositor);
        wl_resource* const surface = wl_resource_create(client, &wl_surface_interface, 4, id);
        auto* const made = new Surface{.owner = *owner, .layer = nullptr};
        wl_resource_set_implementation(surface, &requests, made, [](wl_resource* gone) {
            dropLayer(*of<Surface>(gone));
            of<Surface>(gone)->owner.m_surfaces.remove(gone);
            delete of<Surface>(gone);
        });
        owner->m_surfaces.insert(surface, made);
    }

    /// Null once its surface has gone.
    static Surface* surfaceOf(wl_resource* role)
    {
        auto* const owner = of<OddCompositor>(role);
        const auto has = [role](Surface* surface) { return surface->layer && surface->layer->role == role; };
        const auto found = std::ranges::find_if(owner->m_surfaces, has);
        return found == owner->m_surfaces.end() ? nullptr : *found;
    }
    static void getLayerSurface(
        wl_client* client, wl_resource* shell, uint32_t id, wl_resource* surface, wl_resource*, uint32_t, const char*)
    {
        static const struct zwlr_layer_surface_v1_interface requests {
            .set_size =
                [](wl_client*, wl_resource* role, uint32_t width, uint32_t height) {
                    if (Surface* const own = surfaceOf(role))
                        own->layer->wanted = QSize(static_cast<int>(width), static_cast<int>(height));
                },
            .set_anchor = [](wl_client*, wl_resource*, uint32_t) {},
            .set_exclusive_zone = [](wl_client*, wl_resource*, int32_t) {},
            .set_margin = [](wl_client*, wl_resource*, int32_t, int32_t, int32_t, int32_t) {},
            .set_keyboard_interactivity = [](wl_client*, wl_resource*, uint32_t) {},
            .get_popup = [](wl_client*, wl_resource*, wl_resource*) {},
            .ack_configure =
                [](wl_client*, wl_resource* role, uint32_t) {
                    if (Surface* const own = surfaceOf(role))
                        own->layer->isConfigured = true;
                },
            .destroy = destroy, .set_layer = [](wl_client*, wl_resource*, uint32_t) {},
        };
        auto* const owner = of<OddCompositor>(shell);
        auto* const own = of<Surface>(surface);
        wl_resource* const role = wl_resource_create(client, &zwlr_layer_surface_v1_interface, 4, id);
        wl_resource_set_implementation(role, &requests, owner, [](wl_resource* gone) {
            if (Surface* const left = surfaceOf(gone))
                dropLayer(*left);
        });
        if (own->layer || own->hasPixels)
            return wl_resource_post_error(shell, 2, "has pixels");
        own->layer = std::make_unique<Layer>();
        own->layer->role = role;
        owner->m_layers.append(own->layer.get());
    }

    static void bindCompositor(wl_client* client, void* owner, uint32_t, uint32_t id)
    {
        static const struct wl_compositor_interface requests {
            .create_surface = createSurface, .create_region = createRegion
        };
        wl_resource_set_implementation(
            wl_resource_create(client, &wl_compositor_interface, 4, id), &requests, owner, nullptr);
    }
    static void bindLayerShell(wl_client* client, void* owner, uint32_t, uint32_t id)
    {
        static const struct zwlr_layer_shell_v1_interface requests {
            .get_layer_surface = getLayerSurface, .destroy = destroy
        };
        wl_resource_set_implementation(
            wl_resource_create(client, &zwlr_layer_shell_v1_interface, 4, id), &requests, owner, nullptr);
    }
    static void getOutputPower(wl_client* client, wl_resource* manager, uint32_t id, wl_resource*)
    {
        static const struct zwlr_output_power_v1_interface requests {
            .set_mode = [](wl_client*, wl_resource*, uint32_t) {}, .destroy = destroy
        };
        wl_resource* const power = wl_resource_create(client, &zwlr_output_power_v1_interface, 1, id);
        wl_resource_set_implementation(power, &requests, of<OddCompositor>(manager),
            [](wl_resource* gone) { of<OddCompositor>(gone)->m_powers.removeOne(gone); });
        of<OddCompositor>(manager)->m_powers.append(power);
        zwlr_output_power_v1_send_mode(power, ZWLR_OUTPUT_POWER_V1_MODE_ON);
    }
    static void bindPowerManager(wl_client* client, void* owner, uint32_t, uint32_t id)
    {
        static const struct zwlr_output_power_manager_v1_interface requests {
            .get_output_power = getOutputPower, .destroy = destroy
        };
        wl_resource_set_implementation(
            wl_resource_create(client, &zwlr_output_power_manager_v1_interface, 1, id), &requests, owner, nullptr);
    }
    static void bindOutput(wl_client* client, void* data, uint32_t version, uint32_t id)
    {
        const auto& output = *static_cast<OddCompositor::Output*>(data);
        wl_resource* const made = wl_resource_create(client, &wl_output_interface, static_cast<int>(version), id);
        wl_resource_set_implementation(made, nullptr, nullptr, nullptr);
        wl_output_send_geometry(made, output.corner.x(), output.corner.y(), 0, 0, 0, "", "", 0);
        if (!output.mode.isEmpty())
            wl_output_send_mode(made, WL_OUTPUT_MODE_CURRENT, output.mode.width(), output.mode.height(), 0);
        wl_output_send_scale(made, output.scale);
        if (output.isDone)
            wl_output_send_done(made);
    }
};

OddCompositor::OddCompositor()
    : m_display(wl_display_create())
    , m_wake(eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK))
{
    wl_display_init_shm(m_display);
    wl_global_create(m_display, &wl_compositor_interface, 4, this, OddRequests::bindCompositor);
    wl_global_create(m_display, &zwlr_output_power_manager_v1_interface, 1, this, OddRequests::bindPowerManager);
    offerLayerShell();
    qputenv("WAYLAND_DISPLAY", wl_display_add_socket_auto(m_display));
    wl_event_loop_add_fd(
        wl_display_get_event_loop(m_display), m_wake, WL_EVENT_READABLE,
        [](int file, uint32_t, void* data) {
            auto* const self = static_cast<OddCompositor*>(data);
            eventfd_t count = 0;
            eventfd_read(file, &count);
            const std::lock_guard lock(self->m_lock);
            for (const auto& work : std::exchange(self->m_work, {}))
                work();
            return 0;
        },
        this);
    m_thread = std::thread([this] {
        while (!m_isOver) {
            wl_display_flush_clients(m_display);
            wl_event_loop_dispatch(wl_display_get_event_loop(m_display), -1);
        }
    });
}

OddCompositor::~OddCompositor()
{
    run([this] { m_isOver = true; });
    m_thread.join();
    wl_display_destroy_clients(m_display);
    wl_display_destroy(m_display);
    ::close(m_wake);
}

void OddCompositor::run(const std::function<void()>& work)
{
    std::promise<void> done;
    {
        const std::lock_guard lock(m_lock);
        m_work.emplace_back([&] {
            work();
            done.set_value();
        });
    }
    eventfd_write(m_wake, 1);
    done.get_future().wait();
}

OddCompositor::Output* OddCompositor::plug(const Output& output)
{
    Output* const made = &m_outputs.emplace_back(output);
    made->global = wl_global_create(m_display, &wl_output_interface, 2, made, OddRequests::bindOutput);
    return made;
}

void OddCompositor::unplug(Output* output)
{
    wl_global_remove(output->global); // who has not heard of it may still bind it
}

void OddCompositor::offerLayerShell()
{
    m_layerShell = wl_global_create(m_display, &zwlr_layer_shell_v1_interface, 4, this, OddRequests::bindLayerShell);
}

void OddCompositor::withdrawLayerShell()
{
    wl_global_remove(m_layerShell);
}

QList<OddCompositor::Layer*> OddCompositor::layers() const
{
    return m_layers;
}

void OddCompositor::setPower(bool on)
{
    for (wl_resource* power : m_powers)
        zwlr_output_power_v1_send_mode(power, on ? ZWLR_OUTPUT_POWER_V1_MODE_ON : ZWLR_OUTPUT_POWER_V1_MODE_OFF);
}

void OddCompositor::close(Layer* layer)
{
    zwlr_layer_surface_v1_send_closed(layer->role);
}

} // namespace ambrelle::test
