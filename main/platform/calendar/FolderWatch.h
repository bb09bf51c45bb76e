// SPDX-License-Identifier: MIT

#pragma once

#include "platform/calendar/CalendarFolders.h"

#include <QHash>
#include <QObject>
#include <QSet>

#include <memory>

class QSocketNotifier;

namespace ambrelle {

/// Notices changes of calendar files by the folders they are in: one watch for each folder, however many files.
class FolderWatch : public QObject {
    Q_OBJECT
public:
    explicit FolderWatch(QObject* parent = nullptr);
    ~FolderWatch() override;

    /// Watches these folders and no others. True when any is new, so that it may have changed unnoticed before.
    bool watch(const QList<WatchedFolder>& folders);

Q_SIGNALS:
    void changed(); ///< often many times for one change

private:
    struct Watch {
        bool watchesAll = false;
        QSet<QByteArray> awaited; // names of entries

        bool operator==(const Watch&) const = default;
    };

    void read();
    bool matters(int watch, quint32 what, const QByteArray& name);
    void forget(int watch);

    int m_descriptor = -1;
    std::unique_ptr<QSocketNotifier> m_notifier;
    QHash<int, Watch> m_watches; // by the kernel's number
    QHash<QString, int> m_numbers; // by path
};

} // namespace ambrelle
