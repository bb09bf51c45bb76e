// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/SurfacePanel.h"
#include "platform/wayland/window/DragCatcher.h"
#include "platform/wayland/window/DragGhost.h"
#include "platform/wayland/window/LayerWindow.h"
#include "platform/wayland/window/PanelTwin.h"
#include "platform/wayland/window/WaylandCanvas.h"

#include <vector>

namespace ambrelle {

/// A panel as a surface of the bottom or top layer of the output that shows most of it, and as one more of each that it
/// reaches into.
class WaylandPanel final : public SurfacePanel {
public:
    WaylandPanel(PanelDelegate& delegate, WaylandParts& parts, Rank rank = Rank::panel);
    ~WaylandPanel() override;

    void show() override;
    void hide() override;
    void setLevel(WindowLevel level) override;
    void setOpacity(double opacity) override;
    void setOutline(const QList<RoundedArea>&) override { } // something always composites
    void update(const QRectF& area) override;
    void place() override;

    std::function<void(WaylandPanel*)> onDestroyed;

private:
    WaylandPanel(PanelDelegate& delegate, WaylandParts& parts, Rank rank, WaylandCanvas* canvas); ///< takes the canvas

    ShellLayer layer() const;
    std::optional<QRect> heardArea() const; ///< window points, as LayerWindow has it
    void applyInput() override;
    void arrangeTwins();
    std::unique_ptr<PanelTwin> makeTwin(QScreen& screen);
    void follow(const QRect& place);
    void beginFollowing();
    void endFollowing();
    void raise();

    PanelDelegate& m_delegate;
    WaylandParts& m_parts;
    WaylandCanvas* m_canvas; ///< the surface's
    LayerWindow m_window;
    WindowLevel m_level = WindowLevel::desktop;
    double m_opacity = 1;
    std::unique_ptr<PixelBuffer> m_nothing; ///< what the window shows while a ghost stands in for it
    std::unique_ptr<DragGhost> m_ghost;
    DragCatcher m_catcher;
    std::vector<std::unique_ptr<PanelTwin>> m_twins; ///< one for each further screen
    std::unique_ptr<PanelTwin> m_heldTwin; ///< was moved away from under the button that is held on it
};

} // namespace ambrelle
