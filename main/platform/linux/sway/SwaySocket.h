// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/sway/SwayMessages.h"

#include <QDeadlineTimer>
#include <QJsonObject>
#include <QLocalSocket>
#include <QObject>
#include <QQueue>
#include <QStringList>
#include <QTimer>

#include <chrono>
#include <functional>

namespace ambrelle {

/// Asks Sway questions and hears of what happens in it. Never waits. A connection that worked and broke, as Sway breaks
/// those of programs that were stopped for a while, is made again.
class SwaySocket final : public QObject {
    Q_OBJECT
public:
    enum class Question : quint32 { workspaces = 1, subscribe = 2, outputs = 3, tree = 4, version = 7 };
    using Answer = std::function<void(const QByteArray& json)>;

    /// `path` is where Sway listens; `events` are the kinds to hear of, those that this Sway does not know aside.
    SwaySocket(const QString& path, const QStringList& events, std::chrono::milliseconds pause = usualPause);
    ~SwaySocket() override { close(); } // silent: the connection tells of its end

    void open(); ///< does nothing while open
    void close(); ///< nothing more is told or answered
    bool isOpen() const { return m_isOpen; } ///< from opened() to the next break

    /// The answer comes later; never, if the connection breaks. Only while open.
    void ask(Question question, Answer answer);

    /// Waits for something to come and hears it; false when nothing comes any more, or not in time.
    bool wait(QDeadlineTimer deadline);

    static constexpr std::chrono::milliseconds usualPause{1000}; ///< before a connection is made again

Q_SIGNALS:
    void opened(); ///< each time there is a new connection: whatever was known may be old
    /// The kind as one of `events`, what Sway says about it, and in it the word for what happened.
    void happened(const QString& kind, const QString& change, const QJsonObject& about);
    void ended(); ///< there is no Sway any more, or nothing like it; told once for every open()

private:
    struct Asked {
        Question question;
        Answer answer;
    };

    void connectAgain();
    void connected();
    void read();
    void hear(const SwayMessage& message);
    void broke();

    QString m_path;
    QStringList m_events;
    QTimer m_again;
    QLocalSocket m_socket;
    SwayMessages m_messages;
    QQueue<Asked> m_asked; ///< Sway answers in order
    bool m_wanted = false;
    bool m_isOpen = false;
    bool m_worked = false; ///< something was answered since the last break
};

} // namespace ambrelle
