// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Wording.h"

namespace ambrelle {

/// Why a check or an update came to nothing, as the user reads it.
struct UpdateError {
    QString message;

    bool operator==(const UpdateError&) const = default;

    static UpdateError unreachable() { return {Wording::tr("Couldn't check for updates. Are you online?")}; }
    static UpdateError wrongAnswer() { return {Wording::tr("The update server didn't answer.")}; }
    static UpdateError notSecure() { return {Wording::tr("The update isn't served securely.")}; }
    static UpdateError downloadFailed() { return {Wording::tr("The download failed.")}; }
    static UpdateError wrongChecksum()
    {
        return {Wording::tr("The download didn't match its checksum, so it wasn't installed.")};
    }
    static UpdateError otherRelease() { return {Wording::tr("The download isn't the expected version of Ambrelle.")}; }
    static UpdateError notVerified() { return {Wording::tr("The update couldn't be unpacked or verified.")}; }
    static UpdateError notWritable(const QString& folder)
    {
        return {
            Wording::tr("Ambrelle can't write to %1. Download the new version from the website instead.").arg(folder)};
    }
    static UpdateError notInstalled() { return {Wording::tr("The update couldn't be installed.")}; }
};

} // namespace ambrelle
