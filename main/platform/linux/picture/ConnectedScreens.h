// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QPoint>
#include <QString>

#include <functional>

namespace ambrelle {

struct ConnectedScreen {
    QString connector;
    QPoint corner; ///< the upper left one, in a space that keeps the screens' order
};

using ListScreens = std::function<QList<ConnectedScreen>()>;

/// The screens as the toolkit knows them; on the main thread only.
QList<ConnectedScreen> connectedScreens();

} // namespace ambrelle
