#pragma once

#include "app/JointVisibility.h"
#include "desktop/OverlapWatcher.h"
#include "platform/headless/HeadlessWindowList.h"
#include "platform/linux/bus/BusSessionVisibility.h"
#include "platform/WindowHost.h"

namespace ambrelle {

/// What the widgets of that host can notice of the session round them.
class DesktopSenses {
public:
    explicit DesktopSenses(WindowHost& host);

    OverlapWatcher::Senses senses() { return {m_windows, m_visibility}; }

private:
    HeadlessWindowList m_noWindows;
    WindowList& m_windows;
    BusSessionVisibility m_bus;
    JointVisibility m_visibility;
};

} // namespace ambrelle
