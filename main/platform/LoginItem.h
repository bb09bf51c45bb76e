// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Wording.h"
#include "platform/Port.h"

namespace ambrelle {

/// Whether the program is started when the user logs in.
class LoginItem : public Port {
public:
    enum class Status { enabled, disabled, unavailable };

    bool isAvailable() const final { return status() != Status::unavailable; }
    virtual Status status() const = 0; ///< as the system has it now, whoever set it

    /// Empty on success; else a sentence that begins with refusal() and goes on with the reason.
    virtual QString setEnabled(bool enabled) = 0;

    static QString refusal() { return Wording::tr("Couldn't change the login item"); }
};

} // namespace ambrelle
