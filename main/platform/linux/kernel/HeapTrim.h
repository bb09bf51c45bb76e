// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// From now on large blocks, pictures above all, go back to the kernel as they are freed. Left alone the C library
/// learns from the first of them to put the next ones on the heap of their thread, whose free end trimHeap() does not
/// reach. That end goes back too as soon as it is worth it.
void returnLargeBlocks();

/// Gives the kernel back whole free pages of the heap; any thread.
void trimHeap();

} // namespace ambrelle
