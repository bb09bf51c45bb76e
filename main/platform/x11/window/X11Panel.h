// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/SurfacePanel.h"
#include "platform/x11/window/X11Parts.h"

#include <QTimer>

#include <functional>

namespace ambrelle {

/// A panel as a window that the window manager knows as part of the desktop, or as a dock above the other windows; past
/// a window manager that keeps no such windows, one that the X server alone knows.
class X11Panel final : public SurfacePanel {
public:
    X11Panel(PanelDelegate& delegate, X11Parts& parts, Rank rank = Rank::panel);
    ~X11Panel() override;

    void show() override;
    void hide() override;
    void setLevel(WindowLevel level) override;
    void setOpacity(double opacity) override;
    void setOutline(const QList<RoundedArea>& areas) override;
    void place() override;

    xcb_window_t window() const { return m_window; }
    WindowLevel level() const { return m_level; }
    bool isOnScreen() const { return surface().isExposed(); } ///< painted at least once since it was shown
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
    void applyInput() override;
    void applyShape();
    StackedWindow::Kind stackedKind() const;

    X11Parts& m_parts;
    xcb_window_t m_window;
    WindowLevel m_level = WindowLevel::desktop;
    double m_opacity = 1;
    bool m_bypassed = false; ///< no window manager has to do with the window
    QTimer m_return; ///< while it changes hands
    QTimer m_holding; ///< while it is held back
    bool m_shaped = false;
    bool m_wasShown = false; ///< once before, so that a window manager may still take states away
    QList<RoundedArea> m_outline;
};

} // namespace ambrelle
