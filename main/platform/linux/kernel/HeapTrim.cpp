// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/HeapTrim.h"

#include <malloc.h>

namespace ambrelle {

void trimHeap()
{
    ::malloc_trim(0);
}

} // namespace ambrelle
