// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

namespace ambrelle {

/// Bytes over all counted interfaces.
struct NetworkTotals {
    quint64 received = 0;
    quint64 sent = 0;

    bool operator==(const NetworkTotals&) const = default;
};

class NetworkReader {
public:
    explicit NetworkReader(NetworkSource& source);

    /// Zeros when the source does not answer.
    NetworkTotals totals();

private:
    NetworkSource& m_source;
};

} // namespace ambrelle
