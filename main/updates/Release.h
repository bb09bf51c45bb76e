// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>

namespace ambrelle {

/// What the feed says of the latest release.
struct Release {
    QString version; ///< dotted numbers
    QUrl url; ///< of the archive; valid, of whatever scheme
    QString sha256; ///< of the archive's bytes, hexadecimal in either case

    bool operator==(const Release&) const = default;

    static constexpr qsizetype largestFeed = 64 * 1024; ///< bytes
    static constexpr qsizetype longestVersion = 64; ///< characters, all of them printable

    /// From the feed's JSON: one object with the three texts; what else is in it does not matter. None: it is larger,
    /// or something else.
    static std::optional<Release> decode(const QByteArray& feed);
};

} // namespace ambrelle
