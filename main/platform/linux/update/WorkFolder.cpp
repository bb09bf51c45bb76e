// SPDX-License-Identifier: MIT

#include "platform/linux/update/WorkFolder.h"

#include "platform/linux/update/ProgramRoot.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <cerrno>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr mode_t privateFolder = 0700;
constexpr mode_t ofOthers = 0077;

/// Whether the open folder is ours alone and still the one of that name: its last user may have removed it meanwhile.
bool isOurs(int descriptor, const QByteArray& path)
{
    struct stat opened { };
    struct stat named { };
    return ::fstat(descriptor, &opened) == 0 && ::lstat(path.constData(), &named) == 0 && S_ISDIR(named.st_mode)
        && opened.st_dev == named.st_dev && opened.st_ino == named.st_ino && opened.st_uid == ::geteuid()
        && (opened.st_mode & ofOthers) == 0;
}

} // namespace

WorkFolder::WorkFolder(QString path, int descriptor)
    : m_path(std::move(path))
    , m_descriptor(descriptor)
{
}

WorkFolder::~WorkFolder()
{
    ::close(m_descriptor); // and others may lock it
}

std::unique_ptr<WorkFolder> WorkFolder::open(const QString& rootPath)
{
    const QString path = ProgramRoot::workFolderOf(rootPath);
    const QByteArray name = QFile::encodeName(path);
    const int descriptor = ::open(name.constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    std::unique_ptr<WorkFolder> folder(new WorkFolder(path, descriptor));
    const bool isFree = ::flock(descriptor, LOCK_EX | LOCK_NB) == 0;
    return isFree && isOurs(descriptor, name) ? std::move(folder) : nullptr;
}

std::unique_ptr<WorkFolder> WorkFolder::make(const QString& rootPath)
{
    const QByteArray name = QFile::encodeName(ProgramRoot::workFolderOf(rootPath));
    if (::mkdir(name.constData(), privateFolder) != 0 && errno != EEXIST)
        return nullptr;
    return open(rootPath);
}

bool WorkFolder::exists(const QString& rootPath)
{
    struct stat status { };
    return ::lstat(QFile::encodeName(ProgramRoot::workFolderOf(rootPath)).constData(), &status) == 0;
}

QString WorkFolder::journalOf(const QString& path)
{
    return path + u"/journal.json"_s;
}

bool WorkFolder::remove(const QString& path) const
{
    return (::unlink(QFile::encodeName(path).constData()) == 0 || errno == ENOENT) && ::fsync(m_descriptor) == 0;
}

void WorkFolder::clear() const
{
    const QDir folder(m_path);
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    for (const QFileInfo& entry : folder.entryInfoList(all)) {
        if (entry.isDir() && !entry.isSymLink())
            QDir(entry.filePath()).removeRecursively();
        else
            QFile::remove(entry.filePath());
    }
}

void WorkFolder::removeIfEmpty() const
{
    ::rmdir(QFile::encodeName(m_path).constData());
}

} // namespace ambrelle
