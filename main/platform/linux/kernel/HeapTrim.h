// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// Gives the kernel back whole free pages of the heap; any thread.
void trimHeap();

} // namespace ambrelle
