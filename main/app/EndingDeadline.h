// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>

namespace ambrelle {

/// Sees to it that the program ends soon once somebody asked it to, whatever then hangs: a disk that went away, a
/// server, a display. Settings are with the system from the moment they are set, so nothing is lost; a disk that is
/// only slow has the time to flush them.
class EndingDeadline {
public:
    static constexpr std::chrono::milliseconds patience{1500};

    EndingDeadline() = delete;

    /// Before the first start().
    static void prepare();
    /// From now on the process has `patience` left; then it ends at once, with success. Work that hangs takes a part of
    /// that, however much of it there is, so that a slow disk has the rest. Later calls change nothing. A signal
    /// handler may call it.
    static void start();
};

} // namespace ambrelle
