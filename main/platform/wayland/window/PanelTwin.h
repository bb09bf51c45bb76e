// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/PanelSurface.h"
#include "platform/wayland/connection/PixelBuffer.h"
#include "platform/wayland/window/DragCatcher.h"
#include "platform/wayland/window/LayerWindow.h"
#include "platform/wayland/window/WaylandCanvas.h"

namespace ambrelle {

/// What shows of a panel on one more screen, since a surface belongs to one output: a second window at the panel's
/// place, as fine as that screen, which hears the pointer there. To the panel's delegate both are one.
class PanelTwin final : public PanelDelegate {
public:
    PanelTwin(PanelDelegate& panel, WaylandParts& parts, QScreen& screen, ShellLayer layer);
    ~PanelTwin() override;
    Q_DISABLE_COPY_MOVE(PanelTwin)

    const QScreen* screen() const { return m_screen; } ///< null once it has gone
    /// The panel's corner in the toolkit's points, and its size before it is rounded to pixels. Shows it.
    void setPlace(const QPoint& corner, const QSizeF& size);
    void setLayer(ShellLayer layer) { m_window.setLayer(layer); }
    void setOpacity(double opacity);
    void setInputArea(const std::optional<QRect>& area) { m_window.setInputArea(area); } ///< as LayerWindow has it
    void update(const QRectF& area) { m_surface->repaint(area); }

    PanelSurface& surface() const { return *m_surface; }
    void raise() { m_window.raise(); }
    /// Shows nothing any more, and still hears of the button that is held on it.
    void vanish();

    void paint(QPainter& painter, const QRectF& area) override { m_panel.paint(painter, area); }
    void pointerPressed(const PointerEvent& event) override { m_panel.pointerPressed(event); }
    void pointerMoved(const PointerEvent& event) override { m_panel.pointerMoved(event); }
    void pointerReleased(const PointerEvent& event) override { m_panel.pointerReleased(event); }
    void pointerEntered() override { m_panel.pointerEntered(); }
    void pointerLeft() override { m_panel.pointerLeft(); }
    void appearanceChanged() override { m_surface->updateAll(); }

private:
    PanelDelegate& m_panel;
    WaylandParts& m_parts;
    QPointer<QScreen> m_screen;
    WaylandCanvas* m_canvas; ///< the surface's
    PanelSurface* m_surface; ///< deletes itself once retired
    LayerWindow m_window;
    DragCatcher m_catcher;
    QPoint m_corner;
    QSizeF m_size;
    bool m_vanished = false;
    std::unique_ptr<PixelBuffer> m_nothing; ///< what it shows then
};

} // namespace ambrelle
