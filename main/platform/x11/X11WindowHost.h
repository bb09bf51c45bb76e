// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/ToolkitWindowHost.h"
#include "platform/x11/connection/RootWatch.h"
#include "platform/x11/session/X11SessionVisibility.h"
#include "platform/x11/session/X11WindowList.h"
#include "platform/x11/window/PopupShield.h"
#include "platform/x11/window/StackingGuard.h"
#include "platform/x11/window/X11Backdrop.h"
#include "platform/x11/window/X11Panel.h"
#include "platform/x11/window/X11Parts.h"
#include "platform/x11/window/X11Scene.h"

namespace ambrelle {

/// Panels on an X server. Make it after the application object, which must run on the "xcb" platform plugin.
class X11WindowHost final : public ToolkitWindowHost {
public:
    X11WindowHost();
    ~X11WindowHost() override;

    bool isAvailable() const override { return m_parts != nullptr; }
    QString whyNot() const override;
    bool isComposited() const override { return m_parts && m_parts->compositor.isActive(); }
    /// Only while available; the panel must go before the host.
    std::unique_ptr<PanelWindow> makePanel(PanelDelegate& delegate) override;
    std::unique_ptr<BackdropWindow> makeBackdrop(BackdropDelegate& delegate) override; ///< likewise
    std::unique_ptr<SceneWindow> makeScene(OrnamentDelegate& delegate) override; ///< likewise

    bool admit(QWindow& window, const QString& token) override;
    void dismiss(const QString& token) override;

    /// Both only while available. They tell nothing before the first panel has been on the screen for a moment.
    WindowList& windowList() { return *m_windows; }
    SessionVisibility& sessionVisibility() { return m_visibility; }

private:
    ScreenList* screenList() const override { return m_parts ? &m_parts->screens : nullptr; }
    void take(X11Panel& panel);
    void watch();
    void rootPropertyChanged(xcb_atom_t name);
    void groundChanged();
    void shadesChanged();
    void watchManager();
    void managerSettled();
    void screensSettled();

    std::unique_ptr<X11Parts> m_parts;
    QList<X11Panel*> m_panels; ///< scenes too
    QList<X11Backdrop*> m_backdrops;
    std::unique_ptr<PopupShield> m_shield;
    std::unique_ptr<RootWatch> m_watch;
    std::unique_ptr<StackingGuard> m_guard;
    std::unique_ptr<X11WindowList> m_windows;
    X11SessionVisibility m_visibility;
    QTimer m_watchStart;
    qsizetype m_missing = 0; ///< panels that were shown and not on the screen when last looked at
    QTimer m_managerSettling;
    xcb_window_t m_manager = XCB_WINDOW_NONE; ///< the window manager's, whose end is watched
};

} // namespace ambrelle
