// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/sway/SwayMessages.h"
#include "support/TestFolder.h"
#include "support/WaitUntil.h"

#include <QLocalServer>
#include <QLocalSocket>

#include <algorithm>
#include <functional>

namespace ambrelle::test {

using namespace Qt::StringLiterals;

/// Listens as Sway does, and answers what the test lays down.
class FakeSway {
public:
    FakeSway()
    {
        EXPECT_TRUE(m_server.listen(path()));
        QObject::connect(&m_server, &QLocalServer::newConnection, &m_server, [this] {
            ++connections;
            m_messages = {};
            m_peer = m_server.nextPendingConnection();
            QObject::connect(m_peer, &QLocalSocket::readyRead, m_peer, [this] { read(); });
        });
    }

    QString path() const { return m_folder.filePath(u"sway.sock"_s); }
    /// Sends that, as if it were from Sway, to whoever connected last.
    void send(const QByteArray& bytes) const { m_peer->write(bytes); }
    void happen(quint32 kind, const QByteArray& about) const
    {
        send(SwayMessages::packed({SwayMessages::eventBit | kind, about}));
    }
    void hangUp() const { m_peer->abort(); }
    /// Ends for good.
    void end()
    {
        m_server.close();
        hangUp();
    }
    qsizetype count(quint32 question) const { return std::ranges::count(asked, question, &SwayMessage::type); }
    /// Whether it was asked for the tree so often.
    bool wasLookedAt(qsizetype times) const
    {
        return waitUntil([&] { return count(4) >= times; });
    }

    /// What each question is answered with.
    std::function<QByteArray(const SwayMessage&)> answer = [this](const SwayMessage& question) {
        return SwayMessages::packed({question.type, answers.value(question.type)});
    };
    QHash<quint32, QByteArray> answers{{2, R"({"success":true})"}};
    QList<SwayMessage> asked;
    int connections = 0;

private:
    void read()
    {
        m_messages.append(m_peer->readAll());
        while (const auto question = m_messages.next()) {
            asked.append(*question);
            m_peer->write(answer(*question));
        }
    }

    TestFolder m_folder;
    QLocalServer m_server;
    QLocalSocket* m_peer = nullptr;
    SwayMessages m_messages;
};

} // namespace ambrelle::test
