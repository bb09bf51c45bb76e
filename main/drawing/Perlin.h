// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstdint>

namespace ambrelle {

/// A field of gradient noise over the plane, repeating every 256 units (Perlin: Improving noise, 2002). Immutable, so
/// any number of threads may read it.
class Perlin {
public:
    explicit Perlin(std::uint64_t seed);

    /// About -1 to 1, and 0 where both coordinates are whole. Coordinates lie within the 64-bit integers.
    double noise(double x, double y) const;
    /// Fractional Brownian motion: `octaves` of noise, each `lacunarity` times as fine and `gain` times as strong as
    /// the one before; 0 to 1 around 0.5.
    double fbm(double x, double y, int octaves, double lacunarity, double gain = 0.5) const;
    /// Ridged multifractal: sharp crests of 1 where the noise is 0 (Musgrave, in Texturing and Modeling); 0 to 1.
    double ridged(double x, double y, int octaves) const;

private:
    struct Gradient {
        double x;
        double y;
    };

    std::array<std::int64_t, 512> m_p; ///< a permutation of 0 to 255, twice
    std::array<Gradient, 512> m_gradients; ///< the direction that each number of m_p stands for
};

} // namespace ambrelle
