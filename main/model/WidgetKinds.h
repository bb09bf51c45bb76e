// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"

#include <bitset>
#include <initializer_list>

namespace ambrelle {

/// A set of widget kinds, by their number.
using WidgetKinds = std::bitset<rawRows<WidgetKind>.size()>;

constexpr WidgetKinds kindSet(std::initializer_list<WidgetKind> kinds)
{
    unsigned long long bits = 0;
    for (const WidgetKind kind : kinds)
        bits |= 1ULL << static_cast<unsigned>(kind);
    return {bits};
}

inline bool contains(const WidgetKinds& kinds, WidgetKind kind)
{
    return kinds.test(static_cast<std::size_t>(kind));
}

} // namespace ambrelle
