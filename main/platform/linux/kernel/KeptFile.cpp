// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/KeptFile.h"

#include <cerrno>
#include <utility>

#include <fcntl.h>
#include <unistd.h>

namespace ambrelle {

namespace {

constexpr std::size_t firstSize = 4096;
constexpr std::size_t largestSize = std::size_t{16} << 20; // no file of the kernel's is as long

} // namespace

KeptFile::KeptFile(QByteArray path)
    : m_path(std::move(path))
{
}

KeptFile::KeptFile(KeptFile&& other) noexcept
    : m_path(std::move(other.m_path))
    , m_descriptor(std::exchange(other.m_descriptor, -1))
    , m_buffer(std::move(other.m_buffer))
{
}

KeptFile& KeptFile::operator=(KeptFile&& other) noexcept
{
    std::swap(m_path, other.m_path);
    std::swap(m_descriptor, other.m_descriptor);
    std::swap(m_buffer, other.m_buffer);
    return *this;
}

KeptFile::~KeptFile()
{
    close();
}

std::optional<std::string_view> KeptFile::read()
{
    if (m_descriptor >= 0) {
        if (const auto text = readOpened())
            return text;
        close();
    }
    if (!open())
        return std::nullopt;
    const auto text = readOpened();
    if (!text)
        close();
    return text;
}

bool KeptFile::open()
{
    m_descriptor = ::open(m_path.constData(), O_RDONLY | O_CLOEXEC);
    if (m_descriptor >= 0 && m_buffer.empty())
        m_buffer.resize(firstSize);
    return m_descriptor >= 0;
}

void KeptFile::close()
{
    if (m_descriptor >= 0)
        ::close(std::exchange(m_descriptor, -1));
}

std::optional<std::string_view> KeptFile::readOpened()
{
    // The kernel hands long files over in pieces, so only an empty read tells the end.
    std::size_t length = 0;
    while (length < largestSize) {
        if (length == m_buffer.size())
            m_buffer.resize(2 * length);
        const auto count = ::pread(m_descriptor, m_buffer.data() + length, m_buffer.size() - length, off_t(length));
        if (count < 0 && errno == EINTR)
            continue;
        if (count < 0)
            return std::nullopt;
        if (count == 0)
            break;
        length += static_cast<std::size_t>(count);
    }
    return std::string_view(m_buffer.data(), length);
}

} // namespace ambrelle
