// SPDX-License-Identifier: MIT

#pragma once

#include <QAnyStringView>

#include <cstdint>

namespace ambrelle {

/// A stream of random numbers that is the same on every machine: SplitMix64 (Steele, Lea, Flood: Fast splittable
/// pseudorandom number generators, 2014). A value; what draws from it one after another takes it by reference.
struct SeededRandom {
    std::uint64_t state = 0;

    std::uint64_t next();
    /// Even over 0 up to `upperBound`, which is excluded and above 0 (Lemire: Fast random integer generation in an
    /// interval, 2019).
    std::uint64_t next(std::uint64_t upperBound);
    /// Even over `from` to `to`, both included; `from` is not above `to`, and both are finite.
    double in(double from, double to);
};

/// The djb2 hash of the text's UTF-8 bytes.
std::uint64_t seedOf(QAnyStringView text);

} // namespace ambrelle
