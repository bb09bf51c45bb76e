// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/ThreadPriority.h"

#include <sys/resource.h>

namespace ambrelle {

void lowerThreadPriority()
{
    // On Linux the niceness is the thread's own, which the toolkit's thread priorities do not use.
    ::setpriority(PRIO_PROCESS, 0, 10);
}

} // namespace ambrelle
