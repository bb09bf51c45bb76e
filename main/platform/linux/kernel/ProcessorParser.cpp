// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/ProcessorParser.h"

#include "foundation/TextFields.h"

namespace ambrelle {

namespace {

// user nice system idle iowait irq softirq steal; what follows (guests) is part of user and nice already.
constexpr std::size_t fieldCount = 8;
constexpr std::size_t oldestFieldCount = 4;

std::optional<ProcessorTicks> parseTicks(std::string_view line)
{
    std::array<quint64, fieldCount> fields{};
    for (std::size_t i = 0; i < fieldCount; ++i) {
        const auto field = takeField(line);
        if (field.empty() && i >= oldestFieldCount)
            break;
        const auto value = toNumber<quint64>(field);
        if (!value)
            return std::nullopt;
        fields[i] = *value;
    }
    const auto [user, nice, system, idle, wait, interrupts, softInterrupts, stolen] = fields;
    return ProcessorTicks{user, system + interrupts + softInterrupts + stolen, idle + wait, nice};
}

} // namespace

std::optional<QList<ProcessorTicks>> parseProcessorTicks(std::string_view text)
{
    QList<ProcessorTicks> processors;
    while (text.starts_with("cpu")) {
        auto line = takeLine(text);
        const auto name = takeField(line);
        if (!toNumber<quint32>(name.substr(3)))
            continue; // the sum of all
        if (const auto ticks = parseTicks(line))
            processors.append(*ticks);
    }
    return processors.isEmpty() ? std::nullopt : std::optional(processors);
}

} // namespace ambrelle
