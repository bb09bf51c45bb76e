// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <string_view>

namespace ambrelle {

/// What /proc/<pid>/stat tells of a process.
struct ProcessStat {
    qint64 id = 0;
    std::string_view name; ///< as the process called itself; blanks, brackets and line ends may stand in it
    quint64 ticks = 0; ///< processor time used since it started, its own and the kernel's for it
    quint64 start = 0; ///< ticks after boot
    quint64 residentPages = 0;
};

/// Nothing for a damaged text. The name lies in `text`.
std::optional<ProcessStat> parseProcessStat(std::string_view text);

} // namespace ambrelle
