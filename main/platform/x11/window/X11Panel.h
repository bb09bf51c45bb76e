// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/PanelSurface.h"
#include "platform/WindowHost.h"
#include "platform/x11/window/X11Parts.h"

#include <QTimer>

#include <functional>
#include <optional>

namespace ambrelle {

/// A panel as a window that the window manager knows as part of the desktop, or as a dock above the other windows; past
/// a window manager that keeps no such windows, one that the X server alone knows.
class X11Panel final : public PanelWindow {
public:
    /// A scene stands below all panels of the desktop level, whose level it keeps.
    enum class Rank { scene, panel };

    X11Panel(PanelDelegate& delegate, X11Parts& parts, Rank rank = Rank::panel);
    ~X11Panel() override;

    void setFrame(const QRectF& frame) override;
    QRectF frame() const override { return m_frame; }
    void show() override;
    void hide() override;
    void setLevel(WindowLevel level) override;
    void setOpacity(double opacity) override;
    void setClickThrough(bool through) override;
    void setInputArea(const QRectF& area) override;
    void setOutline(const QList<RoundedArea>& areas) override;
    void update(const QRectF& area) override { m_surface->repaint(area); }
    double pixelRatio() const override { return m_surface->devicePixelRatio(); }
    void namesChanged() override { m_surface->namesChanged(); }

    xcb_window_t window() const { return m_window; }
    PanelSurface& surface() const { return *m_surface; }
    WindowLevel level() const { return m_level; }
    bool isScene() const { return m_rank == Rank::scene; }
    bool isShown() const { return m_surface->isVisible(); }
    bool isOnScreen() const { return m_surface->isExposed(); } ///< painted at least once since it was shown
    void place(); ///< puts the window where its frame says, after the screens have moved
    /// Tells a new window manager what the window is, or takes the window out of its hands.
    void redress();
    void remap(); ///< puts the window on top of its layer, where the window manager has no better way
    /// From now on nothing of it is seen before release(), which comes after a while in any case: a window manager puts
    /// new windows above the others.
    void holdBack();
    void release();
    bool isHeldBack() const { return m_holding.isActive(); }
    void groundChanged(); ///< the compositor came or went, or the desktop picture changed

    std::function<void(X11Panel*)> onDestroyed;

private:
    void dress();
    void describe();
    void announce();
    void applyInput();
    void applyShape();
    StackedWindow::Kind stackedKind() const;

    PanelSurface* m_surface; ///< deletes itself once retired
    X11Parts& m_parts;
    Rank m_rank;
    xcb_window_t m_window;
    QRectF m_frame;
    WindowLevel m_level = WindowLevel::desktop;
    double m_opacity = 1;
    bool m_bypassed = false; ///< no window manager has to do with the window
    QTimer m_return; ///< while it changes hands
    QTimer m_holding; ///< while it is held back
    bool m_clickThrough = false;
    bool m_shaped = false;
    bool m_wasShown = false; ///< once before, so that a window manager may still take states away
    std::optional<QRectF> m_inputArea;
    QList<RoundedArea> m_outline;
};

} // namespace ambrelle
