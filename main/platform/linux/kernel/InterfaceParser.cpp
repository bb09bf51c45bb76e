// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/InterfaceParser.h"

#include "foundation/TextFields.h"

namespace ambrelle {

void parseInterfaces(std::string_view text, const std::function<void(const InterfaceLine&)>& found)
{
    constexpr int fieldsBetween = 7; // packets, errors, … between the two byte counters
    while (!text.empty()) {
        auto line = takeLine(text);
        if (line.find(':') == std::string_view::npos)
            continue;
        InterfaceLine interface;
        interface.name = withoutLeadingBlanks(takeUntil(line, ':'));
        const auto received = takeNumber<quint64>(line);
        for (int i = 0; i < fieldsBetween; ++i)
            takeField(line);
        const auto sent = takeNumber<quint64>(line);
        if (interface.name.empty() || !received || !sent)
            continue;
        interface.received = *received;
        interface.sent = *sent;
        found(interface);
    }
}

bool isNamedLikeNetworkCard(std::string_view name)
{
    return name.starts_with("en") || name.starts_with("eth") || name.starts_with("wl");
}

} // namespace ambrelle
