// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QLocale>
#include <QString>

namespace ambrelle {

/// Number formats that all skins share.
namespace Units {

inline constexpr double gibibyte = 1073741824;

/// A formatted value with its unit.
struct Pair {
    QString value;
    QString unit;

    bool operator==(const Pair&) const = default;
    QString joined() const { return value + u' ' + unit; }
};

/// A fraction as a whole percentage, 0 to 100.
int percent(double fraction);
/// A percentage with its sign.
Pair percentage(int percent);
/// Binary gigabytes (memory).
QString gib(double bytes, int digits);
/// Decimal gigabytes (volumes).
QString gb(double bytes, int digits);
/// KB/s below a million bytes a second, MB/s from there on; two decimals.
Pair rate(double bytesPerSecond);
/// Decimal KB, MB or GB.
Pair size(double bytes);
/// Whether the locale writes hours 0 to 23.
bool usesDayClock(const QLocale& locale);
/// Hour and two-digit minute, the hour modulo 12 where the locale has a 12-hour clock.
QString time(const QDateTime& date, const QLocale& locale);
/// A duration in words: "40 min", "3 h 40 min".
QString inWords(int minutes);
/// A duration as minutes and two-digit seconds.
QString clock(double seconds);

} // namespace Units

} // namespace ambrelle
