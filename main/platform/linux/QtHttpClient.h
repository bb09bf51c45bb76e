#pragma once

#include "platform/HttpClient.h"

#include <QTimer>

#include <chrono>
#include <memory>

class QNetworkAccessManager;

namespace ambrelle {

/// Requests over the network module. It and its thread exist only while documents are fetched and a little longer.
class QtHttpClient final : public HttpClient {
    Q_OBJECT
public:
    using Milliseconds = std::chrono::milliseconds;

    /// `timeOut` is for a whole answer; after `linger` without a request the connections are closed.
    explicit QtHttpClient(
        Milliseconds timeOut = std::chrono::seconds(20), Milliseconds linger = std::chrono::minutes(2));
    ~QtHttpClient() override;

    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    void get(const QUrl& url, qint64 mostBytes, QObject* context, Done done) override;

    bool isIdle() const { return !m_manager; } ///< nothing is held for the network

private:
    QNetworkAccessManager& manager();

    Milliseconds m_timeOut;
    std::unique_ptr<QNetworkAccessManager> m_manager; // made when needed
    int m_open = 0; // requests without an answer
    QTimer m_linger;
};

} // namespace ambrelle
