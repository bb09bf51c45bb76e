// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/HeapTrim.h"

#include <malloc.h>

namespace ambrelle {

namespace {

constexpr int largeBlock = 512 * 1024; // bytes: pictures, and little else
constexpr int freeEnd = 64 * 1024; // bytes at the end of a heap that go back as soon as they are free
constexpr int reserve = 16 * 1024; // bytes that a heap keeps beyond what it needs

} // namespace

void returnLargeBlocks()
{
    ::mallopt(M_MMAP_THRESHOLD, largeBlock);
    ::mallopt(M_TRIM_THRESHOLD, freeEnd);
    ::mallopt(M_TOP_PAD, reserve);
}

void trimHeap()
{
    ::malloc_trim(0);
}

} // namespace ambrelle
