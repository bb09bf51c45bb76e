// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

namespace ambrelle {

/// How physical memory is used, in bytes. Files kept in memory and free pages do not count as used: what is shown is
/// the pressure on memory.
struct MemoryInfo {
    quint64 total = 0;
    quint64 used = 0;
    quint64 app = 0;
    quint64 wired = 0;
    quint64 compressed = 0;

    double fraction() const
    {
        return total > 0 ? static_cast<double>(used) / static_cast<double>(total) : 0;
    } ///< 0 to 1
    bool operator==(const MemoryInfo&) const = default;
};

class MemoryReader {
public:
    explicit MemoryReader(MemorySource& source);

    MemoryInfo read();

private:
    MemorySource& m_source;
};

} // namespace ambrelle
