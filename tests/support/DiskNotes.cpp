// SPDX-License-Identifier: MIT
// Preloaded into a program, this notes all that the program does to files below $AMBRELLE_DISK, so that what a power
// cut may leave of it can be made up afterwards (power_cut.py). The file $AMBRELLE_DISK_NOTES gets a line for each
// step: seconds of the monotonic clock, the step, and what it is about. Files and folders are told by their inodes.
// Every flush takes $AMBRELLE_FLUSH_TIME milliseconds longer.

#include <array>
#include <chrono>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <string>
#include <thread>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

template <typename Function> Function original(const char* name, Function)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

bool isNoted(const char* path)
{
    static const char* const folder = std::getenv("AMBRELLE_DISK");
    return path && folder && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool isNoted(int file)
{
    std::array<char, 4096> path{};
    const std::string link = "/proc/self/fd/" + std::to_string(file);
    return ::readlink(link.c_str(), path.data(), path.size() - 1) > 0 && isNoted(path.data());
}

/// In one piece, so that the steps of several threads keep their order.
void note(const std::string& step)
{
    static const int notes =
        original("open", &::open)(std::getenv("AMBRELLE_DISK_NOTES"), O_WRONLY | O_CREAT | O_APPEND | O_CLOEXEC, 0600);
    timespec now{};
    ::clock_gettime(CLOCK_MONOTONIC, &now);
    std::array<char, 32> time{};
    std::snprintf(time.data(), time.size(), "%lld.%09ld ", static_cast<long long>(now.tv_sec), now.tv_nsec);
    const std::string line = time.data() + step + '\n';
    if (original("write", &::write)(notes, line.data(), line.size()) != static_cast<ssize_t>(line.size()))
        std::abort(); // half a note would lead to a wrong disk
}

std::string inodeOf(int file)
{
    struct stat about { };
    return ::fstat(file, &about) == 0 ? std::to_string(about.st_ino) : "-";
}

std::string inodeOf(const char* path)
{
    struct stat about { };
    return ::stat(path, &about) == 0 ? std::to_string(about.st_ino) : "-";
}

int opened(const char* name, const char* path, int flags, mode_t mode)
{
    const bool made = (flags & O_CREAT) && ::access(path, F_OK) != 0;
    const int file = original(name, &::open)(path, flags, mode);
    if (file >= 0 && isNoted(path)) {
        if (made)
            note("made " + inodeOf(file) + ' ' + path);
        else if (flags & O_TRUNC)
            note("cut " + inodeOf(file));
    }
    return file;
}

int flushed(const char* name, int file)
{
    static const char* const time = std::getenv("AMBRELLE_FLUSH_TIME");
    const bool noted = isNoted(file);
    if (noted)
        note("flush " + inodeOf(file));
    if (time)
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(time)));
    const int result = original(name, &::fsync)(file);
    if (noted && result == 0)
        note("flushed " + inodeOf(file));
    return result;
}

} // namespace

extern "C" {

int open(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return opened("open", path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return opened("open64", path, flags, mode);
}

ssize_t write(int file, const void* bytes, size_t count)
{
    const ssize_t written = original("write", &::write)(file, bytes, count);
    if (written > 0 && file > STDERR_FILENO && isNoted(file)) {
        std::string step = "wrote " + inodeOf(file) + ' ' + std::to_string(::lseek(file, 0, SEEK_CUR) - written) + ' ';
        for (ssize_t i = 0; i < written; ++i) {
            std::array<char, 3> digits{};
            std::snprintf(digits.data(), digits.size(), "%02x", static_cast<const unsigned char*>(bytes)[i]);
            step += digits.data();
        }
        note(step);
    }
    return written;
}

int fsync(int file)
{
    return flushed("fsync", file);
}

int fdatasync(int file)
{
    return flushed("fdatasync", file);
}

int rename(const char* from, const char* to) noexcept
{
    const int result = original("rename", &::rename)(from, to);
    if (result == 0 && isNoted(to))
        note(std::string("moved ") + from + ' ' + to);
    return result;
}

int unlink(const char* path) noexcept
{
    const int result = original("unlink", &::unlink)(path);
    if (result == 0 && isNoted(path))
        note(std::string("gone ") + path);
    return result;
}

int mkdir(const char* path, mode_t mode) noexcept
{
    const int result = original("mkdir", &::mkdir)(path, mode);
    if (result == 0 && isNoted(path))
        note("made " + inodeOf(path) + ' ' + path + '/');
    return result;
}

} // extern "C"
