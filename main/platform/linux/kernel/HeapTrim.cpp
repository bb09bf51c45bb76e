// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/HeapTrim.h"

#include <malloc.h>

namespace ambrelle {

namespace {

constexpr int largeBlock = 512 * 1024; // bytes: pictures, and little else

} // namespace

void returnLargeBlocks()
{
    ::mallopt(M_MMAP_THRESHOLD, largeBlock);
    ::mallopt(M_TRIM_THRESHOLD, largeBlock);
}

void trimHeap()
{
    ::malloc_trim(0);
}

} // namespace ambrelle
