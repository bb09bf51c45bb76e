// SPDX-License-Identifier: MIT

#include "foundation/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QRandomGenerator>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <functional>
#include <unistd.h>
#include <utility>

namespace ambrelle {

namespace {

/// A file that takes the place of another as soon as it is whole. It has no name until then where the file system can
/// do that, else one that nobody else has; what does not become whole is gone with this, and without a name also when
/// the process is killed.
class FileToBe {
public:
    FileToBe(QByteArray folder, Readers readers)
        : m_folder(std::move(folder))
    {
        const mode_t mode = readers == Readers::owner ? 0600 : 0644;
#ifdef O_TMPFILE
        m_descriptor = ::open(m_folder.constData(), O_TMPFILE | O_WRONLY | O_CLOEXEC, mode);
#endif
        if (m_descriptor < 0)
            tryNames([&](const QByteArray& name) {
                m_descriptor = ::open(name.constData(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC, mode);
                return m_descriptor >= 0;
            });
    }
    ~FileToBe()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
        if (!m_name.isEmpty())
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
        if (m_name.isEmpty() && !giveName())
            return false;
        if (std::rename(m_name.constData(), target.constData()) != 0)
            return false;
        m_name.clear();
        return true;
    }

private:
    /// An open file gets its first name; it cannot take that of another at once.
    bool giveName()
    {
        const QByteArray open = "/proc/self/fd/" + QByteArray::number(m_descriptor);
        return tryNames([&open](const QByteArray& name) {
            return ::linkat(AT_FDCWD, open.constData(), AT_FDCWD, name.constData(), AT_SYMLINK_FOLLOW) == 0;
        });
    }

    bool tryNames(const std::function<bool(const QByteArray& name)>& use)
    {
        for (int i = 0; i < 100; ++i) {
            const QByteArray name =
                m_folder + "/.ambrelle-" + QByteArray::number(QRandomGenerator::global()->generate64(), 36);
            if (use(name)) {
                m_name = name;
                return true;
            }
            if (errno != EEXIST)
                break;
        }
        return false;
    }

    QByteArray m_folder;
    QByteArray m_name; // empty: none
    int m_descriptor = -1;
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

QString writeWhole(const QString& path, const QByteArray& bytes, Readers readers)
{
    const QString folder = QFileInfo(path).absolutePath();
    QDir().mkpath(folder);
    FileToBe file(QFile::encodeName(folder), readers);
    if (!file.write(bytes) || !file.putInPlaceOf(QFile::encodeName(path)))
        return QString::fromLocal8Bit(std::strerror(errno));
    // The new file is in place and cannot be taken back: not every file system can do this, and none has to.
    syncFolder(QFile::encodeName(folder));
    return {};
}

} // namespace ambrelle
