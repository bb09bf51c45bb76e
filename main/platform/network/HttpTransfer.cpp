// SPDX-License-Identifier: MIT

#include "platform/network/HttpTransfer.h"

#include "foundation/Wording.h"
#include "platform/network/BareRequest.h"

#include <QHostInfo>
#include <QNetworkReply>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

bool isThisMachine(const QString& host)
{
    return host == "localhost"_L1 || QHostAddress(host).isLoopback();
}

} // namespace

bool mayFetch(const QUrl& url)
{
    if (!url.isValid() || url.host().isEmpty())
        return false;
    return url.scheme() == "https"_L1 || (url.scheme() == "http"_L1 && isThisMachine(url.host()));
}

HttpTransfer::HttpTransfer(
    QNetworkAccessManager& manager, const QUrl& url, const Bounds& bounds, QObject* context, HttpClient::Done done)
    : QObject(&manager)
    , m_manager(manager)
    , m_mayConnect(bounds.mayConnect)
    , m_mostBytes(bounds.bytes)
    , m_context(context)
    , m_done(std::move(done))
{
    connect(context, &QObject::destroyed, this, [this] { end(Wording::tr("Nobody waits for the answer.")); });
    connect(&m_deadline, &QTimer::timeout, this, [this] { end(Wording::tr("The server did not answer in time.")); });
    m_deadline.setSingleShot(true);
    m_deadline.setTimerType(Qt::PreciseTimer);
    m_deadline.start(bounds.time);
    request(url);
}

void HttpTransfer::request(const QUrl& url)
{
    m_url = url;
    m_reply = nullptr;
    m_addresses.clear();
    if (!m_mayConnect)
        send(bareRequest(url));
    else if (const QHostAddress literal(url.host()); !literal.isNull())
        QMetaObject::invokeMethod( // an answer always comes later
            this, [this, literal] { choose({literal}); }, Qt::QueuedConnection);
    else
        QHostInfo::lookupHost(url.host(), this, &HttpTransfer::resolved);
}

void HttpTransfer::resolved(const QHostInfo& host)
{
    if (host.addresses().isEmpty())
        end(Wording::tr("The server %1 was not found.").arg(m_url.host()));
    else
        choose(host.addresses());
}

void HttpTransfer::choose(QList<QHostAddress> addresses)
{
    if (!m_done)
        return; // it ended meanwhile
    if (!std::ranges::all_of(addresses, m_mayConnect)) {
        end(Wording::tr("The server %1 is not on the internet.").arg(m_url.host()));
        return;
    }
    // Where both are told, the older protocol is the one that works everywhere.
    std::ranges::stable_partition(
        addresses, [](const QHostAddress& each) { return each.protocol() == QHostAddress::IPv4Protocol; });
    m_addresses = std::move(addresses);
    connectToNext();
}

/// Asks the host at an address that was looked at: a name looked up again might mean another one. False when there is
/// none left.
bool HttpTransfer::connectToNext()
{
    if (m_addresses.isEmpty())
        return false;
    QUrl target = m_url;
    target.setHost(m_addresses.takeFirst().toString());
    QNetworkRequest request = bareRequest(target);
    request.setPeerVerifyName(m_url.host());
    request.setRawHeader("Host", m_url.authority(QUrl::FullyEncoded).section(u'@', -1).toLatin1());
    send(request);
    return true;
}

void HttpTransfer::send(const QNetworkRequest& request)
{
    m_body.clear();
    if (m_reply)
        m_reply->deleteLater();
    m_reply = m_manager.get(request);
    // One byte more than may come is enough to see that it is too much.
    m_reply->setReadBufferSize(m_mostBytes + 1);
    connect(m_reply, &QNetworkReply::readyRead, this, &HttpTransfer::collect);
    connect(m_reply, &QNetworkReply::finished, this, &HttpTransfer::replyFinished);
}

void HttpTransfer::collect()
{
    m_body += m_reply->read(m_mostBytes + 1 - m_body.size());
    const qint64 announced = m_reply->header(QNetworkRequest::ContentLengthHeader).toLongLong();
    if (m_body.size() > m_mostBytes || announced > m_mostBytes)
        end(Wording::tr("The server's answer is too large."));
}

void HttpTransfer::replyFinished()
{
    if (m_reply->error() != QNetworkReply::NoError) {
        const bool isAnswered = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).isValid();
        if (isAnswered || m_reply->error() == QNetworkReply::SslHandshakeFailedError || !connectToNext())
            end(failure());
        return;
    }
    const QUrl target = m_reply->attribute(QNetworkRequest::RedirectionTargetAttribute).toUrl();
    if (!target.isEmpty()) {
        redirect(m_url.resolved(target));
        return;
    }
    collect();
    end(failure());
}

void HttpTransfer::redirect(const QUrl& target)
{
    if (target.scheme() != "https"_L1) {
        end(Wording::tr("The server points to an address that is not secure."));
    } else if (++m_redirects > mostRedirects) {
        end(Wording::tr("The server points somewhere else again and again."));
    } else {
        m_reply->deleteLater();
        request(target);
    }
}

void HttpTransfer::end(const QString& error)
{
    if (!m_done)
        return;
    const auto done = std::exchange(m_done, nullptr);
    m_deadline.stop();
    if (m_reply) {
        disconnect(m_reply, nullptr, this, nullptr);
        m_reply->abort();
        m_reply->deleteLater();
    }
    deleteLater();
    Q_EMIT ended();
    if (m_context)
        done(error.isEmpty() ? HttpAnswer{m_body, {}} : HttpAnswer{{}, error});
}

QString HttpTransfer::failure() const
{
    const QString host = m_url.host();
    const int status = m_reply->attribute(QNetworkRequest::HttpStatusCodeAttribute).toInt();
    switch (m_reply->error()) {
    case QNetworkReply::NoError:
        if (status >= 200 && status < 300)
            return {};
        break;
    case QNetworkReply::HostNotFoundError: return Wording::tr("The server %1 was not found.").arg(host);
    case QNetworkReply::ConnectionRefusedError: return Wording::tr("The server %1 refuses connections.").arg(host);
    case QNetworkReply::SslHandshakeFailedError:
        return Wording::tr("The connection to %1 would not be secure.").arg(host);
    case QNetworkReply::RemoteHostClosedError: return Wording::tr("The server %1 broke the connection off.").arg(host);
    default: break;
    }
    return status >= 200 ? Wording::tr("The server answered with error %1.").arg(status)
                         : Wording::tr("The server %1 cannot be reached.").arg(host);
}

} // namespace ambrelle
