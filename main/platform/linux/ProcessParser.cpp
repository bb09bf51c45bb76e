#include "platform/linux/ProcessParser.h"

#include "platform/linux/TextFields.h"

#include <cmath>

namespace ambrelle {

namespace {

void skipFields(std::string_view& text, int count)
{
    for (int i = 0; i < count; ++i)
        takeField(text);
}

std::string_view trimmed(std::string_view text)
{
    text = withoutLeadingBlanks(text);
    return text.substr(0, text.find_last_not_of(" \t\r") + 1);
}

} // namespace

std::optional<ProcessStat> parseProcessStat(std::string_view text)
{
    // Only the last bracket ends the name: a process may call itself ") R 1 (".
    const auto open = text.find(" (");
    const auto close = text.rfind(')');
    if (open == std::string_view::npos || close == std::string_view::npos || close < open + 2)
        return std::nullopt;
    const auto id = toNumber<qint64>(text.substr(0, open));
    const auto name = text.substr(open + 2, close - open - 2);

    // Fields are numbered from 1 in proc(5); the state, number 3, follows the name.
    auto rest = text.substr(close + 1);
    skipFields(rest, 11);
    const auto userTicks = takeNumber<quint64>(rest); // 14
    const auto systemTicks = takeNumber<quint64>(rest);
    skipFields(rest, 6);
    const auto start = takeNumber<quint64>(rest); // 22
    skipFields(rest, 1);
    const auto resident = takeNumber<qint64>(rest); // 24
    if (!id || !userTicks || !systemTicks || !start || !resident)
        return std::nullopt;
    return ProcessStat{*id, name, *userTicks + *systemTicks, *start, quint64(std::max<qint64>(*resident, 0))};
}

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
        rows.append({*id, QString::fromUtf8(name.data(), qsizetype(name.size())), *cpu, *memory});
    }
    return rows;
}

} // namespace ambrelle
