// SPDX-License-Identifier: MIT

// Preloaded into the program, makes the disk slow: whatever waits for it to flush waits AMBRELLE_FLUSH milliseconds
// (200) longer. The file that AMBRELLE_FLUSHES names gets a line of "seconds-since-start thread" for each: "main" or
// "other".
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <cstdlib>
#include <ctime>

namespace {

constexpr long standardDelay = 200; // milliseconds
constexpr long thousand = 1000;

timespec timeNow()
{
    timespec time{};
    clock_gettime(CLOCK_MONOTONIC, &time);
    return time;
}

const timespec loaded = timeNow();

void note()
{
    const char* name = std::getenv("AMBRELLE_FLUSHES");
    const int file = name ? open(name, O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600) : -1;
    if (file < 0)
        return;
    const timespec now = timeNow();
    const double at =
        static_cast<double>(now.tv_sec - loaded.tv_sec) + static_cast<double>(now.tv_nsec - loaded.tv_nsec) / 1e9;
    std::array<char, 64> line{};
    const int length =
        std::snprintf(line.data(), line.size(), "%.3f %s\n", at, syscall(SYS_gettid) == getpid() ? "main" : "other");
    [[maybe_unused]] const auto written = write(file, line.data(), static_cast<size_t>(length));
    close(file);
}

template <typename... Arguments> int late(const char* name, Arguments... arguments)
{
    note();
    const char* wished = std::getenv("AMBRELLE_FLUSH");
    const long delay = wished ? std::atol(wished) : standardDelay;
    const timespec pause{delay / thousand, delay % thousand * thousand * thousand};
    nanosleep(&pause, nullptr);
    return reinterpret_cast<int (*)(Arguments...)>(dlsym(RTLD_NEXT, name))(arguments...);
}

} // namespace

extern "C" int fsync(int file)
{
    return late("fsync", file);
}

extern "C" int fdatasync(int file)
{
    return late("fdatasync", file);
}

extern "C" int syncfs(int file) noexcept
{
    return late("syncfs", file);
}

extern "C" int msync(void* memory, size_t length, int flags)
{
    return late("msync", memory, length, flags);
}

extern "C" int sync_file_range(int file, off64_t offset, off64_t length, unsigned flags)
{
    return late("sync_file_range", file, offset, length, flags);
}
