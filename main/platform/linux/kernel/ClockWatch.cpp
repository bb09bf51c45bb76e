// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/ClockWatch.h"

#include <QFileInfo>

#include <cerrno>
#include <cstdint>
#include <ctime>
#include <limits>
#include <sys/timerfd.h>
#include <unistd.h>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

// A new zone replaces the link, so the folder is what changes.
QString zoneFolder()
{
    return u"/etc"_s;
}
QString zoneTarget()
{
    return QFileInfo(u"/etc/localtime"_s).symLinkTarget();
}

} // namespace

// Both are switched off from inside their own signals at times.
void ClockWatch::DeleteLater::operator()(QObject* object) const
{
    object->disconnect();
    object->deleteLater();
}

ClockWatch::ClockWatch(std::function<void()> changed)
    : m_changed(std::move(changed))
{
}

ClockWatch::~ClockWatch()
{
    setActive(false);
}

void ClockWatch::setActive(bool active)
{
    if (active == (m_zoneWatcher != nullptr))
        return;
    if (active) {
        openTimer();
        watchZone();
        return;
    }
    m_zoneWatcher.reset();
    if (m_notifier)
        m_notifier->setEnabled(false);
    m_notifier.reset();
    if (m_timer >= 0)
        ::close(std::exchange(m_timer, -1));
}

void ClockWatch::openTimer()
{
    m_timer = ::timerfd_create(CLOCK_REALTIME, TFD_NONBLOCK | TFD_CLOEXEC);
    if (m_timer < 0)
        return;
    armTimer();
    m_notifier.reset(new QSocketNotifier(m_timer, QSocketNotifier::Read));
    QObject::connect(m_notifier.get(), &QSocketNotifier::activated, [this] { timerReadable(); });
}

// A timer that is never due, and that the kernel cancels when the clock is set or the machine resumes.
void ClockWatch::armTimer() const
{
    itimerspec never{};
    never.it_value.tv_sec = std::numeric_limits<time_t>::max();
    ::timerfd_settime(m_timer, TFD_TIMER_ABSTIME | TFD_TIMER_CANCEL_ON_SET, &never, nullptr);
}

void ClockWatch::timerReadable()
{
    std::uint64_t expirations = 0;
    const bool cancelled = ::read(m_timer, &expirations, sizeof expirations) < 0 && errno == ECANCELED;
    armTimer();
    if (cancelled)
        m_changed();
}

void ClockWatch::watchZone()
{
    m_zone = zoneTarget();
    m_zoneWatcher.reset(new QFileSystemWatcher({zoneFolder()}));
    QObject::connect(
        m_zoneWatcher.get(), &QFileSystemWatcher::directoryChanged, [this](const QString&) { zoneFolderChanged(); });
}

void ClockWatch::zoneFolderChanged()
{
    const QString before = std::exchange(m_zone, zoneTarget());
    if (before == m_zone)
        return;
    ::tzset();
    m_changed();
}

} // namespace ambrelle
