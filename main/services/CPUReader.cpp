// SPDX-License-Identifier: MIT

#include "services/CPUReader.h"

#include <utility>

namespace ambrelle {

CPUReader::CPUReader(ProcessorSource& source)
    : m_source(source)
{
}

CPUReader::Reading CPUReader::read()
{
    const auto current = m_source.ticks();
    if (!current)
        return {};
    const auto previous = std::exchange(m_previous, *current);

    Reading reading{0, QList<double>(current->size(), 0)};
    if (previous.size() != current->size())
        return reading;

    quint64 allBusy = 0;
    quint64 allTicks = 0;
    for (qsizetype i = 0; i < current->size(); ++i) {
        const auto& now = current->at(i);
        const auto& before = previous.at(i);
        const quint64 busy = (now.user - before.user) + (now.system - before.system) + (now.nice - before.nice);
        const quint64 ticks = busy + (now.idle - before.idle);
        if (ticks > 0)
            reading.perCore[i] = static_cast<double>(busy) / static_cast<double>(ticks);
        allBusy += busy;
        allTicks += ticks;
    }
    if (allTicks > 0)
        reading.total = static_cast<double>(allBusy) / static_cast<double>(allTicks);
    return reading;
}

} // namespace ambrelle
