// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/RootWatch.h"
#include "platform/x11/window/RestackBudget.h"
#include "platform/x11/window/X11Backdrop.h"
#include "platform/x11/window/X11Panel.h"

#include <QElapsedTimer>
#include <QTimer>

namespace ambrelle {

/// Keeps panels of the desktop level above scenes, and both above the desktop windows of file managers and shells, some
/// of which rise when they are clicked or start later, and those of the floating level above the backdrops, which get
/// the focus. Where no window manager keeps panels it keeps them in their place among all windows.
class StackingGuard final : public QObject {
public:
    StackingGuard(
        RootWatch& watch, const X11Parts& parts, const QList<X11Panel*>& panels, const QList<X11Backdrop*>& backdrops);

    void schedule(); ///< looks once the order has been quiet for a moment

private:
    void check();
    void checkManaged();
    QList<X11Panel*> panelsInOrder(const std::vector<uint32_t>& stacking, WindowLevel level) const;
    bool isForeignDesktopAbove(const std::vector<uint32_t>& stacking, const QList<X11Panel*>& panels) const;
    bool isBackdropAbove(const std::vector<uint32_t>& stacking, const QList<X11Panel*>& panels) const;
    bool mayRestack();
    void restack(const QList<X11Panel*>& panels) const;

    RootWatch& m_watch;
    const X11Parts& m_parts;
    const QList<X11Panel*>& m_panels;
    const QList<X11Backdrop*>& m_backdrops;
    QTimer m_quiet;
    QTimer m_later;
    QElapsedTimer m_time;
    RestackBudget m_budget;
};

} // namespace ambrelle
