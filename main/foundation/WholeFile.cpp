// SPDX-License-Identifier: MIT

#include "foundation/WholeFile.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>
#include <cstdio>
#include <cstring>
#include <fcntl.h>
#include <unistd.h>

namespace ambrelle {

namespace {

// An open file that is closed at the end of its scope.
class Descriptor {
public:
    Descriptor(const QByteArray& path, int flags, mode_t mode = 0)
        : m_descriptor(::open(path.constData(), flags | O_CLOEXEC, mode))
    {
    }
    ~Descriptor()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Descriptor(const Descriptor&) = delete;
    Descriptor& operator=(const Descriptor&) = delete;

    bool sync() const { return m_descriptor >= 0 && ::fsync(m_descriptor) == 0; }
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
        return done == bytes.size();
    }

private:
    int m_descriptor;
};

bool writeBeside(const QByteArray& path, const QByteArray& bytes, Readers readers)
{
    const Descriptor file(path, O_WRONLY | O_CREAT | O_TRUNC, readers == Readers::owner ? 0600 : 0644);
    return file.write(bytes) && file.sync();
}

} // namespace

QString writeWhole(const QString& path, const QByteArray& bytes, Readers readers)
{
    const QByteArray target = QFile::encodeName(path);
    const QByteArray beside = target + ".new";
    const QString folder = QFileInfo(path).absolutePath();
    QDir().mkpath(folder);
    if (!writeBeside(beside, bytes, readers) || std::rename(beside.constData(), target.constData()) != 0) {
        const int reason = errno;
        ::unlink(beside.constData());
        return QString::fromLocal8Bit(std::strerror(reason));
    }
    // The new file is in place and cannot be taken back: not every file system can do this, and none has to.
    Descriptor(QFile::encodeName(folder), O_RDONLY | O_DIRECTORY).sync();
    return {};
}

} // namespace ambrelle
