// SPDX-License-Identifier: MIT

#include "services/MemoryReader.h"

#include <algorithm>

namespace ambrelle {

MemoryReader::MemoryReader(MemorySource& source)
    : m_source(source)
{
}

MemoryInfo MemoryReader::read()
{
    const auto use = m_source.use();
    MemoryInfo info;
    info.total = m_source.physicalMemory();
    if (!use)
        return info;
    info.app = use->programs;
    info.wired = use->wired;
    info.compressed = use->compressed;
    info.used = std::min(info.total, info.app + info.wired + info.compressed);
    return info;
}

} // namespace ambrelle
