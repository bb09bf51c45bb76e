#pragma once

#include "platform/HttpClient.h"

namespace ambrelle {

/// A machine without a network.
class HeadlessHttpClient final : public HttpClient {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return QStringLiteral("This mode does not use the network."); }
    void get(const QUrl&, qint64, QObject* context, Done done) override
    {
        QMetaObject::invokeMethod(
            context, [done = std::move(done), answer = HttpAnswer{{}, whyNot()}] { done(answer); },
            Qt::QueuedConnection);
    }
};

} // namespace ambrelle
