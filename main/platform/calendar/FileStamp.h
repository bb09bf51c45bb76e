// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

namespace ambrelle {

/// Tells whether a file is still the one that was read.
struct FileStamp {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0; ///< bytes
    qint64 modified = 0; ///< nanoseconds since 1970
    qint64 changed = 0; ///< its inode; likewise

    bool operator==(const FileStamp&) const = default;

    /// None unless it is an ordinary file, perhaps behind links.
    static std::optional<FileStamp> of(const QString& path);
};

/// The file's content; none when it cannot be read, is not an ordinary file or has more than `mostBytes`.
std::optional<QByteArray> boundedContent(const QString& path, qint64 mostBytes);

} // namespace ambrelle
