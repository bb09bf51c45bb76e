#include "platform/linux/QtHttpClient.h"

#include "platform/linux/HttpTransfer.h"

#include <QNetworkAccessManager>

#include <utility>

namespace ambrelle {

QtHttpClient::QtHttpClient(Milliseconds timeOut, Milliseconds linger)
    : m_timeOut(timeOut)
{
    m_linger.setSingleShot(true);
    m_linger.setInterval(linger);
    connect(&m_linger, &QTimer::timeout, this, [this] { m_manager.reset(); });
}

QtHttpClient::~QtHttpClient() = default;

QNetworkAccessManager& QtHttpClient::manager()
{
    if (!m_manager)
        m_manager = std::make_unique<QNetworkAccessManager>();
    return *m_manager;
}

void QtHttpClient::get(const QUrl& url, qint64 mostBytes, QObject* context, Done done)
{
    if (!mayFetch(url)) {
        const HttpAnswer refusal{{}, tr("The address “%1” is not secure.").arg(url.host())};
        QMetaObject::invokeMethod(
            context, [done = std::move(done), refusal] { done(refusal); }, Qt::QueuedConnection);
        return;
    }
    m_linger.stop();
    ++m_open;
    const auto* transfer = new HttpTransfer(manager(), url, {mostBytes, m_timeOut}, context, std::move(done));
    connect(transfer, &HttpTransfer::ended, this, [this] {
        if (--m_open == 0)
            m_linger.start();
    });
}

} // namespace ambrelle
