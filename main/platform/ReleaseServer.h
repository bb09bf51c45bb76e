// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>
#include <QString>
#include <QUrl>

#include <optional>
#include <stop_token>

namespace ambrelle {

/// Whether a release may be fetched from there.
inline bool isSecureAddress(const QUrl& url)
{
    using namespace Qt::StringLiterals;
    return url.isValid() && url.scheme() == "https"_L1 && !url.host().isEmpty();
}

/// What the server said of the latest release.
struct FeedAnswer {
    bool arrived = false; ///< false: there was no way to the server, or none that is safe
    int status = 0; ///< of HTTP, after redirects
    QByteArray body;

    bool operator==(const FeedAnswer&) const = default;
};

/// An archive that came whole, as the server sees it.
struct FetchedArchive {
    QString sha256; ///< of its bytes, hexadecimal in lower case
    QByteArray signature; ///< the file that lies beside it on the server

    bool operator==(const FetchedArchive&) const = default;
};

/// Fetches releases of the program. HTTPS only, at every hop and on this machine too. Every function blocks, is called
/// on a thread of its own, and returns within a tenth of a second once it is asked to stop.
class ReleaseServer {
public:
    virtual ~ReleaseServer() = default;

    /// Past all caches, within 20 seconds and 64 KB.
    virtual FeedAnswer feed(const QUrl& url, const std::stop_token& stop) = 0;
    /// Writes the archive at `url` into the open file `descriptor`. None: it, or its signature, did not come whole.
    virtual std::optional<FetchedArchive> fetch(const QUrl& url, int descriptor, const std::stop_token& stop) = 0;
};

} // namespace ambrelle
