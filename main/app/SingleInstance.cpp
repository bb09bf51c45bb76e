// SPDX-License-Identifier: MIT

#include "app/SingleInstance.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>
#include <QTimer>

#include <cerrno>
#include <optional>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t ownerOnly = 0700;
constexpr int retryPause = 50; // milliseconds
constexpr int patience = 5000; // milliseconds that a started message may take
constexpr char taken = '+'; // the answer to a message
const QString socketName = u"socket"_s;
const QString lockName = u"lock"_s;

} // namespace

SingleInstance::SingleInstance(QString folder, QObject* parent)
    : QObject(parent)
    , m_folder(std::move(folder))
{
    if (openFolder())
        openLock();
}

SingleInstance::~SingleInstance()
{
    m_server.reset();
    if (m_lock >= 0)
        ::close(m_lock); // the lock goes with its last descriptor
}

QString SingleInstance::standardFolder()
{
    const QString runtime = qEnvironmentVariable("XDG_RUNTIME_DIR");
    if (QDir::isAbsolutePath(runtime) && QFileInfo(runtime).isWritable())
        return runtime + u"/ambrelle"_s;
    return QDir::tempPath() + u"/ambrelle-%1"_s.arg(::getuid());
}

/// Makes the folder, and refuses one that somebody else could have put there or can write into.
bool SingleInstance::openFolder() const
{
    const QByteArray path = QFile::encodeName(m_folder);
    if (::mkdir(path.constData(), ownerOnly) != 0 && errno != EEXIST)
        return false;
    struct stat status { };
    return ::lstat(path.constData(), &status) == 0 && S_ISDIR(status.st_mode) && status.st_uid == ::getuid()
        && ::chmod(path.constData(), ownerOnly) == 0;
}

void SingleInstance::openLock()
{
    const QByteArray path = QFile::encodeName(m_folder + u'/' + lockName);
    m_lock = ::open(path.constData(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, S_IRUSR | S_IWUSR);
    if (m_lock >= 0)
        takeLock();
}

void SingleInstance::takeLock()
{
    if (::flock(m_lock, LOCK_EX | LOCK_NB) == 0)
        m_role = Role::first;
    else if (errno == EWOULDBLOCK)
        m_role = Role::second;
}

void SingleInstance::keepLock()
{
    m_lock = -1; // left open on purpose
}

bool SingleInstance::listen()
{
    if (m_role != Role::first)
        return false;
    // Whatever lies there is left from a program that was killed: the lock is ours.
    const QString path = m_folder + u'/' + socketName;
    QLocalServer::removeServer(path);
    m_server = std::make_unique<QLocalServer>();
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, &SingleInstance::greet);
    return m_server->listen(path);
}

void SingleInstance::greet()
{
    while (QLocalSocket* socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::disconnected, socket, &QObject::deleteLater);
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { read(socket); });
        QTimer::singleShot(patience, socket, [socket] { socket->abort(); });
        socket->setReadBufferSize(longestMessage + 1);
        read(socket);
    }
}

void SingleInstance::read(QLocalSocket* socket)
{
    if (!socket->canReadLine()) {
        if (socket->bytesAvailable() > longestMessage)
            socket->abort();
        return;
    }
    const std::optional<StartRequest> request = StartRequest::decoded(socket->readLine());
    if (!request) {
        socket->abort();
        return;
    }
    socket->write(&taken, 1);
    socket->disconnectFromServer();
    Q_EMIT activated(*request);
}

bool SingleInstance::handOver(const StartRequest& request, int milliseconds)
{
    const QByteArray message = request.encoded();
    if (message.size() > longestMessage)
        return false;
    QElapsedTimer time;
    time.start();
    const auto left = [&] { return std::max(1, milliseconds - static_cast<int>(time.elapsed())); };
    // The first has the lock some time before its socket, and some time after it has ceased to listen.
    while (m_role == Role::second && time.elapsed() < milliseconds) {
        QLocalSocket socket;
        socket.connectToServer(m_folder + u'/' + socketName);
        if (socket.waitForConnected(left())) {
            socket.write(message);
            char answer = 0;
            if (socket.waitForReadyRead(left()) && socket.getChar(&answer))
                return answer == taken;
        }
        QThread::msleep(retryPause);
        takeLock();
    }
    return false;
}

} // namespace ambrelle
