// SPDX-License-Identifier: MIT

#pragma once

#include "platform/HttpClient.h"

#include <QList>
#include <QPointer>

#include <utility>

namespace ambrelle {

/// A network whose every answer a test gives.
class RecordingHttpClient final : public HttpClient {
public:
    bool isAvailable() const override { return true; }
    QString whyNot() const override { return {}; }
    void get(const QUrl& url, qint64 mostBytes, QObject* context, Done done) override
    {
        addresses.append(QString::fromLatin1(url.toEncoded()));
        bounds.append(mostBytes);
        m_waiting.append({url, context, std::move(done)});
    }
    void getPublic(const QUrl& url, qint64 mostBytes, QObject* context, Done done) override
    {
        get(url, mostBytes, context, std::move(done));
        ofStrangers.append(addresses.last());
    }

    qsizetype waiting() const { return m_waiting.size(); }
    const QUrl& address(qsizetype index = 0) const { return m_waiting.at(index).url; } ///< of a waiting request
    /// Answers one of the waiting requests, the oldest unless told otherwise.
    void answer(const HttpAnswer& answer, qsizetype index = 0)
    {
        const auto [url, context, done] = m_waiting.takeAt(index);
        if (context)
            done(answer);
    }

    QList<QString> addresses; ///< of all requests so far, as they would be sent
    QList<QString> ofStrangers; ///< those of them that went to the open internet only
    QList<qint64> bounds; ///< of their bodies

private:
    struct Waiting {
        QUrl url;
        QPointer<QObject> context;
        Done done;
    };

    QList<Waiting> m_waiting;
};

} // namespace ambrelle
