// SPDX-License-Identifier: MIT

#pragma once

#include <QFileSystemWatcher>
#include <QSocketNotifier>
#include <QString>

#include <functional>
#include <memory>

namespace ambrelle {

/// Notices that the wall clock was set, the machine woke up, or its time zone changed. Watches nothing until it is made
/// active.
class ClockWatch {
public:
    explicit ClockWatch(std::function<void()> changed);
    ~ClockWatch();
    ClockWatch(const ClockWatch&) = delete;
    ClockWatch& operator=(const ClockWatch&) = delete;

    void setActive(bool active);

private:
    struct DeleteLater {
        void operator()(QObject* object) const;
    };

    void openTimer();
    void armTimer() const;
    void timerReadable();
    void watchZone();
    void zoneFolderChanged();

    std::function<void()> m_changed;
    int m_timer = -1; // file descriptor
    std::unique_ptr<QSocketNotifier, DeleteLater> m_notifier;
    std::unique_ptr<QFileSystemWatcher, DeleteLater> m_zoneWatcher;
    QString m_zone; // what the time zone's link points to
};

} // namespace ambrelle
