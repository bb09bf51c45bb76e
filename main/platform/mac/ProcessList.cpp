// SPDX-License-Identifier: MIT

#include "platform/mac/ProcessList.h"

#include "foundation/TextFields.h"

#include <cmath>

namespace ambrelle {

namespace {

std::string_view trimmed(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    return text.substr(0, text.find_last_not_of(" \t\r") + 1);
}

} // namespace

QList<ProcessRow> parseProcessList(std::string_view text, int count)
{
    QList<ProcessRow> rows;
    while (!text.empty() && rows.size() < count) {
        auto line = takeLine(text);
        const auto id = takeNumber<qint64>(line);
        const auto cpu = takeNumber<double>(line);
        const auto memory = takeNumber<double>(line);
        const auto name = trimmed(line);
        if (!id || !cpu || !memory || !std::isfinite(*cpu) || !std::isfinite(*memory) || name.empty() || name == "ps")
            continue;
        rows.append({*id, QString::fromUtf8(name.data(), static_cast<qsizetype>(name.size())), *cpu, *memory});
    }
    return rows;
}

} // namespace ambrelle
