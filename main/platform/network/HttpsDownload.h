// SPDX-License-Identifier: MIT

#pragma once

#include <QNetworkAccessManager>
#include <QUrl>

#include <chrono>
#include <functional>
#include <optional>
#include <stop_token>

namespace ambrelle {

/// One document over HTTPS, with the redirects it meets, on the calling thread, which waits. None of its connections
/// are ever plain.
class HttpsDownload {
public:
    struct Bounds {
        std::chrono::milliseconds time; ///< for everything
        std::chrono::milliseconds silence{0}; ///< the longest time without a byte; 0: as long as there is time
        qint64 bytes; ///< one more is taken, to be told from as many
    };
    /// Takes the next bytes; false ends the download.
    using Take = std::function<bool(const QByteArray& bytes)>;

    explicit HttpsDownload(const Bounds& bounds)
        : m_bounds(bounds)
    {
    }

    /// The status of the answer that came at the end of all redirects. None: there was no way there, it did not come
    /// whole, or it was stopped. With status 200 everything was taken, up to the bound.
    std::optional<int> run(const QUrl& url, const Take& take, const std::stop_token& stop);

private:
    const Bounds m_bounds;
    QNetworkAccessManager m_manager;
};

} // namespace ambrelle
