// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <string_view>

namespace ambrelle {

/// Reads the "cpu0", "cpu1", … lines of /proc/stat, one entry per processor that is online. Time spent on interrupts
/// and time a hypervisor took count as system time, waiting for a disk as idle time. A damaged line is left out;
/// nothing when none is left.
std::optional<QList<ProcessorTicks>> parseProcessorTicks(std::string_view text);

} // namespace ambrelle
