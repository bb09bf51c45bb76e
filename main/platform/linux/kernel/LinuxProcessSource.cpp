// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxProcessSource.h"

#include "foundation/TextFields.h"
#include "foundation/Wording.h"
#include "platform/linux/kernel/ProcessParser.h"

#include <algorithm>
#include <cstdio>

#include <dirent.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace ambrelle {

namespace {

constexpr double shortestInterval = 0.25; // seconds; over less a share would be noise

std::optional<double> secondsOn(clockid_t clock)
{
    timespec time{};
    if (::clock_gettime(clock, &time) != 0)
        return std::nullopt;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

} // namespace

LinuxProcessSource::LinuxProcessSource(const QByteArray& procFolder)
    : m_folder(::open(procFolder.constData(), O_RDONLY | O_DIRECTORY | O_CLOEXEC))
    , m_ticksPerSecond(static_cast<double>(::sysconf(_SC_CLK_TCK)))
    , m_pagesInMemory(static_cast<double>(::sysconf(_SC_PHYS_PAGES)))
{
}

LinuxProcessSource::~LinuxProcessSource()
{
    if (m_folder >= 0)
        ::close(m_folder);
}

QString LinuxProcessSource::whyNot() const
{
    return isAvailable() ? QString() : Wording::tr("The kernel does not tell which processes run.");
}

void LinuxProcessSource::top(int count, Completion completion)
{
    completion(busiest(count));
}

/// Among equals in the order of their numbers.
QList<ProcessRow> LinuxProcessSource::busiest(int count)
{
    const double moment = secondsOn(CLOCK_MONOTONIC).value_or(0);
    if (m_current.empty() || moment - m_moment >= shortestInterval) {
        readProcesses(moment - m_moment);
        m_moment = moment;
    }

    std::vector<const Process*> order;
    order.reserve(m_current.size());
    for (const auto& process : m_current)
        order.push_back(&process);
    const auto wanted = order.begin() + std::clamp<qsizetype>(count, 0, static_cast<qsizetype>(order.size()));
    std::partial_sort(order.begin(), wanted, order.end(),
        [](const Process* a, const Process* b) { return a->cpu != b->cpu ? a->cpu > b->cpu : a->id < b->id; });

    QList<ProcessRow> rows;
    QHash<qint64, WholeName> stillKnown;
    for (auto each = order.begin(); each != wanted; ++each) {
        const qint64 id = (*each)->id;
        const auto details = detailsOf(id);
        if (!details)
            continue;
        rows.append({id, nameOf(id, *details), (*each)->cpu, details->memory});
        if (const auto known = m_wholeNames.constFind(id); known != m_wholeNames.constEnd())
            stillKnown.insert(id, *known);
    }
    m_wholeNames.swap(stillKnown);
    return rows;
}

void LinuxProcessSource::readProcesses(double elapsed)
{
    std::swap(m_current, m_previous);
    m_current.clear();
    // Not readdir(): rewinding it asks the kernel for the whole folder in small pieces.
    alignas(dirent64) std::array<char, 32768> buffer;
    ::lseek(m_folder, 0, SEEK_SET);
    for (;;) {
        const auto length = ::syscall(SYS_getdents64, m_folder, buffer.data(), buffer.size());
        if (length <= 0)
            break;
        for (long offset = 0; offset < length;) {
            const auto* entry = reinterpret_cast<const dirent64*>(buffer.data() + offset);
            if (const auto id = toNumber<qint64>(entry->d_name))
                readProcess(*id, elapsed);
            offset += entry->d_reclen;
        }
    }
    if (!std::is_sorted(m_current.begin(), m_current.end()))
        std::sort(m_current.begin(), m_current.end());
}

void LinuxProcessSource::readProcess(qint64 id, double elapsed)
{
    Process process;
    process.id = id;
    const auto before = std::lower_bound(m_previous.cbegin(), m_previous.cend(), process);
    const bool isKnown = before != m_previous.cend() && before->id == id;
    if (isKnown)
        process.clock = before->clock;
    else if (::clock_getcpuclockid(static_cast<pid_t>(id), &process.clock) != 0)
        return;
    const auto seconds = secondsOn(process.clock);
    if (!seconds)
        return; // it ended meanwhile
    process.seconds = *seconds;

    // Less than before: the number was given to another process.
    if (isKnown && before->seconds <= *seconds)
        process.cpu = 100 * (*seconds - before->seconds) / elapsed;
    else if (const auto details = detailsOf(id))
        process.cpu = 100 * *seconds / std::max(details->age, shortestInterval);
    m_current.push_back(process);
}

QByteArray LinuxProcessSource::fileOf(qint64 id, const char* name) const
{
    std::array<char, 32> path;
    std::array<char, 1024> text;
    std::snprintf(path.data(), path.size(), "%lld/%s", id, name);
    const int file = ::openat(m_folder, path.data(), O_RDONLY | O_CLOEXEC);
    if (file < 0)
        return {};
    const auto length = ::read(file, text.data(), text.size());
    ::close(file);
    return QByteArray(text.data(), std::max<ssize_t>(length, 0));
}

std::optional<LinuxProcessSource::Details> LinuxProcessSource::detailsOf(qint64 id) const
{
    const QByteArray text = fileOf(id, "stat");
    const auto stat = parseProcessStat({text.constData(), static_cast<std::size_t>(text.size())});
    if (!stat)
        return std::nullopt;
    Details details;
    details.name = QByteArray(stat->name.data(), static_cast<qsizetype>(stat->name.size()));
    // Of a process that waits for a device the command line may not be had before that device answers.
    details.isCut = stat->name.size() == longestProcessName && !stat->isBlocked;
    details.start = stat->start;
    if (m_pagesInMemory > 0)
        details.memory = 100 * static_cast<double>(stat->residentPages) / m_pagesInMemory;
    details.age = secondsOn(CLOCK_BOOTTIME).value_or(0) - static_cast<double>(stat->start) / m_ticksPerSecond;
    return details;
}

QString LinuxProcessSource::nameOf(qint64 id, const Details& details)
{
    const auto known = m_wholeNames.constFind(id);
    if (known != m_wholeNames.constEnd() && known->start == details.start && known->cut == details.name)
        return QString::fromUtf8(known->whole);
    m_wholeNames.remove(id);
    if (!details.isCut)
        return QString::fromUtf8(details.name);
    const QByteArray whole = wholeProcessName(details.name, fileOf(id, "cmdline"));
    m_wholeNames.insert(id, {details.name, details.start, whole});
    return QString::fromUtf8(whole);
}

} // namespace ambrelle
