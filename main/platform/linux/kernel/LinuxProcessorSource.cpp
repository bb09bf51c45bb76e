// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxProcessorSource.h"

#include "foundation/Wording.h"
#include "platform/linux/kernel/ProcessorParser.h"

#include <algorithm>
#include <ctime>

#include <sys/sysinfo.h>

namespace ambrelle {

namespace {

// The kernel's estimates of waiting and guest time may go back by a few ticks: such a counter stands still until it has
// caught up.
ProcessorTicks neverBack(const ProcessorTicks& before, const ProcessorTicks& now)
{
    return {std::max(before.user, now.user), std::max(before.system, now.system), std::max(before.idle, now.idle),
        std::max(before.nice, now.nice)};
}

} // namespace

LinuxProcessorSource::LinuxProcessorSource(const QByteArray& procFolder)
    : m_file(procFolder + "/stat")
{
    m_available = m_file.read().has_value();
}

QString LinuxProcessorSource::whyNot() const
{
    return m_available ? QString() : Wording::tr("The kernel does not tell how busy the processors are.");
}

std::optional<QList<ProcessorTicks>> LinuxProcessorSource::ticks()
{
    const auto text = m_file.read();
    auto current = text ? parseProcessorTicks(*text) : std::nullopt;
    m_available = current.has_value();
    if (!current)
        return std::nullopt;
    if (m_previous.size() == current->size()) {
        for (qsizetype i = 0; i < current->size(); ++i)
            (*current)[i] = neverBack(m_previous.at(i), current->at(i));
    }
    m_previous = *current;
    return current;
}

std::optional<std::array<double, 3>> LinuxProcessorSource::loadAverages()
{
    struct sysinfo info { };
    if (::sysinfo(&info) != 0)
        return std::nullopt;
    constexpr double scale = 1 << SI_LOAD_SHIFT;
    return std::array{static_cast<double>(info.loads[0]) / scale, static_cast<double>(info.loads[1]) / scale,
        static_cast<double>(info.loads[2]) / scale};
}

double LinuxProcessorSource::uptime()
{
    timespec time{};
    if (::clock_gettime(CLOCK_BOOTTIME, &time) != 0)
        return 0;
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) * 1e-9;
}

} // namespace ambrelle
