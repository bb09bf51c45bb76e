// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/MemoryParser.h"

#include "foundation/TextFields.h"

#include <algorithm>

namespace ambrelle {

namespace {

struct MemoryLine {
    std::string_view name;
    quint64 KernelMemory::*field;
};

constexpr std::array memoryLines{
    MemoryLine{"MemTotal", &KernelMemory::total},
    MemoryLine{"AnonPages", &KernelMemory::anonymous},
    MemoryLine{"Shmem", &KernelMemory::shared},
    MemoryLine{"Unevictable", &KernelMemory::unevictable},
    MemoryLine{"SUnreclaim", &KernelMemory::kernel},
    MemoryLine{"KernelStack", &KernelMemory::kernel},
    MemoryLine{"PageTables", &KernelMemory::kernel},
    MemoryLine{"SecPageTables", &KernelMemory::kernel},
    MemoryLine{"Percpu", &KernelMemory::kernel},
    MemoryLine{"Hugetlb", &KernelMemory::kernel},
    MemoryLine{"Zswap", &KernelMemory::compressed},
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
        const auto known = std::find_if(
            memoryLines.begin(), memoryLines.end(), [name](const MemoryLine& each) { return each.name == name; });
        if (known == memoryLines.end())
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

MemoryUse useOf(const KernelMemory& memory)
{
    const quint64 swappable = memory.anonymous + memory.shared;
    // What programs allow to be dropped (MADV_FREE) is counted by no file of the whole machine, so it stays in.
    return {.programs = swappable - std::min(swappable, memory.unevictable),
        .wired = memory.kernel + memory.unevictable,
        .compressed = memory.compressed};
}

} // namespace ambrelle
