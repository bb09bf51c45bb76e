// SPDX-License-Identifier: MIT

#include "platform/linux/update/ProbationGuard.h"

#include "platform/linux/update/Probation.h"

#include <array>
#include <atomic>
#include <cerrno>
#include <cstdlib>

#include <fcntl.h>
#include <sys/socket.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ambrelle::ProbationGuard {

namespace {

constexpr int guardsEnd = STDERR_FILENO + 1;
std::atomic<int> programsEnd = -1;

/// Whether the program told that it needs no guard any more, before it ended.
bool isDismissed()
{
    char byte = 0;
    ssize_t count = 0;
    do
        count = ::read(guardsEnd, &byte, 1);
    while (count < 0 && errno == EINTR);
    return count != 0;
}

[[noreturn]] void keepGuard(int end, const QString& program, int attempt)
{
    ::setsid(); // the end of the terminal is not its end
    ::dup2(end, guardsEnd);
    ::close_range(guardsEnd + 1, ~0U, 0); // the lock of the one instance above all
    if (!isDismissed() && Probation::undo(program, attempt))
        Probation::become(program);
    ::_exit(EXIT_SUCCESS);
}

} // namespace

void openStandardDescriptors()
{
    int descriptor = 0;
    do
        descriptor = ::open("/dev/null", O_RDWR | O_CLOEXEC);
    while (descriptor >= 0 && descriptor <= STDERR_FILENO);
    ::close(descriptor);
}

void start(const QString& program, int attempt)
{
    std::array<int, 2> ends{};
    if (::socketpair(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0, ends.data()) != 0)
        return;
    const pid_t child = ::fork();
    if (child == 0) {
        // Twice, so that nobody has to wait for it.
        if (::fork() == 0)
            keepGuard(ends[0], program, attempt);
        ::_exit(EXIT_SUCCESS);
    }
    ::close(ends[0]);
    if (child < 0) {
        ::close(ends[1]);
        return;
    }
    ::waitpid(child, nullptr, 0);
    programsEnd = ends[1];
}

void dismiss()
{
    const int end = programsEnd.exchange(-1);
    if (end < 0)
        return;
    const int error = errno;
    const char byte = 0;
    ::send(end, &byte, 1, MSG_NOSIGNAL); // it may have ended itself
    ::close(end);
    errno = error;
}

} // namespace ambrelle::ProbationGuard
