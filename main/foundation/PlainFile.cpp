// SPDX-License-Identifier: MIT

#include "foundation/PlainFile.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace ambrelle {

std::unique_ptr<QFile> openPlainFile(const QString& path)
{
    // The path may name something else a moment later, so the question goes to what was opened.
    const int descriptor = ::open(QFile::encodeName(path).constData(), O_RDONLY | O_NONBLOCK | O_NOCTTY | O_CLOEXEC);
    if (descriptor < 0)
        return nullptr;
    struct stat status { };
    auto file = std::make_unique<QFile>();
    const bool isPlain = ::fstat(descriptor, &status) == 0 && S_ISREG(status.st_mode);
    if (!isPlain || !file->open(descriptor, QIODevice::ReadOnly, QFileDevice::AutoCloseHandle)) {
        ::close(descriptor);
        return nullptr;
    }
    return file;
}

std::optional<QByteArray> readPlainFile(const QString& path, qint64 mostBytes)
{
    const std::unique_ptr<QFile> file = openPlainFile(path);
    if (!file || file->size() > mostBytes)
        return std::nullopt;
    QByteArray bytes = file->read(mostBytes + 1);
    const bool isWhole = file->error() == QFileDevice::NoError && bytes.size() <= mostBytes;
    return isWhole ? std::optional(std::move(bytes)) : std::nullopt;
}

} // namespace ambrelle
