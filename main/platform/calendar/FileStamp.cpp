// SPDX-License-Identifier: MIT

#include "platform/calendar/FileStamp.h"

#include <QFile>

#include <sys/stat.h>

namespace ambrelle {

namespace {

qint64 nanoseconds(const timespec& time)
{
    return static_cast<qint64>(time.tv_sec) * 1'000'000'000 + time.tv_nsec;
}

} // namespace

std::optional<FileStamp> FileStamp::of(const QString& path)
{
    struct stat info { };
    if (::stat(QFile::encodeName(path).constData(), &info) != 0 || !S_ISREG(info.st_mode))
        return std::nullopt;
    return FileStamp{info.st_dev, info.st_ino, info.st_size, nanoseconds(info.st_mtim), nanoseconds(info.st_ctim)};
}

std::optional<QByteArray> boundedContent(const QString& path, qint64 mostBytes)
{
    const auto stamp = FileStamp::of(path);
    if (!stamp || stamp->size > mostBytes)
        return std::nullopt;
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly))
        return std::nullopt;
    // Not asked for more than there is: room for that much would be made each time.
    const QByteArray content = file.read(stamp->size + 1);
    return content.size() == stamp->size ? std::optional(content) : std::nullopt; // else it is being written
}

} // namespace ambrelle
