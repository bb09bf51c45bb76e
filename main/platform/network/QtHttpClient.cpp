// SPDX-License-Identifier: MIT

#include "platform/network/QtHttpClient.h"

#include "foundation/Wording.h"

#include <QFuture>
#include <QNetworkAccessManager>
#include <QPromise>
#include <QSslConfiguration>
#include <QSslSocket>
#include <QThreadPool>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

void refuse(const QUrl& url, QObject* context, HttpClient::Done done)
{
    const HttpAnswer refusal{{}, Wording::tr("The address “%1” is not secure.").arg(url.host())};
    QMetaObject::invokeMethod(
        context, [done = std::move(done), refusal] { done(refusal); }, Qt::QueuedConnection);
}

} // namespace

QtHttpClient::QtHttpClient(std::chrono::milliseconds timeOut, MayConnect isPublic)
    : m_timeOut(timeOut)
    , m_isPublic(std::move(isPublic))
{
}

QtHttpClient::~QtHttpClient() = default;

void QtHttpClient::get(const QUrl& url, qint64 mostBytes, QObject* context, Done done)
{
    if (mayFetch(url))
        fetch(url, {.bytes = mostBytes, .time = m_timeOut}, context, std::move(done));
    else
        refuse(url, context, std::move(done));
}

void QtHttpClient::getPublic(const QUrl& url, qint64 mostBytes, QObject* context, Done done)
{
    if (mayFetch(url) && url.scheme() == "https"_L1)
        fetch(url, {.bytes = mostBytes, .time = m_timeOut, .mayConnect = m_isPublic}, context, std::move(done));
    else
        refuse(url, context, std::move(done));
}

void QtHttpClient::fetch(const QUrl& url, const HttpTransfer::Bounds& bounds, QObject* context, Done done)
{
    if (m_encrypts || url.scheme() != "https"_L1) {
        request(url, bounds, context, std::move(done));
        return;
    }
    m_waiting.append([this, url, bounds, context = QPointer(context), done = std::move(done)] {
        if (context)
            request(url, bounds, context, done);
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

void QtHttpClient::request(const QUrl& url, const HttpTransfer::Bounds& bounds, QObject* context, Done done)
{
    if (!m_manager)
        m_manager = std::make_unique<QNetworkAccessManager>();
    ++m_open;
    const auto* transfer = new HttpTransfer(*m_manager, url, bounds, context, std::move(done));
    connect(transfer, &HttpTransfer::ended, this, [this] {
        if (--m_open == 0)
            m_manager.release()->deleteLater();
    });
}

} // namespace ambrelle
