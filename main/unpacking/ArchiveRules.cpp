// SPDX-License-Identifier: MIT

#include "unpacking/ArchiveRules.h"

#include <algorithm>

namespace ambrelle {

namespace {

constexpr std::size_t longestPath = 240;
constexpr std::ptrdiff_t mostParts = 12;
constexpr unsigned permissions = 0777;
constexpr unsigned ownerRuns = 0100;

bool isBetween(char letter, char first, char last)
{
    return first <= letter && letter <= last;
}

/// One that all file systems keep as it is; the classification of the C library depends on the language.
bool isGoodLetter(char letter)
{
    return isBetween(letter, 'a', 'z') || isBetween(letter, 'A', 'Z') || isBetween(letter, '0', '9')
        || std::string_view("._+@() -").find(letter) != std::string_view::npos;
}

std::string_view faultOfPart(std::string_view part)
{
    if (part.empty() || part == "." || part == "..")
        return "a path that goes elsewhere";
    if (part.front() == '-' || part.front() == ' ' || part.back() == '.' || part.back() == ' ')
        return "a name that programs misread";
    return {};
}

std::string inSmallLetters(std::string_view path)
{
    std::string small(path);
    std::ranges::transform(small, small.begin(),
        [](char letter) { return isBetween(letter, 'A', 'Z') ? static_cast<char>(letter - 'A' + 'a') : letter; });
    return small;
}

} // namespace

std::string faultOfPath(std::string_view path)
{
    if (path.size() > longestPath)
        return "a path that is too long";
    if (std::ranges::count(path, '/') >= mostParts)
        return "folders too deep in each other";
    for (std::size_t from = 0; from <= path.size();) {
        const std::size_t end = std::min(path.find('/', from), path.size());
        const std::string_view part = path.substr(from, end - from);
        if (const std::string_view fault = faultOfPart(part); !fault.empty())
            return std::string(fault);
        if (!std::ranges::all_of(part, isGoodLetter))
            return "a letter that is not for names";
        from = end + 1;
    }
    return {};
}

unsigned plainMode(const ArchiveItem& item)
{
    return item.kind == ArchiveItem::Kind::folder || (item.mode & ownerRuns) != 0 ? 0755 : 0644;
}

ArchiveRules::ArchiveRules(const ArchiveBounds& bounds)
    : m_bounds(bounds)
{
}

std::string ArchiveRules::admit(const ArchiveItem& item)
{
    const bool isFolder = item.kind == ArchiveItem::Kind::folder;
    if (++m_items > m_bounds.items)
        return "too many items";
    if (item.isLink || item.kind == ArchiveItem::Kind::other)
        return "neither a plain file nor a folder";
    if (item.isEncrypted)
        return "an encrypted item";
    if ((item.mode & ~permissions) != 0)
        return "a mode beyond reading, writing and running";
    if (isFolder ? item.bytes > 0 : item.bytes < 0)
        return "a size that is missing or makes no sense";
    if (!isFolder && (item.bytes > m_bounds.fileBytes || item.bytes > m_bounds.allBytes - m_bytes))
        return "too many bytes";
    m_bytes += isFolder ? 0 : item.bytes;
    std::string_view path = item.path;
    if (isFolder && path.ends_with('/'))
        path.remove_suffix(1);
    if (std::string fault = faultOfPath(path); !fault.empty())
        return fault;
    return take(path, isFolder);
}

std::string ArchiveRules::take(std::string_view path, bool isFolder)
{
    const std::size_t firstSlash = path.find('/');
    const std::string_view top = path.substr(0, firstSlash);
    if (m_top.empty())
        m_top = top;
    if (top != m_top || (firstSlash == std::string_view::npos && !isFolder))
        return "something beside the one folder";
    for (std::size_t slash = firstSlash; slash != std::string_view::npos; slash = path.find('/', slash + 1)) {
        if (!placeAt(path.substr(0, slash), true))
            return "two names for one place";
    }
    Place* place = placeAt(path, isFolder);
    if (!place || place->isListed)
        return "two names for one place";
    place->isListed = true;
    return {};
}

ArchiveRules::Place* ArchiveRules::placeAt(std::string_view path, bool isFolder)
{
    Place& place = m_places.try_emplace(inSmallLetters(path), Place{.path = std::string(path), .isFolder = isFolder})
                       .first->second;
    return place.path == path && place.isFolder == isFolder ? &place : nullptr;
}

std::string ArchiveRules::close() const
{
    return m_items == 0 ? "nothing in it" : "";
}

} // namespace ambrelle
