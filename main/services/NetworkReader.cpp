// SPDX-License-Identifier: MIT

#include "services/NetworkReader.h"

namespace ambrelle {

NetworkReader::NetworkReader(NetworkSource& source)
    : m_source(source)
{
}

NetworkTotals NetworkReader::totals()
{
    NetworkTotals totals;
    const auto interfaces = m_source.interfaces();
    if (!interfaces)
        return totals;
    for (const auto& interface : *interfaces) {
        if (!interface.counted)
            continue;
        totals.received += interface.received;
        totals.sent += interface.sent;
    }
    return totals;
}

} // namespace ambrelle
