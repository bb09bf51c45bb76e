// SPDX-License-Identifier: MIT

#include "unpacking/ToolLimits.h"

#include <algorithm>
#include <csignal>

#include <sys/resource.h>
#include <sys/stat.h>

namespace ambrelle {

namespace {

constexpr rlim_t mebibyte = 1U << 20;

bool limit(int resource, rlim_t most)
{
    rlimit limits{};
    if (::getrlimit(static_cast<__rlimit_resource>(resource), &limits) != 0)
        return false;
    limits.rlim_max = std::min(limits.rlim_max, most);
    limits.rlim_cur = std::min(limits.rlim_cur, limits.rlim_max);
    return ::setrlimit(static_cast<__rlimit_resource>(resource), &limits) == 0;
}

} // namespace

bool keepWithinLimits()
{
    ::umask(022);
    std::signal(SIGXFSZ, SIG_IGN); // a file that grows too large is a failed write
#ifndef __SANITIZE_ADDRESS__ // which maps more addresses than there is memory
    if (!limit(RLIMIT_AS, 384 * mebibyte))
        return false;
#endif
    return limit(RLIMIT_FSIZE, 256 * mebibyte) && limit(RLIMIT_CPU, 120) && limit(RLIMIT_CORE, 0);
}

} // namespace ambrelle
