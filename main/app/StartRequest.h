// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QStringList>

#include <optional>

namespace ambrelle {

/// What a start of the program, or a call from outside, asks the running one to do. Without files and without an action
/// it is to show itself.
struct StartRequest {
    static constexpr qsizetype longestToken = 512; ///< letters; a longer one is none

    QStringList files; ///< absolute paths
    QString action; ///< the name of a QuickAction; anything else does nothing
    QString token; ///< from the desktop, so that a window opened for this may take the focus

    bool operator==(const StartRequest&) const = default;

    /// As one line for another process. Relative paths are taken from the current folder.
    QByteArray encoded() const;
    /// None for what is no request. In it, paths that are not absolute and tokens that can be none are left out. A list
    /// of paths alone is understood too.
    static std::optional<StartRequest> decoded(const QByteArray& message);
    /// The token that the desktop started this process with. It is for this process alone: what it starts does not
    /// inherit it.
    static QString takeToken();
};

} // namespace ambrelle
