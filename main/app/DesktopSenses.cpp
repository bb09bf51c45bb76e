#include "app/DesktopSenses.h"

#include "platform/x11/X11WindowHost.h"

namespace ambrelle {

namespace {

WindowList& windowsOf(WindowHost& host, WindowList& none)
{
    auto* x11 = qobject_cast<X11WindowHost*>(&host);
    return x11 ? x11->windowList() : none;
}

QList<const SessionVisibility*> parts(WindowHost& host, const SessionVisibility& bus)
{
    auto* x11 = qobject_cast<X11WindowHost*>(&host);
    return x11 ? QList<const SessionVisibility*>{&bus, &x11->sessionVisibility()} : QList{&bus};
}

} // namespace

DesktopSenses::DesktopSenses(WindowHost& host)
    : m_windows(windowsOf(host, m_noWindows))
    , m_visibility(parts(host, m_bus))
{
}

} // namespace ambrelle
