// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Json.h"
#include "foundation/Wording.h"

#include <QLatin1StringView>
#include <QString>

#include <array>
#include <cstddef>
#include <optional>

namespace ambrelle {

/// The table of an enumeration: one row per enumerator, in declaration order. A row has at least `value` (the
/// enumerator) and `raw` (the stored text), mostly `title` (its text before translation) and `symbol` too. Each
/// enumeration specialises this.
template <typename E> inline constexpr auto rawRows = nullptr;

/// Whether the rows stand in the order of the enumerators, so that an enumerator is the index of its row.
template <typename Rows> constexpr bool inOrder(const Rows& rows)
{
    for (std::size_t i = 0; i < rows.size(); ++i) {
        if (static_cast<std::size_t>(rows[i].value) != i)
            return false;
    }
    return true;
}

template <typename E>
concept RawEnum = requires
{
    rawRows<E>.front().raw;
};

template <RawEnum E> constexpr const auto& rowOf(E value)
{
    static_assert(inOrder(rawRows<E>), "the rows must stand in the order of the enumerators");
    return rawRows<E>[static_cast<std::size_t>(value)];
}

/// The stored and exchanged form.
template <RawEnum E> constexpr QLatin1StringView rawValue(E value)
{
    return rowOf(value).raw;
}

/// The name people read.
template <RawEnum E>
requires requires(E value)
{
    rowOf(value).title;
}
QString title(E value)
{
    return Wording::tr(rowOf(value).title);
}

/// The name of the symbol drawn beside the title.
template <RawEnum E>
requires requires(E value)
{
    rowOf(value).symbol;
}
QString symbol(E value)
{
    return rowOf(value).symbol;
}

/// Nothing for a text that no enumerator is stored as; letter case counts.
template <RawEnum E> std::optional<E> parse(QStringView text)
{
    for (const auto& row : rawRows<E>) {
        if (row.raw == text)
            return row.value;
    }
    return std::nullopt;
}

/// Every enumerator, in declaration order.
template <RawEnum E> constexpr auto allCases()
{
    std::array<E, rawRows<E>.size()> cases{};
    for (std::size_t i = 0; i < cases.size(); ++i)
        cases[i] = rawRows<E>[i].value;
    return cases;
}

template <RawEnum E> struct JsonForm<E> {
    static constexpr const char* expected = "a known name";
    static std::optional<E> read(const QJsonValue& json)
    {
        return json.isString() ? parse<E>(json.toString()) : std::nullopt;
    }
    static QJsonValue write(E value) { return QJsonValue(rawValue(value)); }
};

} // namespace ambrelle
