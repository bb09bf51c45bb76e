// SPDX-License-Identifier: MIT

#include "platform/linux/picture/ConnectedScreens.h"

#include <QGuiApplication>
#include <QScreen>

namespace ambrelle {

QList<ConnectedScreen> connectedScreens()
{
    QList<ConnectedScreen> screens;
    for (const QScreen* screen : QGuiApplication::screens())
        screens.append({screen->name(), screen->geometry().topLeft()});
    return screens;
}

} // namespace ambrelle
