// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HttpClient.h"
#include "platform/network/HttpTransfer.h"
#include "platform/network/PublicAddress.h"

#include <chrono>
#include <memory>

class QNetworkAccessManager;

namespace ambrelle {

/// Requests over the network module. Its thread and its connections exist only while documents are fetched, so that no
/// request meets a connection that died while the machine slept.
class QtHttpClient final : public HttpClient {
    Q_OBJECT
public:
    /// `timeOut` is for a whole answer; `isPublic` tells which addresses getPublic() may go to.
    explicit QtHttpClient(
        std::chrono::milliseconds timeOut = std::chrono::seconds(20),
        MayConnect isPublic = [](const QHostAddress& address) { return isPublicAddress(address); });
    ~QtHttpClient() override;

    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    void get(const QUrl& url, qint64 mostBytes, QObject* context, Done done) override;
    void getPublic(const QUrl& url, qint64 mostBytes, QObject* context, Done done) override;

    bool isIdle() const { return !m_manager; } ///< nothing is held for the network

private:
    void fetch(const QUrl& url, const HttpTransfer::Bounds& bounds, QObject* context, Done done);
    void prepareEncryption();
    void request(const QUrl& url, const HttpTransfer::Bounds& bounds, QObject* context, Done done);

    std::chrono::milliseconds m_timeOut;
    MayConnect m_isPublic;
    std::unique_ptr<QNetworkAccessManager> m_manager; // while there are requests
    int m_open = 0; // requests without an answer
    bool m_encrypts = false; // the encryption is loaded
    QList<std::function<void()>> m_waiting; // for that
};

} // namespace ambrelle
