// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarFolders.h"

#include "foundation/ForeignText.h"
#include "platform/calendar/FileStamp.h"
#include "platform/calendar/IcsParser.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>

#include <algorithm>
#include <array>
#include <cstdint>
#include <filesystem>
#include <set>
#include <utility>

#include <sys/stat.h>
#include <sys/vfs.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
namespace fs = std::filesystem;

namespace {

constexpr int deepest = 3; // levels below a root
constexpr qsizetype mostFolders = 500;
constexpr qsizetype mostFiles = 50'000; // of one folder
constexpr qint64 mostMarkBytes = 4096;
constexpr qsizetype longestFolderName = 200;

QString mark(const QString& folder, QLatin1StringView name)
{
    const auto content = boundedContent(folder + u'/' + name, mostMarkBytes);
    return content ? foreignText(QString::fromUtf8(*content), longestFolderName) : QString();
}

class Walk {
public:
    CalendarFolders result;

    void root(const QString& path)
    {
        if (QFileInfo(path).isDir())
            visit(path, 0);
        else
            await(path);
    }

private:
    bool isNew(const QString& path)
    {
        struct stat info { };
        return ::stat(QFile::encodeName(path).constData(), &info) == 0
            && m_visited.insert({info.st_dev, info.st_ino}).second;
    }

    void visit(const QString& path, int depth)
    {
        if (result.folders.size() >= mostFolders || !isNew(path))
            return;
        CalendarFolder folder{.path = path, .isRoot = depth == 0, .name = QFileInfo(path).fileName()};
        QStringList below;
        list(folder, below);
        folder.files.sort();
        below.sort();
        result.watched.append({path, {}});
        watchLinks(folder);
        if (folder.isMarked)
            readMarks(folder);
        result.folders.append(folder);
        if (depth == deepest)
            return;
        for (const QString& name : std::as_const(below))
            visit(path + u'/' + name, depth + 1);
    }

    static void list(CalendarFolder& folder, QStringList& below)
    {
        std::error_code error;
        const fs::path path(QFile::encodeName(folder.path).toStdString());
        const auto options = fs::directory_options::skip_permission_denied;
        for (fs::directory_iterator entry(path, options, error); !error && entry != fs::directory_iterator();
             entry.increment(error)) {
            const QString name = QFile::decodeName(entry->path().filename().c_str());
            std::error_code unknown;
            if (name == "displayname"_L1 || name == "color"_L1) {
                folder.isMarked = true;
                continue;
            }
            folder.isEmpty = false;
            if (name.startsWith(u'.') || folder.files.size() >= mostFiles)
                continue;
            if (entry->is_directory(unknown))
                below.append(name);
            else if (name.endsWith(".ics"_L1, Qt::CaseInsensitive))
                folder.files.append(name);
        }
    }

    static void readMarks(CalendarFolder& folder)
    {
        if (const QString name = mark(folder.path, "displayname"_L1); !name.isEmpty())
            folder.name = name;
        folder.color = calendarColor(mark(folder.path, "color"_L1));
    }

    /// A file behind a link changes in another folder.
    void watchLinks(const CalendarFolder& folder)
    {
        for (const QString& name : folder.files) {
            const QFileInfo file(folder.path + u'/' + name);
            if (!file.isSymLink())
                continue;
            const WatchedFolder home{QFileInfo(file.symLinkTarget()).path(), {}};
            if (!result.watched.contains(home) && result.watched.size() < 2 * mostFolders)
                result.watched.append(home);
        }
    }

    void await(const QString& path)
    {
        const QFileInfo missing(path);
        const QString parent = missing.path();
        if (parent == path)
            return;
        if (QFileInfo(parent).isDir())
            result.watched.append({parent, missing.fileName()});
        else
            await(parent);
    }

    std::set<std::pair<dev_t, ino_t>> m_visited;
};

} // namespace

bool CalendarFolders::isRemote(const QString& folder)
{
    // As statfs(2) has them: NFS, SMB, CIFS, SMB 2, FUSE (of sshfs and the like), 9P, Ceph, AFS, Coda, NCP.
    constexpr std::array<std::uint32_t, 10> kinds{
        0x6969, 0x517B, 0xFF534D42, 0xFE534D42, 0x65735546, 0x01021997, 0x00C36400, 0x5346414F, 0x73757245, 0x564C};
    struct statfs info { };
    return ::statfs(QFile::encodeName(folder).constData(), &info) == 0
        && std::ranges::find(kinds, static_cast<std::uint32_t>(info.f_type)) != kinds.end();
}

CalendarFolders CalendarFolders::found(const QStringList& roots)
{
    Walk walk;
    for (const QString& path : roots)
        walk.root(QDir::cleanPath(path));
    return walk.result;
}

} // namespace ambrelle
