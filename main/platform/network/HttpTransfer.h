// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HttpClient.h"

#include <QHostAddress>
#include <QNetworkAccessManager>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>

class QHostInfo;
class QNetworkReply;

namespace ambrelle {

using MayConnect = std::function<bool(const QHostAddress& address)>;

/// Whether a request may go to this address: over HTTPS anywhere, over plain HTTP to this machine only.
bool mayFetch(const QUrl& url);

/// One request on its way, with the redirects it meets: collects the body, holds it to its bounds, and answers once. It
/// lives until then.
class HttpTransfer final : public QObject {
    Q_OBJECT
public:
    struct Bounds {
        qint64 bytes;
        std::chrono::milliseconds time; ///< for everything
        MayConnect mayConnect{}; ///< asked about every address of every host on the way; without it, any will do
    };

    HttpTransfer(
        QNetworkAccessManager& manager, const QUrl& url, const Bounds& bounds, QObject* context, HttpClient::Done done);

Q_SIGNALS:
    void ended(); ///< before the answer is given

private:
    void request(const QUrl& url);
    void resolved(const QHostInfo& host);
    void choose(QList<QHostAddress> addresses);
    bool connectToNext();
    void send(const QNetworkRequest& request);
    void collect();
    void replyFinished();
    void redirect(const QUrl& target);
    void end(const QString& error);
    QString failure() const;

    QNetworkAccessManager& m_manager;
    QNetworkReply* m_reply = nullptr; // of the current request, none while its host is looked up
    QUrl m_url; // of the current request, as it was asked for
    QList<QHostAddress> m_addresses; // of its host, still to be tried
    MayConnect m_mayConnect;
    qint64 m_mostBytes;
    QPointer<QObject> m_context;
    HttpClient::Done m_done;
    QByteArray m_body;
    int m_redirects = 0;
    QTimer m_deadline;
};

} // namespace ambrelle
