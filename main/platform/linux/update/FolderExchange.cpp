// SPDX-License-Identifier: MIT

#include "platform/linux/update/FolderExchange.h"

#include "foundation/PlainFile.h"
#include "platform/linux/update/ProgramRoot.h"

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QFileInfo>
#include <QSet>

#include <cerrno>
#include <cstdio>

#include <fcntl.h>
#include <unistd.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qint64 longestList = 4 * 1024 * 1024; // bytes
constexpr int mostNames = 100; // tried for what is kept

/// The folder around `path`, open.
class Surroundings {
public:
    explicit Surroundings(const QString& path)
        : m_descriptor(::open(
            QFile::encodeName(QFileInfo(path).path()).constData(), O_RDONLY | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC))
        , m_name(QFile::encodeName(QFileInfo(path).fileName()))
    {
    }
    ~Surroundings()
    {
        if (m_descriptor >= 0)
            ::close(m_descriptor);
    }
    Surroundings(const Surroundings&) = delete;
    Surroundings& operator=(const Surroundings&) = delete;

    bool change(const Surroundings& other, unsigned flags) const
    {
        return m_descriptor >= 0 && other.m_descriptor >= 0
            && ::renameat2(m_descriptor, m_name.constData(), other.m_descriptor, other.m_name.constData(), flags) == 0;
    }
    bool sync() const { return ::fsync(m_descriptor) == 0; }

private:
    int m_descriptor;
    QByteArray m_name;
};

QString copyOf(const WorkFolder& folder, const FolderJournal& journal)
{
    return folder.path() + u'/' + journal.copy;
}

/// Moves the folder out of the way, to a place that everybody sees. False: it is where it was.
bool keepBeside(const QString& rootPath, const QString& copy, const QString& version)
{
    const QString wished = u"%1 before %2"_s.arg(rootPath, version);
    const Surroundings source(copy);
    for (int i = 1; i <= mostNames; ++i) {
        const Surroundings target(i == 1 ? wished : u"%1 (%2)"_s.arg(wished).arg(i));
        if (source.change(target, RENAME_NOREPLACE))
            return target.sync();
        if (errno != EEXIST)
            return false;
    }
    return false;
}

} // namespace

bool exchangeFolders(const QString& first, const QString& second)
{
    const Surroundings one(first);
    const Surroundings other(second);
    if (!one.change(other, RENAME_EXCHANGE))
        return false;
    if (one.sync() && other.sync())
        return true;
    return !one.change(other, RENAME_EXCHANGE); // a disk that fails keeps what it has
}

bool bringFormerBack(const QString& rootPath, const WorkFolder& folder, FolderJournal journal)
{
    journal.isRejected = true;
    const QString copy = copyOf(folder, journal);
    return holdsProgram(copy) && journal.write(folder) && exchangeFolders(rootPath, copy);
}

bool confirmNewer(const QString& rootPath, const WorkFolder& folder, const FolderJournal& journal)
{
    const QString copy = copyOf(folder, journal);
    if (QFileInfo::exists(copy) && hasForeignFiles(copy) && !keepBeside(rootPath, copy, journal.to))
        return false;
    return FolderJournal::remove(folder);
}

bool hasForeignFiles(const QString& folder)
{
    const std::optional<QByteArray> list = readPlainFile(fileList(folder), longestList);
    if (!list)
        return true;
    const QList<QByteArray> lines = list->split('\n');
    QSet<QString> own{fileList(folder)};
    for (const QByteArray& line : lines)
        own.insert(QDir::cleanPath(folder + u'/' + QFile::decodeName(line)));
    const auto all = QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot;
    QDirIterator entries(folder, all, QDirIterator::Subdirectories);
    while (entries.hasNext()) {
        const QString path = entries.next();
        const bool isFolder = entries.fileInfo().isDir() && !entries.fileInfo().isSymLink();
        if (!isFolder && !own.contains(path))
            return true;
    }
    return false;
}

} // namespace ambrelle
