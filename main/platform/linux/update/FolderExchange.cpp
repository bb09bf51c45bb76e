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

/// Moves a folder in which there is something of the user's out of the way, to a place that everybody sees. False: it
/// is where it was.
bool keepBeside(const QString& wished, const QString& copy)
{
    if (!QFileInfo::exists(copy) || !hasForeignFiles(copy))
        return true;
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
    return isFormerThere(folder, journal) && journal.write(folder) && exchangeFolders(rootPath, copy);
}

bool confirmNewer(const QString& rootPath, const WorkFolder& folder, const FolderJournal& journal)
{
    if (keepBeside(u"%1 before %2"_s.arg(rootPath, journal.to), copyOf(folder, journal)))
        return FolderJournal::remove(folder);
    FolderJournal confirmed = journal;
    confirmed.isConfirmed = true;
    if (confirmed != journal)
        confirmed.write(folder);
    return false;
}

bool keepOfRejected(const QString& rootPath, const WorkFolder& folder, const FolderJournal& journal)
{
    return keepBeside(u"%1 %2"_s.arg(rootPath, journal.to), copyOf(folder, journal));
}

bool isFormerThere(const WorkFolder& folder, const FolderJournal& journal)
{
    const QString copy = copyOf(folder, journal);
    return holdsProgram(copy) && versionOf(copy) == journal.from;
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
