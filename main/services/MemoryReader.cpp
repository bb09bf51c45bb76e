#include "services/MemoryReader.h"

#include <algorithm>

namespace ambrelle {

MemoryReader::MemoryReader(MemorySource& source)
    : m_source(source)
{
}

MemoryInfo MemoryReader::read()
{
    const auto pages = m_source.pages();
    MemoryInfo info;
    info.total = m_source.physicalMemory();
    if (!pages)
        return info;

    const quint64 page = m_source.pageSize();
    const quint64 appPages = pages->internal > pages->purgeable ? pages->internal - pages->purgeable : 0;
    info.app = appPages * page;
    info.wired = pages->wired * page;
    info.compressed = pages->compressor * page;
    info.used = std::min(info.total, info.app + info.wired + info.compressed);
    return info;
}

} // namespace ambrelle
