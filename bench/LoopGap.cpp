// SPDX-License-Identifier: MIT

// Preloaded into the program, notes how long its main thread was away from its event loop, as lines of
// "seconds-since-start wall-ms cpu-ms queued-ms" in the file that AMBRELLE_GAPS names when the program ends or becomes
// another. Queued is how long it waited for a processor that others had.
#include <dlfcn.h>
#include <fcntl.h>
#include <poll.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <vector>

namespace {

struct Moment {
    double wall = 0; // all in milliseconds
    double cpu = 0;
    double queued = 0;
};

struct Gap {
    double at = 0; // seconds
    Moment length;
};

constexpr double noticeable = 1; // milliseconds

std::vector<Gap> gaps;
Moment start;
Moment left; // the loop's last wait ended
bool isAway = false;

double read(clockid_t clock)
{
    timespec time{};
    clock_gettime(clock, &time);
    return static_cast<double>(time.tv_sec) * 1e3 + static_cast<double>(time.tv_nsec) / 1e6;
}

/// The second figure of the thread's statistics, in nanoseconds; 0 where the kernel keeps none.
double queued()
{
    static const int file = open("/proc/thread-self/schedstat", O_RDONLY | O_CLOEXEC); // the main thread's
    std::array<char, 80> text{};
    if (file < 0 || pread(file, text.data(), text.size() - 1, 0) <= 0)
        return 0;
    const char* second = std::strchr(text.data(), ' ');
    return second ? std::atof(second) / 1e6 : 0;
}

Moment now()
{
    return {read(CLOCK_MONOTONIC), read(CLOCK_THREAD_CPUTIME_ID), queued()};
}

/// The event loop waits for its wake-up among others; the main thread also waits for single answers, within its work.
bool isLoop(const pollfd* files, nfds_t count)
{
    if (syscall(SYS_gettid) != getpid())
        return false;
    for (nfds_t i = 0; i < count; ++i) {
        std::array<char, 40> link{};
        std::array<char, 40> target{};
        std::snprintf(link.data(), link.size(), "/proc/self/fd/%d", files[i].fd);
        if (readlink(link.data(), target.data(), target.size() - 1) > 0 && std::strstr(target.data(), "eventfd"))
            return true;
    }
    return false;
}

void arrive()
{
    const Moment here = now();
    if (!isAway)
        start = here;
    else if (here.wall - left.wall > noticeable)
        gaps.push_back(
            {(left.wall - start.wall) / 1e3, {here.wall - left.wall, here.cpu - left.cpu, here.queued - left.queued}});
}

void leave()
{
    left = now();
    isAway = true;
}

template <typename Wait> int waited(const pollfd* files, nfds_t count, Wait wait)
{
    if (!isLoop(files, count))
        return wait();
    arrive();
    const int result = wait();
    leave();
    return result;
}

struct Report {
    Report()
    {
        const char* variable = std::getenv("AMBRELLE_GAPS");
        name = variable ? variable : "";
        for (const char* own : {"AMBRELLE_GAPS", "LD_PRELOAD"}) // not for what it starts
            unsetenv(own);
    }
    ~Report() { write(); }
    void write() const
    {
        std::FILE* file = getpid() == process && !name.empty() ? std::fopen(name.c_str(), "w") : nullptr;
        if (!file)
            return;
        for (const Gap& gap : gaps)
            std::fprintf(file, "%.3f %.2f %.2f %.2f\n", gap.at, gap.length.wall, gap.length.cpu, gap.length.queued);
        std::fclose(file);
    }

    const pid_t process = getpid();
    std::string name;
} report;

template <typename Function> Function* nextBeat(const char* name)
{
    return reinterpret_cast<Function*>(dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" int execv(const char* path, char* const arguments[])
{
    static const auto real = nextBeat<int(const char*, char* const[])>("execv");
    report.write();
    return real(path, arguments);
}

extern "C" int poll(pollfd* files, nfds_t count, int timeout)
{
    static const auto real = nextBeat<int(pollfd*, nfds_t, int)>("poll");
    return waited(files, count, [&] { return real(files, count, timeout); });
}

extern "C" int ppoll(pollfd* files, nfds_t count, const timespec* timeout, const sigset_t* mask)
{
    static const auto real = nextBeat<int(pollfd*, nfds_t, const timespec*, const sigset_t*)>("ppoll");
    return waited(files, count, [&] { return real(files, count, timeout, mask); });
}
