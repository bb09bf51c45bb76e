// SPDX-License-Identifier: MIT
// Preloaded into a program, this makes every path below $AMBRELLE_HANGING_FOLDER one of a server that went away:
// whoever asks for it waits for ever, after a note of the last part of the path in the folder $AMBRELLE_HANGING_NOTES.
// Every flush of a file takes $AMBRELLE_FLUSH_TIME milliseconds longer.

#include <chrono>
#include <cstdarg>
#include <cstdlib>
#include <cstring>
#include <string>
#include <thread>

#include <dirent.h>
#include <dlfcn.h>
#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

void hangBelow(const char* path)
{
    static const char* const folder = std::getenv("AMBRELLE_HANGING_FOLDER");
    if (!path || !folder || std::strncmp(path, folder, std::strlen(folder)) != 0)
        return;
    if (const char* notes = std::getenv("AMBRELLE_HANGING_NOTES"))
        ::close(::creat((notes + std::string(std::strrchr(path, '/'))).c_str(), 0600));
    while (true)
        ::pause();
}

template <typename Function> Function theOwn(const char* name, Function)
{
    return reinterpret_cast<Function>(::dlsym(RTLD_NEXT, name));
}

} // namespace

extern "C" {

DIR* opendir(const char* path)
{
    hangBelow(path);
    return theOwn("opendir", &opendir)(path);
}

int open(const char* path, int flags, ...)
{
    hangBelow(path);
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return theOwn("open", &open)(path, flags, mode);
}

int open64(const char* path, int flags, ...)
{
    hangBelow(path);
    va_list more;
    va_start(more, flags);
    const auto mode = va_arg(more, mode_t);
    va_end(more);
    return theOwn("open64", &open64)(path, flags, mode);
}

int fsync(int file)
{
    static const char* const time = std::getenv("AMBRELLE_FLUSH_TIME");
    if (time)
        std::this_thread::sleep_for(std::chrono::milliseconds(std::atoi(time)));
    return theOwn("fsync", &fsync)(file);
}

int statx(int folder, const char* path, int flags, unsigned mask, struct statx* result)
{
    hangBelow(path);
    return theOwn("statx", &statx)(folder, path, flags, mask, result);
}

} // extern "C"
