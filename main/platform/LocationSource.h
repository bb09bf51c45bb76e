// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

namespace ambrelle {

/// Whether the user lets the program know where the machine is.
enum class LocationAuthorization {
    undetermined, ///< nobody was asked yet; a request asks
    restricted, ///< the administrator forbids it
    denied, ///< the user forbids it, or nothing on this machine knows
    authorized,
};

/// Where the machine is.
struct Location {
    double latitude = 0; ///< degrees, north positive
    double longitude = 0; ///< degrees, east positive
    QString place{}; ///< what the source calls the place; mostly empty

    bool operator==(const Location&) const = default;
};

/// Tells where the machine is, to about three kilometres, when asked.
class LocationSource : public Port {
    Q_OBJECT
public:
    /// Told by changed() when it is another.
    virtual LocationAuthorization authorization() const = 0;

    /// Asks for one location, and before that for permission if nobody was asked yet. Either located() or failed()
    /// follows later, unless permission is refused; requests made meanwhile share that answer.
    virtual void requestLocation() = 0;

Q_SIGNALS:
    void located(const ambrelle::Location& location);
    void failed();
};

} // namespace ambrelle
