// SPDX-License-Identifier: MIT

#include "platform/x11/connection/ToolkitConnection.h"

#include <QGuiApplication>

#include <cstdlib>

namespace ambrelle {

xcb_connection_t* toolkitConnection()
{
    const auto* x11 = qGuiApp ? qGuiApp->nativeInterface<QNativeInterface::QX11Application>() : nullptr;
    return x11 ? x11->connection() : nullptr;
}

int toolkitScreen()
{
    char* host = nullptr;
    int display = 0;
    int screen = 0;
    if (xcb_parse_display(nullptr, &host, &display, &screen) == 0)
        return 0;
    std::free(host);
    return screen;
}

} // namespace ambrelle
