// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QTemporaryFile>

#include <memory>
#include <sys/types.h>
#include <xcb/xcb.h>

namespace ambrelle {

/// An X server of the program's own, which shows nothing to anybody and lets nobody else in. It ends with this object,
/// and with the program.
class PrivateDisplay {
public:
    /// Null where no such server is installed, or none starts. From then on the process is on that display. Needs no
    /// application object.
    static std::shared_ptr<PrivateDisplay> start();
    ~PrivateDisplay();
    PrivateDisplay(const PrivateDisplay&) = delete;
    PrivateDisplay& operator=(const PrivateDisplay&) = delete;

private:
    PrivateDisplay() = default;
    bool writeCookie();
    bool run();

    QTemporaryFile m_cookie;
    pid_t m_server = 0;
    QByteArray m_name;
    xcb_connection_t* m_connection = nullptr; ///< keeps the server
};

} // namespace ambrelle
