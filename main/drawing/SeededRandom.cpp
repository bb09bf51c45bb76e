// SPDX-License-Identifier: MIT

#include "drawing/SeededRandom.h"

#include <QString>

#include <cmath>

namespace ambrelle {

std::uint64_t SeededRandom::next()
{
    state += 0x9E3779B97F4A7C15U;
    std::uint64_t z = state;
    z = (z ^ (z >> 30)) * 0xBF58476D1CE4E5B9U;
    z = (z ^ (z >> 27)) * 0x94D049BB133111EBU;
    return z ^ (z >> 31);
}

std::uint64_t SeededRandom::next(std::uint64_t upperBound)
{
    __extension__ using Product = unsigned __int128;
    if (upperBound == 0)
        qFatal("SeededRandom::next: nothing lies below 0");
    Product product = static_cast<Product>(next()) * upperBound;
    if (static_cast<std::uint64_t>(product) < upperBound) {
        const std::uint64_t uneven = (0 - upperBound) % upperBound;
        while (static_cast<std::uint64_t>(product) < uneven)
            product = static_cast<Product>(next()) * upperBound;
    }
    return static_cast<std::uint64_t>(product >> 64);
}

double SeededRandom::in(double from, double to)
{
    if (!(from <= to) || !std::isfinite(to - from))
        qFatal("SeededRandom::in: %g to %g is no range", from, to);
    constexpr std::uint64_t steps = std::uint64_t{1} << 53;
    const std::uint64_t step = next(steps + 1);
    if (step == steps)
        return to;
    return from + (to - from) * (static_cast<double>(step) * 0x1p-53);
}

std::uint64_t seedOf(QAnyStringView text)
{
    std::uint64_t hash = 5381;
    for (const char byte : text.toString().toUtf8())
        hash = hash * 33 + static_cast<unsigned char>(byte);
    return hash;
}

} // namespace ambrelle
