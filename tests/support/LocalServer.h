// SPDX-License-Identifier: MIT

#pragma once

#include "support/WaitUntil.h"

#include <QByteArrayList>
#include <QCoreApplication>
#include <QTcpServer>
#include <QTcpSocket>
#include <QUrl>

#include <functional>
#include <memory>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// A web server on this machine that remembers the target of every request and plays back what the test lays down.
class LocalServer {
public:
    using Play = std::function<void(QTcpSocket& socket)>;

    /// Serves over `server`, which may be one of secured connections.
    explicit LocalServer(std::unique_ptr<QTcpServer> server = std::make_unique<QTcpServer>(), QString scheme = "http")
        : m_server(std::move(server))
        , m_scheme(std::move(scheme))
    {
        m_server->listen(QHostAddress::LocalHost);
        QObject::connect(m_server.get(), &QTcpServer::pendingConnectionAvailable, m_server.get(), [this] {
            while (QTcpSocket* socket = m_server->nextPendingConnection()) {
                QObject::connect(socket, &QTcpSocket::readyRead, m_server.get(), [this, socket] { hear(*socket); });
                QObject::connect(socket, &QTcpSocket::disconnected, socket, &QObject::deleteLater);
                hear(*socket);
            }
        });
    }

    QUrl url(const QString& path = {}) const
    {
        return QUrl(u"%1://127.0.0.1:%2%3"_s.arg(m_scheme).arg(m_server->serverPort()).arg(path));
    }

    /// The whole answer with its length told, after which the connection is closed.
    static Play answer(const QByteArray& body, const QByteArray& status = "200 OK", const QByteArray& headers = {})
    {
        return [=](QTcpSocket& socket) {
            socket.write("HTTP/1.1 " + status + "\r\nConnection: close\r\n" + headers
                + "Content-Length: " + QByteArray::number(body.size()) + "\r\n\r\n" + body);
            socket.disconnectFromHost();
        };
    }

    /// Those bytes and nothing else; the connection stays.
    static Play raw(const QByteArray& bytes)
    {
        return [bytes](QTcpSocket& socket) { socket.write(bytes); };
    }
    /// Sends the body in drops of two bytes.
    static Play dripping(const QByteArray& head, const QByteArray& body)
    {
        return [head, body](QTcpSocket& socket) {
            socket.write(head);
            auto* drip = new QTimer(&socket);
            QObject::connect(drip, &QTimer::timeout, &socket, [&socket, body, sent = qsizetype{0}]() mutable {
                socket.write(body.mid(sent, 2));
                sent += 2;
            });
            drip->start(20);
        };
    }

    Play play = answer({}); ///< what every request is answered with
    QList<QByteArray> targets; ///< path and query of all requests, as they came
    QByteArrayList headers; ///< of the last request, as they came

private:
    void hear(QTcpSocket& socket)
    {
        while (socket.canReadLine()) {
            const QByteArray line = socket.readLine().trimmed();
            if (line.startsWith("GET ")) {
                targets.append(line.split(' ').at(1));
                headers.clear();
            } else if (!line.isEmpty()) {
                headers.append(line);
            } else {
                play(socket);
            }
        }
    }

    std::unique_ptr<QTcpServer> m_server;
    QString m_scheme;
};

} // namespace ambrelle
