// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowList.h"
#include "platform/x11/connection/RootWatch.h"
#include "platform/x11/window/X11Parts.h"

#include <QSet>
#include <QTimer>

namespace ambrelle {

/// The windows that the window manager lists. Behind XWayland these are only the X windows.
class X11WindowList final : public WindowList {
public:
    explicit X11WindowList(const X11Parts& parts);

    /// Before this the list cannot be had. The watch must be open and outlive this object.
    void attach(RootWatch& watch);

    bool isAvailable() const override { return listed().has_value(); }
    QString whyNot() const override;
    std::optional<QList<OnscreenWindow>> windows() const override;
    void setWatching(bool watching) override;

private:
    std::optional<QList<xcb_window_t>> listed() const;
    bool isOurs(xcb_window_t window) const;
    void rootPropertyChanged(xcb_atom_t name);
    void windowChanged(xcb_atom_t property);
    void tell();
    void follow(const QList<xcb_window_t>& windows);
    void schedule();

    const X11Parts& m_parts;
    RootWatch* m_watch = nullptr;
    bool m_watching = false;
    QSet<xcb_window_t> m_followed;
    QTimer m_pause;
};

} // namespace ambrelle
