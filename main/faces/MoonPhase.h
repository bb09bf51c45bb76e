// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

namespace ambrelle {

/// The moon by mean lunations: good to about half a day, which is what a disc of 64 points can show.
namespace MoonPhase {

inline constexpr double synodicMonth = 29.530588853; ///< days (mean synodic month, Meeus, Astronomical Algorithms)
inline constexpr double reference = 947182440; ///< a new moon, seconds after 1970-01-01 00:00 UTC

/// Days since the last new moon, in [0, synodicMonth).
double age(const QDateTime& at);
/// 0 new, 0.5 full, below 1.
double fraction(const QDateTime& at);
/// The lit part of the disc, 0 to 1.
double illumination(const QDateTime& at);
/// "New Moon", "Waxing Crescent", … The four principal phases have the day around their moment.
QString name(const QDateTime& at);

struct Principal {
    QString name;
    double days = 0; ///< until then
};

/// The next of the four principal phases.
Principal next(const QDateTime& at);

} // namespace MoonPhase

} // namespace ambrelle
