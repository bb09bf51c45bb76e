// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/BackdropSurface.h"
#include "platform/WindowHost.h"
#include "platform/x11/window/X11Parts.h"

#include <functional>

namespace ambrelle {

/// A backdrop as a normal window that task bars and pagers leave out; as with a panel, past some window managers.
class X11Backdrop final : public BackdropWindow, public GroundShade {
public:
    X11Backdrop(BackdropDelegate& delegate, X11Parts& parts);
    ~X11Backdrop() override;

    void setFrame(const QRectF& screen) override;
    QRectF frame() const override { return m_frame; }
    void show() override;
    void takeFocus() override;
    void update() override { m_surface->updateAll(); }

    xcb_window_t window() const { return m_window; }
    void shade(QPainter& painter, const QPoint& origin) const override;
    void groundChanged() { m_surface->updateAll(); } ///< the desktop picture or the need for it has changed
    void redress(); ///< tells a new window manager what the window is

    std::function<void()> onShown;
    std::function<void(X11Backdrop*)> onDestroyed;

private:
    void dress();
    void announce() const;
    void appeared();
    void activate();
    void takeKeyboard();
    void returnKeyboard() const;

    BackdropSurface* m_surface; ///< deletes itself once retired
    X11Parts& m_parts;
    xcb_window_t m_window;
    QRectF m_frame;
    bool m_wantsFocus = false;
    bool m_bypassed = false; ///< no window manager has to do with the window
    xcb_window_t m_formerFocus = XCB_WINDOW_NONE; ///< what had the keyboard, while the backdrop has it
};

} // namespace ambrelle
