// SPDX-License-Identifier: MIT

#include "platform/network/HttpsReleaseServer.h"

#include "platform/network/HttpsDownload.h"

#include <QCryptographicHash>

#include <cerrno>

#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int wholeAnswer = 200;

bool writeWhole(int descriptor, const QByteArray& bytes)
{
    qsizetype written = 0;
    while (written < bytes.size()) {
        const ssize_t count =
            ::write(descriptor, bytes.constData() + written, static_cast<size_t>(bytes.size() - written));
        if (count < 0 && errno == EINTR)
            continue;
        if (count <= 0)
            return false;
        written += count;
    }
    return true;
}

QUrl signatureOf(const QUrl& archive)
{
    QUrl url = archive;
    url.setPath(archive.path(QUrl::FullyEncoded) + u".minisig"_s, QUrl::StrictMode);
    return url;
}

} // namespace

HttpsReleaseServer::HttpsReleaseServer(const Limits& limits)
    : m_limits(limits)
{
}

FeedAnswer HttpsReleaseServer::feed(const QUrl& url, const std::stop_token& stop)
{
    FeedAnswer answer;
    HttpsDownload download({.time = m_limits.document, .bytes = m_limits.feedBytes});
    const auto take = [&answer](const QByteArray& bytes) {
        answer.body += bytes;
        return true;
    };
    const std::optional<int> status = download.run(url, take, stop);
    if (!status)
        return {};
    answer.arrived = true;
    answer.status = *status;
    return answer;
}

std::optional<FetchedArchive> HttpsReleaseServer::fetch(const QUrl& url, int descriptor, const std::stop_token& stop)
{
    // First, since it is small: without it the archive is worth nothing.
    FetchedArchive fetched;
    HttpsDownload small({.time = m_limits.document, .bytes = m_limits.signatureBytes});
    const auto takeSignature = [&](const QByteArray& bytes) {
        fetched.signature += bytes;
        return fetched.signature.size() <= m_limits.signatureBytes;
    };
    if (small.run(signatureOf(url), takeSignature, stop) != wholeAnswer)
        return std::nullopt;

    QCryptographicHash sum(QCryptographicHash::Sha256);
    qint64 size = 0;
    HttpsDownload large({.time = m_limits.archive, .silence = m_limits.silence, .bytes = m_limits.archiveBytes});
    const auto takeArchive = [&](const QByteArray& bytes) {
        sum.addData(bytes);
        size += bytes.size();
        return size <= m_limits.archiveBytes && writeWhole(descriptor, bytes);
    };
    if (large.run(url, takeArchive, stop) != wholeAnswer)
        return std::nullopt;
    fetched.sha256 = QString::fromLatin1(sum.result().toHex());
    return fetched;
}

} // namespace ambrelle
