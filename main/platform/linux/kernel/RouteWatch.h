// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/kernel/NetlinkSocket.h"

#include <QObject>

namespace ambrelle {

/// Notices that the machine got a way to other networks, whoever manages them: the kernel tells of new default routes.
class RouteWatch : public QObject {
    Q_OBJECT
public:
    RouteWatch();

    /// Whether one of these messages of the kernel's tells of a new route to everywhere. Damaged ones tell nothing.
    static bool tellsWayOut(std::span<const char> messages);

Q_SIGNALS:
    void wayOutCame();

private:
    NetlinkSocket m_socket;
};

} // namespace ambrelle
