// SPDX-License-Identifier: MIT

#pragma once

#include "platform/SystemSources.h"

#include <string_view>

namespace ambrelle {

/// Reads lines of "pid pcpu pmem name" as ps writes them, in their order, up to `count` rows. Damaged lines are left
/// out, and so is ps itself.
QList<ProcessRow> parseProcessList(std::string_view text, int count);

} // namespace ambrelle
