// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/WaylandConnection.h"

#include <QRect>

#include <functional>

namespace ambrelle {

/// The layers of a desktop, the lowest first.
enum class ShellLayer : uint32_t {
    background = ZWLR_LAYER_SHELL_V1_LAYER_BACKGROUND,
    bottom = ZWLR_LAYER_SHELL_V1_LAYER_BOTTOM, ///< below normal windows
    top = ZWLR_LAYER_SHELL_V1_LAYER_TOP, ///< above normal windows
    overlay = ZWLR_LAYER_SHELL_V1_LAYER_OVERLAY, ///< above full screen windows too
};

/// What makes a surface a part of one layer of one output, at a place of its own. Changes count from the surface's next
/// commit on.
class LayerRole {
public:
    /// `surface` has no buffer. Commits it; a buffer may come once ready() has been called.
    LayerRole(const WaylandConnection& connection, wl_surface* surface, wl_output* output, ShellLayer layer);
    ~LayerRole() = default;
    Q_DISABLE_COPY_MOVE(LayerRole)

    void setPlace(const QRect& place); ///< points from the output's upper left corner
    void setLayer(ShellLayer layer);
    void joinAgain(ShellLayer layer); ///< leaves that layer, which it is in, and comes back at once
    void setTakesKeyboard(bool takes); ///< all keys come here while the surface is shown
    bool isReady() const { return m_ready; }
    /// Ends the beginning: to be called once, after the first place is set.
    void commit() const { wl_surface_commit(m_surface); }

    std::function<void()> ready; ///< the compositor waits for a buffer
    std::function<void()> closed; ///< the surface is shown no more, as when its output has gone; may delete the role

private:
    wl_surface* m_surface;
    Handle<zwlr_layer_surface_v1> m_role;
    bool m_ready = false;
};

} // namespace ambrelle
