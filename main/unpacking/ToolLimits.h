// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// Keeps this process within what unpacking a program takes, whatever it reads: memory, size of files, processor time;
/// no picture of its memory is left behind. Limits that are narrower already stay. False when the system refuses.
bool keepWithinLimits();

} // namespace ambrelle
