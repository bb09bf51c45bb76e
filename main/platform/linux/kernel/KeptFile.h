// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

#include <optional>
#include <string_view>
#include <vector>

namespace ambrelle {

/// A file of the kernel's that is read again and again: it stays open, and its text goes into a buffer that stays too,
/// so that a reading costs two system calls and no memory.
class KeptFile {
public:
    explicit KeptFile(QByteArray path);
    KeptFile(KeptFile&& other) noexcept;
    KeptFile& operator=(KeptFile&& other) noexcept;
    ~KeptFile();

    /// The whole text of now, valid until the next call; nothing when there is no such file. A file that was replaced
    /// or whose device was plugged in again is opened anew.
    std::optional<std::string_view> read();
    const QByteArray& path() const { return m_path; }

private:
    bool open();
    void close();
    std::optional<std::string_view> readOpened();

    QByteArray m_path;
    int m_descriptor = -1;
    std::vector<char> m_buffer;
};

} // namespace ambrelle
