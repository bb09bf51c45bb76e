// SPDX-License-Identifier: MIT

#pragma once

#include <csignal>
#include <sys/resource.h>

namespace ambrelle::test {

/// Files cannot grow beyond some bytes while it lives, as on a full disk.
class FullDisk {
public:
    FullDisk()
    {
        getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit small{256, m_before.rlim_max};
        setrlimit(RLIMIT_FSIZE, &small);
        m_handler = std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
    }
    ~FullDisk()
    {
        setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    rlimit m_before{};
    void (*m_handler)(int) = nullptr;
};

} // namespace ambrelle::test
