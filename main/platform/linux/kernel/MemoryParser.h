// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <string_view>

namespace ambrelle {

/// What /proc/meminfo tells, in bytes.
struct KernelMemory {
    quint64 total = 0;
    quint64 anonymous = 0; ///< of programs, without a file behind
    quint64 shared = 0; ///< shared between programs, or of files that exist in memory only
    quint64 unevictable = 0; ///< locked, nearly always anonymous or shared memory
    quint64 kernel = 0; ///< of the kernel itself, as far as it cannot be given back, and of reserved huge pages
    quint64 compressed = 0; ///< holds swapped pages in compressed form

    bool operator==(const KernelMemory&) const = default;
};

/// Nothing when the text lacks the total or the programs' memory. Lines it does not know or understand count as 0.
std::optional<KernelMemory> parseMemory(std::string_view text);
/// The third figure of a zram device's mm_stat: the memory it takes, in bytes; 0 when it cannot be read.
quint64 parseCompressedDevice(std::string_view text);
/// Nothing counts twice: locked memory is wired, and not a program's as well.
MemoryUse useOf(const KernelMemory& memory);

} // namespace ambrelle
