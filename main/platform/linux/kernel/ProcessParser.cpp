// SPDX-License-Identifier: MIT

#include "platform/linux/kernel/ProcessParser.h"

#include "foundation/TextFields.h"

namespace ambrelle {

namespace {

void skipFields(std::string_view& text, int count)
{
    for (int i = 0; i < count; ++i)
        takeField(text);
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
    const bool isBlocked = takeField(rest) == "D";
    skipFields(rest, 10);
    const auto userTicks = takeNumber<quint64>(rest); // 14
    const auto systemTicks = takeNumber<quint64>(rest);
    skipFields(rest, 6);
    const auto start = takeNumber<quint64>(rest); // 22
    skipFields(rest, 1);
    const auto resident = takeNumber<qint64>(rest); // 24
    if (!id || !userTicks || !systemTicks || !start || !resident)
        return std::nullopt;
    return ProcessStat{
        *id, name, isBlocked, *userTicks + *systemTicks, *start, static_cast<quint64>(std::max<qint64>(*resident, 0))};
}

QByteArray wholeProcessName(const QByteArray& name, const QByteArray& commandLine)
{
    constexpr qsizetype mostArguments = 3; // an interpreter may have an option before its script
    const auto fileOf = [](const QByteArray& path) { return path.sliced(path.lastIndexOf('/') + 1); };
    QList<QByteArray> arguments = commandLine.split('\0');
    // Some programs rewrite theirs into one text, in which the slashes of later arguments mean nothing.
    if (const qsizetype option = arguments.first().indexOf(" -"); option > 0)
        arguments.first().truncate(option);
    for (const QByteArray& argument : arguments.first(std::min(arguments.size(), mostArguments))) {
        QByteArray file = fileOf(argument);
        if (file.startsWith(name))
            return file;
    }
    const QByteArray program = fileOf(arguments.first());
    return program.isEmpty() ? name : program;
}

} // namespace ambrelle
