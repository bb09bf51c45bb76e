// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QByteArray>
#include <QUrl>

#include <functional>

namespace ambrelle {

/// What came back of a request.
struct HttpAnswer {
    QByteArray body;
    QString error; ///< one sentence why there is no body; empty on success

    bool operator==(const HttpAnswer&) const = default;
};

/// Fetches single documents from the network.
class HttpClient : public Port {
    Q_OBJECT
public:
    using Done = std::function<void(const HttpAnswer& answer)>;

    /// Gets `url` and answers later on this thread, unless `context` is gone by then. An answer takes at most 20
    /// seconds and `mostBytes`; redirects lead to HTTPS only, plain HTTP is for this machine alone.
    virtual void get(const QUrl& url, qint64 mostBytes, QObject* context, Done done) = 0;
    /// Likewise for addresses that a stranger chose: HTTPS only, and no host on this machine or in a network of its
    /// own, whether it is named, a name stands for it, or a redirect leads to it.
    virtual void getPublic(const QUrl& url, qint64 mostBytes, QObject* context, Done done) = 0;

Q_SIGNALS:
    /// The machine has a way to other machines that it had not before: what failed lately may succeed now, or in some
    /// seconds. Told where the system tells it.
    void networkCame();
};

} // namespace ambrelle
