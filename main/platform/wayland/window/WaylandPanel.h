// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/SurfacePanel.h"
#include "platform/wayland/window/DragGhost.h"
#include "platform/wayland/window/LayerWindow.h"
#include "platform/wayland/window/WaylandCanvas.h"

namespace ambrelle {

/// A panel as a surface of the bottom or top layer.
class WaylandPanel final : public SurfacePanel {
public:
    WaylandPanel(PanelDelegate& delegate, WaylandParts& parts, Rank rank = Rank::panel);
    ~WaylandPanel() override;

    void show() override;
    void hide() override;
    void setLevel(WindowLevel level) override;
    void setOpacity(double opacity) override;
    void setOutline(const QList<RoundedArea>&) override { } // something always composites
    void place() override;

    std::function<void(WaylandPanel*)> onDestroyed;

private:
    WaylandPanel(PanelDelegate& delegate, WaylandParts& parts, Rank rank, WaylandCanvas* canvas); ///< takes the canvas

    ShellLayer layer() const;
    void applyInput() override;
    void follow(const QRect& place);
    void beginFollowing();
    void endFollowing();

    WaylandParts& m_parts;
    WaylandCanvas* m_canvas; ///< the surface's
    LayerWindow m_window;
    WindowLevel m_level = WindowLevel::desktop;
    std::unique_ptr<PixelBuffer> m_nothing; ///< what the window shows while a ghost stands in for it
    std::unique_ptr<DragGhost> m_ghost;
};

} // namespace ambrelle
