// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/connection/X11Connection.h"

#include <QByteArray>
#include <QString>

#include <optional>

namespace ambrelle {

/// What a desktop gives a program that it starts for the user, by the protocol of startup notification: a name for the
/// start, with the time of the click that led to it. The connection outlives it.
class StartupToken {
public:
    StartupToken(const X11Connection& connection, const QString& token);

    /// The time of the click, in the server's milliseconds; none when the token does not tell.
    static std::optional<uint32_t> timeIn(const QByteArray& token);

    void mark(xcb_window_t window) const; ///< as the one that the start is about
    /// Asks the window manager for the focus as of the time of the click; false when the token does not tell it.
    bool activate(xcb_window_t window) const;
    void end() const; ///< tells everybody that the start is over

private:
    const X11Connection& m_connection;
    const QByteArray m_token;
};

} // namespace ambrelle
