// SPDX-License-Identifier: MIT

#include "platform/network/QtHttpClient.h"

#include "foundation/Wording.h"
#include "platform/network/HttpTransfer.h"

#include <QFuture>
#include <QNetworkAccessManager>
#include <QPromise>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QThreadPool>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

QtHttpClient::QtHttpClient(std::chrono::milliseconds timeOut)
    : m_timeOut(timeOut)
{
}

QtHttpClient::~QtHttpClient() = default;

void QtHttpClient::get(const QUrl& url, qint64 mostBytes, QObject* context, Done done)
{
    if (!mayFetch(url)) {
        const HttpAnswer refusal{{}, Wording::tr("The address “%1” is not secure.").arg(url.host())};
        QMetaObject::invokeMethod(
            context, [done = std::move(done), refusal] { done(refusal); }, Qt::QueuedConnection);
        return;
    }
    if (m_encrypts || url.scheme() != "https"_L1) {
        request(url, mostBytes, context, std::move(done));
        return;
    }
    m_waiting.append([this, url, mostBytes, context = QPointer(context), done = std::move(done)] {
        if (context)
            request(url, mostBytes, context, done);
    });
    if (m_waiting.size() == 1)
        prepareEncryption();
}

// Loading the encryption takes longer than a frame, so another thread does it.
void QtHttpClient::prepareEncryption()
{
    const auto loaded = std::make_shared<QPromise<void>>();
    loaded->start();
    loaded->future().then(this, [this] {
        m_encrypts = true;
        for (const auto& start : std::exchange(m_waiting, {}))
            start();
    });
    QThreadPool::globalInstance()->start([loaded] {
        QSslSocket::supportsSsl();
        QSslConfiguration::defaultConfiguration();
        loaded->finish();
    });
}

void QtHttpClient::request(const QUrl& url, qint64 mostBytes, QObject* context, Done done)
{
    if (!m_manager)
        m_manager = std::make_unique<QNetworkAccessManager>();
    ++m_open;
    const auto* transfer = new HttpTransfer(*m_manager, url, {mostBytes, m_timeOut}, context, std::move(done));
    connect(transfer, &HttpTransfer::ended, this, [this] {
        if (--m_open == 0)
            m_manager.release()->deleteLater();
    });
}

} // namespace ambrelle
