// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>

namespace ambrelle {

/// What an archive says of one of the things in it.
struct ArchiveItem {
    enum class Kind { file, folder, other };

    std::string path; ///< parts between slashes; that of a folder may end with one
    Kind kind = Kind::other;
    bool isLink = false; ///< of any kind: it is elsewhere
    bool isEncrypted = false;
    unsigned mode = 0; ///< as of chmod
    std::int64_t bytes = -1; ///< unpacked; -1: it does not say

    bool operator==(const ArchiveItem&) const = default;
};

/// What a program with everything that belongs to it stays well below.
struct ArchiveBounds {
    int items = 4000;
    std::int64_t fileBytes = 256LL << 20;
    std::int64_t allBytes = 512LL << 20;

    bool operator==(const ArchiveBounds&) const = default;
};

/// What is wrong with a path; empty: nothing. Good ones mean the same on every file system and in every language.
std::string faultOfPath(std::string_view path);
/// 0755 for folders and what its owner may run, 0644 for the rest, whoever else was to have it.
unsigned plainMode(const ArchiveItem& item);

/// What may be in an archive: plain files and folders, below one folder, each once. It is told of every item in turn.
class ArchiveRules {
public:
    explicit ArchiveRules(const ArchiveBounds& bounds = {});

    /// Why the archive is refused; empty: go on.
    std::string admit(const ArchiveItem& item);
    /// Likewise, when there are no more.
    std::string close() const;
    /// In all files so far.
    std::int64_t bytes() const { return m_bytes; }

private:
    struct Place {
        std::string path; ///< as it was spelt first
        bool isFolder = false;
        bool isListed = false; ///< not only on the way to something else
    };

    std::string take(std::string_view path, bool isFolder);
    /// Null: another spelling, or a file, has the place already.
    Place* placeAt(std::string_view path, bool isFolder);

    ArchiveBounds m_bounds;
    std::map<std::string, Place> m_places; ///< by their paths in small letters
    std::string m_top;
    int m_items = 0;
    std::int64_t m_bytes = 0;
};

} // namespace ambrelle
