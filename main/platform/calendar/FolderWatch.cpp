// SPDX-License-Identifier: MIT

#include "platform/calendar/FolderWatch.h"

#include <QFile>
#include <QSocketNotifier>

#include <array>
#include <utility>

#include <sys/inotify.h>
#include <unistd.h>

namespace ambrelle {

namespace {

constexpr quint32 appearances = IN_CREATE | IN_MOVED_TO;
constexpr quint32 endings = IN_DELETE_SELF | IN_MOVE_SELF;
constexpr quint32 everything = appearances | endings | IN_CLOSE_WRITE | IN_MOVED_FROM | IN_DELETE;

bool isCalendarEntry(const QByteArray& name)
{
    return name.toLower().endsWith(".ics") || name == "color" || name == "displayname";
}

} // namespace

FolderWatch::FolderWatch(QObject* parent)
    : QObject(parent)
    , m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC))
{
    if (m_descriptor < 0)
        return;
    m_notifier = std::make_unique<QSocketNotifier>(m_descriptor, QSocketNotifier::Read);
    connect(m_notifier.get(), &QSocketNotifier::activated, this, &FolderWatch::read);
}

FolderWatch::~FolderWatch()
{
    m_notifier.reset();
    if (m_descriptor >= 0)
        ::close(m_descriptor);
}

bool FolderWatch::watch(const QList<WatchedFolder>& folders)
{
    const auto before = std::exchange(m_watches, {});
    const auto numbers = std::exchange(m_numbers, {});
    bool isNew = false;
    for (const WatchedFolder& folder : folders) {
        const bool all = folder.awaited.isEmpty();
        // IN_MASK_ADD: one folder may be there twice, by different paths or for different reasons.
        const int number = ::inotify_add_watch(m_descriptor, QFile::encodeName(folder.path).constData(),
            (all ? everything : appearances | endings) | IN_ONLYDIR | IN_MASK_ADD);
        if (number < 0)
            continue;
        m_numbers.insert(folder.path, number);
        Watch& watch = m_watches[number];
        if (all)
            watch.watchesAll = true;
        else
            watch.awaited.insert(QFile::encodeName(folder.awaited));
    }
    for (auto watch = m_watches.cbegin(); watch != m_watches.cend(); ++watch)
        isNew = isNew || before.value(watch.key()) != watch.value();
    for (const int number : numbers) {
        if (!m_watches.contains(number))
            ::inotify_rm_watch(m_descriptor, number);
    }
    return isNew;
}

void FolderWatch::read()
{
    alignas(inotify_event) std::array<char, 16384> buffer{};
    bool isChanged = false;
    for (;;) {
        const auto length = ::read(m_descriptor, buffer.data(), buffer.size());
        if (length <= 0)
            break;
        for (qsizetype offset = 0; offset + static_cast<qsizetype>(sizeof(inotify_event)) <= length;) {
            const auto* event = reinterpret_cast<const inotify_event*>(buffer.data() + offset);
            const QByteArray name(event->len > 0 ? event->name : "");
            isChanged = matters(event->wd, event->mask, name) || isChanged;
            offset += static_cast<qsizetype>(sizeof(inotify_event) + event->len);
        }
    }
    if (isChanged)
        Q_EMIT changed();
}

bool FolderWatch::matters(int watch, quint32 what, const QByteArray& name)
{
    if (what & IN_Q_OVERFLOW)
        return true;
    const auto known = m_watches.constFind(watch);
    if (known == m_watches.constEnd())
        return false;
    if (what & (endings | IN_IGNORED)) {
        forget(watch);
        return true;
    }
    if (known->awaited.contains(name) && (what & appearances))
        return true;
    return known->watchesAll && ((what & IN_ISDIR) || isCalendarEntry(name));
}

/// What is no longer at its path must not count as watched when another takes the place.
void FolderWatch::forget(int watch)
{
    ::inotify_rm_watch(m_descriptor, watch);
    m_watches.remove(watch);
    m_numbers.removeIf([watch](const auto& entry) { return entry.value() == watch; });
}

} // namespace ambrelle
