// SPDX-License-Identifier: MIT

#include "platform/wayland/connection/ToolkitWayland.h"

#include <QGuiApplication>
#include <QWindow>

#include <qpa/qplatformnativeinterface.h>

namespace ambrelle {

namespace {

QPlatformNativeInterface* native()
{
    const bool runs = qGuiApp && QGuiApplication::platformName().startsWith(QLatin1StringView("wayland"));
    return runs ? QGuiApplication::platformNativeInterface() : nullptr;
}

} // namespace

wl_display* toolkitDisplay()
{
    QPlatformNativeInterface* toolkit = native();
    return toolkit ? static_cast<wl_display*>(toolkit->nativeResourceForIntegration("wl_display")) : nullptr;
}

wl_output* toolkitOutput(QScreen* screen)
{
    QPlatformNativeInterface* toolkit = native();
    return toolkit && screen ? static_cast<wl_output*>(toolkit->nativeResourceForScreen("output", screen)) : nullptr;
}

wl_surface* toolkitSurface(QWindow* window)
{
    QPlatformNativeInterface* toolkit = native();
    return toolkit && window && window->handle()
        ? static_cast<wl_surface*>(toolkit->nativeResourceForWindow("surface", window))
        : nullptr;
}

} // namespace ambrelle
