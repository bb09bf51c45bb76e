// SPDX-License-Identifier: MIT

#pragma once

#include "platform/ReleaseServer.h"

#include <QtGlobal>

#include <chrono>

namespace ambrelle {

/// Fetches over the network module, with a connection and a thread of its own for each call. The signature of an
/// archive lies beside it, under its name with ".minisig" added.
class HttpsReleaseServer final : public ReleaseServer {
public:
    struct Limits {
        std::chrono::milliseconds document = std::chrono::seconds(20); ///< for all of the feed, or of a signature
        std::chrono::milliseconds silence = std::chrono::seconds(20); ///< nothing comes of an archive
        std::chrono::milliseconds archive = std::chrono::minutes(30); ///< for all of it
        qint64 feedBytes = 64 * 1024;
        qint64 signatureBytes = 2 * 1024;
        qint64 archiveBytes = 300'000'000;
    };

    explicit HttpsReleaseServer(const Limits& limits);
    HttpsReleaseServer()
        : HttpsReleaseServer(Limits())
    {
    }

    /// Of a feed that is too large a byte more than may be comes; what came with another status than 200 is left out.
    FeedAnswer feed(const QUrl& url, const std::stop_token& stop) override;
    std::optional<FetchedArchive> fetch(const QUrl& url, int descriptor, const std::stop_token& stop) override;

private:
    const Limits m_limits;
};

} // namespace ambrelle
