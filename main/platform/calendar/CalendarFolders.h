// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QList>
#include <QString>
#include <QStringList>

namespace ambrelle {

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

    /// Whether the folder lies on another computer, so that the kernel does not tell what others change there.
    static bool isRemote(const QString& folder);

    /// Looks through the folders `roots` and what is below them, not too deep and not too much of it. Missing folders
    /// are awaited.
    static CalendarFolders found(const QStringList& roots);
};

} // namespace ambrelle
