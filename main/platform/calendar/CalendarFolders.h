#pragma once

#include <QByteArray>
#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

#include <optional>

namespace ambrelle {

/// Tells whether a file is still the one that was read.
struct FileStamp {
    quint64 device = 0;
    quint64 inode = 0;
    qint64 size = 0; ///< bytes
    qint64 modified = 0; ///< nanoseconds since 1970
    qint64 changed = 0; ///< its inode; likewise

    bool operator==(const FileStamp&) const = default;

    /// None unless it is an ordinary file, perhaps behind links.
    static std::optional<FileStamp> of(const QString& path);
};

/// A folder as it has to be watched.
struct WatchedFolder {
    QString path;
    QString
        awaited; ///< the only entry that matters, because the rest of its path is missing; empty: all calendar files

    bool operator==(const WatchedFolder&) const = default;
};

/// One folder with what belongs to calendars in it.
struct CalendarFolder {
    QString path;
    bool isRoot = false;
    bool isEmpty = true; ///< nothing but marks of a calendar
    bool isMarked = false; ///< has a name or colour of its own, so it is one calendar
    QString name;
    QColor color;
    QStringList files; ///< names of calendar files, in order
};

struct CalendarFolders {
    QList<CalendarFolder> folders;
    QList<WatchedFolder> watched;

    /// Looks through the folders `roots` and what is below them, not too deep and not too much of it. Missing folders
    /// are awaited.
    static CalendarFolders found(const QStringList& roots);
};

/// The file's content; none when it cannot be read, is not an ordinary file or has more than `mostBytes`.
std::optional<QByteArray> boundedContent(const QString& path, qint64 mostBytes);

} // namespace ambrelle
