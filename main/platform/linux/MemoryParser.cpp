#include "platform/linux/MemoryParser.h"

#include "platform/linux/TextFields.h"

#include <algorithm>

namespace ambrelle {

namespace {

struct Line {
    std::string_view name;
    quint64 KernelMemory::*field;
};

constexpr std::array lines{
    Line{"MemTotal", &KernelMemory::total},
    Line{"AnonPages", &KernelMemory::anonymous},
    Line{"Shmem", &KernelMemory::shared},
    Line{"Unevictable", &KernelMemory::unevictable},
    Line{"SUnreclaim", &KernelMemory::kernel},
    Line{"KernelStack", &KernelMemory::kernel},
    Line{"PageTables", &KernelMemory::kernel},
    Line{"SecPageTables", &KernelMemory::kernel},
    Line{"Percpu", &KernelMemory::kernel},
    Line{"Hugetlb", &KernelMemory::kernel},
    Line{"Zswap", &KernelMemory::compressed},
};

// More than any machine has: such a line is damaged, and sums of the rest stay far from wrapping.
constexpr quint64 mostKibibytes = quint64{1} << 48;

} // namespace

std::optional<KernelMemory> parseMemory(std::string_view text)
{
    KernelMemory memory;
    bool hasAnonymous = false;
    while (!text.empty()) {
        auto line = takeLine(text);
        const auto name = takeUntil(line, ':');
        const auto known =
            std::find_if(lines.begin(), lines.end(), [name](const Line& each) { return each.name == name; });
        if (known == lines.end())
            continue;
        const auto kibibytes = takeNumber<quint64>(line);
        if (!kibibytes || *kibibytes > mostKibibytes)
            continue;
        memory.*known->field += *kibibytes * 1024;
        hasAnonymous = hasAnonymous || known->field == &KernelMemory::anonymous;
    }
    return memory.total > 0 && hasAnonymous ? std::optional(memory) : std::nullopt;
}

quint64 parseCompressedDevice(std::string_view text)
{
    takeField(text);
    takeField(text);
    return takeNumber<quint64>(text).value_or(0);
}

MemoryPages pagesOf(const KernelMemory& memory, quint64 pageSize)
{
    const quint64 page = std::max<quint64>(pageSize, 1);
    const quint64 swappable = memory.anonymous + memory.shared;
    MemoryPages pages;
    pages.wired = (memory.kernel + memory.unevictable) / page;
    pages.internal = (swappable - std::min(swappable, memory.unevictable)) / page;
    pages.compressor = memory.compressed / page;
    // Pages that programs gave up (MADV_FREE) are counted by no file of the whole machine, so none is purgeable.
    return pages;
}

} // namespace ambrelle
