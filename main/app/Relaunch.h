// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// The status with which the application ends its loop when another program has taken its place: the process then
/// becomes that one.
constexpr int relaunchStatus = 75;

/// The process becomes the program that stands where its own stood when it started. Its number stays, and with it the
/// session, the scope and the terminal it belongs to.
class Relaunch {
public:
    Relaunch() = delete;

    /// Notes where the running program stands; before anything can have moved.
    static void prepare(const QString& program);
    /// A relaunch is due from now on, however slowly the rest ends.
    static void arrange();
    /// When all is gone that has to go. Returns only when nothing could be started, neither the newer program nor the
    /// former.
    static void carryOut();
    /// Where a relaunch is due, and there is no time left for what still lives. A signal handler may call it. Where the
    /// newer program cannot be started the former one gets its place back, as in carryOut().
    static void carryOutAtOnce();
};

} // namespace ambrelle
