// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/PanelSurface.h"
#include "platform/wayland/window/DragGhost.h"
#include "platform/wayland/window/LayerWindow.h"
#include "platform/wayland/window/WaylandCanvas.h"

namespace ambrelle {

/// A panel as a surface of the bottom or top layer.
class WaylandPanel final : public PanelWindow {
public:
    /// A scene stands below all panels of the desktop level, whose level it keeps.
    enum class Rank { scene, panel };

    WaylandPanel(PanelDelegate& delegate, WaylandParts& parts, Rank rank = Rank::panel);
    ~WaylandPanel() override;

    void setFrame(const QRectF& frame) override;
    QRectF frame() const override { return m_frame; }
    void show() override;
    void hide() override;
    void setLevel(WindowLevel level) override;
    void setOpacity(double opacity) override;
    void setClickThrough(bool through) override;
    void setInputArea(const QRectF& area) override;
    void setOutline(const QList<RoundedArea>&) override { } // something always composites
    void update(const QRectF& area) override { m_surface->repaint(area); }
    double pixelRatio() const override { return m_surface->devicePixelRatio(); }
    void namesChanged() override { m_surface->namesChanged(); }

    bool isShown() const { return m_surface->isVisible(); }
    PanelSurface& surface() const { return *m_surface; }
    void place(); ///< puts the window where its frame says, after the screens have moved

    std::function<void(WaylandPanel*)> onDestroyed;

private:
    static PanelSurface* makeSurface(PanelDelegate& delegate, WaylandParts& parts, Rank rank, WaylandCanvas*& canvas);
    QRect wantedPlace() const;
    ShellLayer layer() const;
    void applyInput();
    void follow(const QRect& place);
    void beginFollowing();
    void endFollowing();

    WaylandParts& m_parts;
    WaylandCanvas* m_canvas = nullptr; ///< the surface's
    PanelSurface* m_surface; ///< deletes itself once retired
    LayerWindow m_window;
    QRectF m_frame;
    WindowLevel m_level = WindowLevel::desktop;
    bool m_clickThrough = false;
    std::optional<QRectF> m_inputArea;
    std::unique_ptr<PixelBuffer> m_nothing; ///< what the window shows while a ghost stands in for it
    std::unique_ptr<DragGhost> m_ghost;
};

} // namespace ambrelle
