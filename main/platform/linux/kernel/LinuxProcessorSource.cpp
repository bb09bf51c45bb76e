// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/LinuxProcessorSource.h"

#include "foundation/Wording.h"
#include "platform/linux/kernel/ProcessorParser.h"

#include <algorithm>
#include <ctime>

#include <sys/sysinfo.h>

namespace ambrelle {

namespace {

constexpr std::array counters{
    &ProcessorTicks::user, &ProcessorTicks::system, &ProcessorTicks::idle, &ProcessorTicks::nice};

// The kernel's estimates of waiting and guest time may go back by a few ticks: such a counter stands still until it has
// caught up. Farther back go those of a processor that was switched off, as all but one are while the machine sleeps:
// they begin anew.
constexpr quint64 smallStep = 100; // a second

bool beganAnew(const ProcessorTicks& before, const ProcessorTicks& now)
{
    return std::ranges::any_of(counters,
        [&](auto counter) { return before.*counter > now.*counter && before.*counter - now.*counter > smallStep; });
}

/// Carries `told` on from what the kernel told before and tells now. A processor that began anew did nothing meanwhile.
void carryOn(ProcessorTicks& told, ProcessorTicks& kernel, const ProcessorTicks& now)
{
    if (beganAnew(kernel, now)) {
        kernel = now;
        return;
    }
    for (const auto counter : counters) {
        const quint64 latest = std::max(kernel.*counter, now.*counter);
        told.*counter += latest - kernel.*counter;
        kernel.*counter = latest;
    }
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
    const auto current = text ? parseProcessorTicks(*text) : std::nullopt;
    m_available = current.has_value();
    if (!current)
        return std::nullopt;
    if (m_kernel.size() != current->size()) {
        m_kernel = *current;
        m_told = *current;
    }
    for (qsizetype i = 0; i < current->size(); ++i)
        carryOn(m_told[i], m_kernel[i], current->at(i));
    return m_told;
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
