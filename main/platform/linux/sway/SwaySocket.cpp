// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwaySocket.h"

#include <QHash>
#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString kindOf(quint32 type)
{
    static const QHash<quint32, QString> kinds{
        {0, u"workspace"_s},
        {1, u"output"_s},
        {3, u"window"_s},
        {4, u"barconfig_update"_s},
        {5, u"binding"_s},
    };
    return kinds.value(type & ~SwayMessages::eventBit);
}

} // namespace

SwaySocket::SwaySocket(const QString& path, const QStringList& events, std::chrono::milliseconds pause)
    : m_path(path)
    , m_events(events)
{
    m_again.setSingleShot(true);
    m_again.setInterval(pause);
    connect(&m_again, &QTimer::timeout, this, &SwaySocket::connectAgain);
    connect(&m_socket, &QLocalSocket::connected, this, &SwaySocket::connected);
    connect(&m_socket, &QLocalSocket::readyRead, this, &SwaySocket::read);
    connect(&m_socket, &QLocalSocket::disconnected, this, &SwaySocket::broke);
    // Where the connection was never made there is no other sign of it. Not at once: open() is not over yet.
    connect(&m_socket, &QLocalSocket::errorOccurred, this, &SwaySocket::broke, Qt::QueuedConnection);
}

void SwaySocket::open()
{
    if (!std::exchange(m_wanted, true))
        connectAgain();
}

void SwaySocket::connectAgain()
{
    m_messages = {};
    m_socket.connectToServer(m_path);
}

void SwaySocket::close()
{
    m_wanted = false;
    m_isOpen = false;
    m_worked = false;
    m_again.stop();
    m_asked.clear();
    m_socket.abort();
}

void SwaySocket::connected()
{
    m_isOpen = true;
    // One by one: it refuses all of them for one that it does not know.
    for (const QString& kind : m_events) {
        m_asked.enqueue({Question::subscribe, {}});
        m_socket.write(SwayMessages::packed({static_cast<quint32>(Question::subscribe),
            QJsonDocument(QJsonArray{kind}).toJson(QJsonDocument::Compact)}));
    }
    Q_EMIT opened();
}

void SwaySocket::ask(Question question, Answer answer)
{
    if (!m_isOpen)
        return;
    m_asked.enqueue({question, std::move(answer)});
    m_socket.write(SwayMessages::packed({static_cast<quint32>(question), {}}));
}

bool SwaySocket::wait(QDeadlineTimer deadline)
{
    return m_isOpen && m_socket.waitForReadyRead(static_cast<int>(deadline.remainingTime()));
}

void SwaySocket::read()
{
    m_messages.append(m_socket.readAll());
    // Whoever hears one may close the socket.
    while (m_isOpen) {
        const auto message = m_messages.next();
        if (!message)
            break;
        hear(*message);
    }
    if (m_isOpen && m_messages.isBroken())
        m_socket.abort();
}

void SwaySocket::hear(const SwayMessage& message)
{
    if (message.type & SwayMessages::eventBit) {
        const QString kind = kindOf(message.type);
        const QJsonObject about = QJsonDocument::fromJson(message.body).object();
        if (m_events.contains(kind))
            Q_EMIT happened(kind, about.value("change"_L1).toString(), about);
        return;
    }
    if (m_asked.isEmpty() || static_cast<quint32>(m_asked.head().question) != message.type)
        return m_socket.abort(); // not what was asked: whose are the next ones?
    const Asked asked = m_asked.dequeue();
    m_worked = true;
    if (asked.answer)
        asked.answer(message.body);
}

void SwaySocket::broke()
{
    // The end and its reason are told apart.
    if (!m_wanted || m_again.isActive() || m_socket.state() != QLocalSocket::UnconnectedState)
        return;
    m_isOpen = false;
    m_asked.clear();
    if (std::exchange(m_worked, false))
        return m_again.start();
    m_wanted = false;
    Q_EMIT ended();
}

} // namespace ambrelle
