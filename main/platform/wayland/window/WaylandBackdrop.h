// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/BackdropSurface.h"
#include "platform/wayland/window/LayerWindow.h"
#include "platform/wayland/window/WaylandCanvas.h"

namespace ambrelle {

/// A backdrop as a surface of the top layer that covers one output.
class WaylandBackdrop final : public BackdropWindow {
public:
    WaylandBackdrop(BackdropDelegate& delegate, WaylandParts& parts);
    ~WaylandBackdrop() override;

    void setFrame(const QRectF& screen) override;
    QRectF frame() const override { return m_frame; }
    void show() override { m_window.show(); }
    void takeFocus() override { m_window.setTakesKeyboard(true); }
    void update() override { m_surface->updateAll(); }

private:
    WaylandParts& m_parts;
    WaylandCanvas* m_canvas; ///< the surface's
    BackdropSurface* m_surface; ///< deletes itself once retired
    LayerWindow m_window;
    QRectF m_frame;
};

} // namespace ambrelle
