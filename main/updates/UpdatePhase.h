// SPDX-License-Identifier: MIT

#pragma once

#include "updates/UpdateError.h"

namespace ambrelle {

/// How far an update is.
struct UpdatePhase {
    enum class Kind { idle, checking, upToDate, available, downloading, installing, failed };

    Kind kind = Kind::idle;
    QString message{}; ///< why it failed; empty otherwise

    bool operator==(const UpdatePhase&) const = default;

    static UpdatePhase failed(const UpdateError& error) { return {Kind::failed, error.message}; }
    bool isBusy() const { return kind == Kind::checking || kind == Kind::downloading || kind == Kind::installing; }
};

} // namespace ambrelle
