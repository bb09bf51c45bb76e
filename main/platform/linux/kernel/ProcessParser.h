// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <string_view>

namespace ambrelle {

/// What /proc/<pid>/stat tells of a process.
struct ProcessStat {
    qint64 id = 0;
    std::string_view name; ///< as the process called itself; blanks, brackets and line ends may stand in it
    bool isBlocked = false; ///< waits for a device, and for nothing else meanwhile
    quint64 ticks = 0; ///< processor time used since it started, its own and the kernel's for it
    quint64 start = 0; ///< ticks after boot
    quint64 residentPages = 0;
};

/// Nothing for a damaged text. The name lies in `text`.
std::optional<ProcessStat> parseProcessStat(std::string_view text);

/// In bytes; the kernel cuts what is longer.
inline constexpr std::size_t longestProcessName = 15;

/// The name that was cut to `name`, as the arguments of the process's command line (each ends with a zero byte) tell
/// it: the program or script that begins so, else the program. `name` itself without a command line.
QByteArray wholeProcessName(const QByteArray& name, const QByteArray& commandLine);

} // namespace ambrelle
