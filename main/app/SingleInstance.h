// SPDX-License-Identifier: MIT

#pragma once

#include "app/StartRequest.h"

#include <QObject>

#include <memory>

class QLocalServer;
class QLocalSocket;

namespace ambrelle {

/// Sees to it that one program runs per user and session folder. A lock that dies with its process says who is the
/// first; the others hand what they were asked to do to the first over a socket and end.
class SingleInstance : public QObject {
    Q_OBJECT
public:
    static constexpr qsizetype longestMessage = 256 * 1024; ///< bytes; a longer one is dropped whole

    enum class Role {
        first,
        second,
        alone, ///< no private folder could be made: the program runs, but nobody can hand it anything
    };

    /// Takes the lock at once, without an application object, in `folder` (made when missing, for this user only).
    explicit SingleInstance(QString folder = standardFolder(), QObject* parent = nullptr);
    ~SingleInstance() override;

    Role role() const { return m_role; }
    /// The first: hears the others from now on. False when the socket cannot be opened.
    bool listen();
    /// A second: hands the request over and waits for the answer; false when the first does not take it. Should the
    /// first end meanwhile, this is the first from then on, which the role tells.
    bool handOver(const StartRequest& request, int milliseconds = 5000);
    /// The lock lasts as long as the process from now on: nobody else becomes the first while it still flushes.
    void keepLock();

    /// In the user's runtime folder, else in the temporary folder under a name of the user's own.
    static QString standardFolder();

Q_SIGNALS:
    void activated(const StartRequest& request); ///< another start of the program

private:
    bool openFolder() const;
    void openLock();
    void takeLock();
    void greet();
    void read(QLocalSocket* socket);

    QString m_folder;
    int m_lock = -1;
    Role m_role = Role::alone;
    std::unique_ptr<QLocalServer> m_server; // not before it is needed: it wants an application object
};

} // namespace ambrelle
