// SPDX-License-Identifier: MIT

#include "platform/network/HttpsDownload.h"

#include "platform/network/BareRequest.h"
#include "platform/ReleaseServer.h"

#include <QEventLoop>
#include <QNetworkReply>
#include <QTimer>

#include <algorithm>
#include <memory>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int fullAnswer = 200;
constexpr qint64 pieceBytes = 64 * 1024;
constexpr qint64 aheadBytes = 1024 * 1024; // that may wait to be taken

int statusOfReply(const QNetworkReply& reply)
{
    return reply.attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
}

QNetworkRequest downloadRequest(const QUrl& url, std::chrono::milliseconds silence)
{
    QNetworkRequest request = bareRequest(url);
    request.setAttribute(QNetworkRequest::CacheLoadControlAttribute, QNetworkRequest::AlwaysNetwork);
    request.setAttribute(QNetworkRequest::CacheSaveControlAttribute, false);
    request.setRawHeader("Cache-Control", "no-cache");
    request.setRawHeader("Accept-Encoding", "identity"); // else the module unpacks, and other bytes are summed up
    request.setTransferTimeout(static_cast<int>(silence.count()));
    return request;
}

/// What is read of one reply, and how that goes.
struct Reading {
    QNetworkReply& reply;
    const HttpsDownload::Take& take;
    qint64 left; // bytes that may come
    bool refused = false; // by whoever takes it
    bool full = false;

    /// False: there is no sense in reading on.
    bool goOn()
    {
        while (left > 0 && reply.bytesAvailable() > 0) {
            const QByteArray piece = reply.read(std::min(left, pieceBytes));
            left -= piece.size();
            if (!take(piece)) {
                refused = true;
                return false;
            }
        }
        full = left == 0;
        return !full;
    }
    /// Reads what is left of a reply that has ended; whether everything was taken, up to the bound.
    bool finish()
    {
        if (!refused && !full)
            goOn();
        return !refused && (full || reply.error() == QNetworkReply::NoError);
    }
};

} // namespace

std::optional<int> HttpsDownload::run(const QUrl& url, const Take& take, const std::stop_token& stop)
{
    QEventLoop loop;
    QTimer deadline;
    bool isOver = false;
    deadline.setSingleShot(true);
    QObject::connect(&deadline, &QTimer::timeout, &loop, [&] {
        isOver = true;
        loop.quit();
    });
    deadline.start(m_bounds.time);
    const std::stop_callback stopping(
        stop, [&loop] { QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection); });
    QUrl next = url;
    for (int redirects = 0; redirects <= mostRedirects && isSecureAddress(next); ++redirects) {
        const std::unique_ptr<QNetworkReply> reply(m_manager.get(downloadRequest(next, m_bounds.silence)));
        reply->setReadBufferSize(aheadBytes);
        Reading reading{*reply, take, m_bounds.bytes + 1};
        QObject::connect(reply.get(), &QNetworkReply::readyRead, &loop, [&] {
            if (statusOfReply(*reply) == fullAnswer && !reading.goOn())
                loop.quit();
        });
        // What else an answer says is not waited for: its status, or where to go.
        QObject::connect(reply.get(), &QNetworkReply::metaDataChanged, &loop, [&] {
            if (statusOfReply(*reply) != fullAnswer)
                loop.quit();
        });
        QObject::connect(reply.get(), &QNetworkReply::finished, &loop, &QEventLoop::quit);
        loop.exec();
        QObject::disconnect(reply.get(), nullptr, &loop, nullptr);
        if (isOver || stop.stop_requested())
            return std::nullopt;
        const int status = statusOfReply(*reply);
        if (status == fullAnswer)
            return reading.finish() ? std::optional(status) : std::nullopt;
        if (const QUrl target = reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
            !target.isEmpty()) {
            next = next.resolved(target);
            continue;
        }
        return status > 0 ? std::optional(status) : std::nullopt;
    }
    return std::nullopt;
}

} // namespace ambrelle
