// SPDX-License-Identifier: MIT

#include "foundation/WholeFile.h"

#include <QCryptographicHash>
#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>
#include <utility>

namespace ambrelle {

namespace {

/// Where what is to become the file at `path` is written: a name of its own in the same folder, so that no neighbour is
/// touched, and always the same one. What a killed program left there is thus gone with the next attempt.
QByteArray placeBeside(const QString& path)
{
    const QFileInfo target(path);
    const QByteArray tag = QCryptographicHash::hash(target.fileName().toUtf8(), QCryptographicHash::Sha1).toHex();
    return QFile::encodeName(target.absolutePath()) + "/.ambrelle-" + tag;
}

/// A file that takes the place of another as soon as it is whole; what does not become whole is gone with this.
class FileToBe {
public:
    FileToBe(QByteArray name, Readers readers)
        : m_name(std::move(name))
    {
        const auto open = [&] {
            const mode_t mode = readers == Readers::owner ? 0600 : 0644;
            return ::open(m_name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
        };
        m_descriptor = open();
        if (m_descriptor < 0 && errno == EEXIST && ::unlink(m_name.constData()) == 0)
            m_descriptor = open();
        m_isOurs = m_descriptor >= 0;
    }
    ~FileToBe()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
        if (m_isOurs)
            ::unlink(m_name.constData());
    }
    FileToBe(const FileToBe&) = delete;
    FileToBe& operator=(const FileToBe&) = delete;

    bool write(const QByteArray& bytes) const
    {
        qsizetype done = 0;
        while (m_descriptor >= 0 && done < bytes.size()) {
            const ssize_t count =
                ::write(m_descriptor, bytes.constData() + done, static_cast<size_t>(bytes.size() - done));
            if (count < 0 && errno != EINTR)
                return false;
            done += count < 0 ? 0 : count;
        }
        return m_descriptor >= 0 && done == bytes.size() && ::fsync(m_descriptor) == 0;
    }

    bool putInPlaceOf(const QByteArray& target)
    {
        m_isOurs = std::rename(m_name.constData(), target.constData()) != 0;
        return !m_isOurs;
    }

private:
    QByteArray m_name;
    int m_descriptor = -1;
    bool m_isOurs = false; // the file of that name
};

void syncFolder(const QByteArray& folder)
{
    const int descriptor = ::open(folder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (descriptor < 0)
        return;
    ::fsync(descriptor);
    ::close(descriptor);
}

} // namespace

QString standingFolder(const QString& path)
{
    QString folder = QFileInfo(path).absolutePath();
    while (!QFileInfo::exists(folder) && !QDir(folder).isRoot())
        folder = QFileInfo(folder).absolutePath();
    return folder;
}

void flushMadeFolders(const QString& path, const QString& standing)
{
    QString folder = QFileInfo(path).absolutePath();
    while (folder != standing && !QDir(folder).isRoot()) {
        folder = QFileInfo(folder).absolutePath(); // which has the name of the one below
        syncFolder(QFile::encodeName(folder));
    }
}

QString writeWhole(const QString& path, const QByteArray& bytes, Readers readers)
{
    const QString folder = QFileInfo(path).absolutePath();
    const QString standing = standingFolder(path);
    QDir().mkpath(folder);
    FileToBe file(placeBeside(path), readers);
    if (!file.write(bytes) || !file.putInPlaceOf(QFile::encodeName(path)))
        return QString::fromLocal8Bit(std::strerror(errno));
    // The new file is in place and cannot be taken back: not every file system can do this, and none has to.
    syncFolder(QFile::encodeName(folder));
    flushMadeFolders(path, standing);
    return {};
}

} // namespace ambrelle
