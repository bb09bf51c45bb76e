// SPDX-License-Identifier: MIT

#pragma once

namespace ambrelle {

/// How a canvas lays its shapes down.
enum class Finish {
    smooth, ///< antialiased, where they fall
    crisp, ///< in whole device pixels
    oneBit, ///< crisp, and every colour as an ordered dither of black and white
};

} // namespace ambrelle
