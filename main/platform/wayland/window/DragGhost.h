// SPDX-License-Identifier: MIT

#pragma once

#include "platform/wayland/connection/LayerRole.h"
#include "platform/wayland/connection/PixelBuffer.h"
#include "platform/wayland/window/LayerPlace.h"
#include "platform/wayland/window/WaylandParts.h"

#include <memory>

namespace ambrelle {

/// Stands in for a window while a button is held on it. The compositor tells the pointer's places from where the window
/// was when the button went down, or from where it is now, as it likes; so the window itself stays, empty, and this is
/// what the user sees move.
class DragGhost final : public LayerMember {
public:
    DragGhost(WaylandParts& parts, ShellLayer layer);
    ~DragGhost();
    Q_DISABLE_COPY_MOVE(DragGhost)

    void setPlace(const LayerPlace& at);
    void setLayer(ShellLayer layer);

    ShellLayer layer() const override { return m_layer; }
    const QScreen* screen() const override { return m_at.screen; }
    bool staysLow() const override { return false; }
    bool joinAgain() override;

    wl_surface* surface() const { return m_surface.get(); } ///< another one on each output

    std::function<void()> ready; ///< the compositor waits for pixels: first, or on another output
    std::function<void()> lost; ///< surface() is about to go

private:
    void open();

    WaylandParts& m_parts;
    ShellLayer m_layer;
    LayerPlace m_at;
    Handle<wl_surface> m_surface;
    std::unique_ptr<LayerRole> m_role; // last: it goes before its surface
};

} // namespace ambrelle
