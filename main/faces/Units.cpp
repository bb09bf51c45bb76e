// SPDX-License-Identifier: MIT

#include "faces/Units.h"

#include "drawing/Fraction.h"
#include "foundation/Wording.h"

#include <algorithm>
#include <cmath>

namespace ambrelle::Units {

using namespace Qt::StringLiterals;

int percent(double fraction)
{
    return static_cast<int>(std::lround(bounded(fraction) * 100));
}

Pair percentage(int percent)
{
    return {QString::number(percent), u"%"_s};
}

QString gib(double bytes, int digits)
{
    return QString::number(bytes / gibibyte, 'f', digits);
}

QString gb(double bytes, int digits)
{
    return QString::number(bytes / 1e9, 'f', digits);
}

Pair rate(double bytesPerSecond)
{
    if (bytesPerSecond >= 1e6)
        return {QString::number(bytesPerSecond / 1e6, 'f', 2), Wording::tr("MB/s")};
    return {QString::number(bytesPerSecond / 1e3, 'f', 2), Wording::tr("KB/s")};
}

Pair size(double bytes)
{
    if (bytes < 1e6)
        return {QString::number(bytes / 1e3, 'f', 0), Wording::tr("KB")};
    if (bytes < 1e9)
        return {QString::number(bytes / 1e6, 'f', 2), Wording::tr("MB")};
    return {QString::number(bytes / 1e9, 'f', 2), Wording::tr("GB")};
}

bool usesDayClock(const QLocale& locale)
{
    return !locale.timeFormat(QLocale::ShortFormat).contains(u"ap"_s, Qt::CaseInsensitive);
}

QString time(const QDateTime& date, const QLocale& locale)
{
    const int hour = usesDayClock(locale) ? date.time().hour() : date.time().hour() % 12;
    return u"%1:%2"_s.arg(hour).arg(date.time().minute(), 2, 10, QChar(u'0'));
}

QString inWords(int minutes)
{
    if (minutes < 60)
        return Wording::tr("%1 min").arg(minutes);
    return Wording::tr("%1 h %2 min").arg(minutes / 60).arg(minutes % 60);
}

QString clock(double seconds)
{
    const auto whole = static_cast<long long>(std::max(0.0, seconds));
    return u"%1:%2"_s.arg(whole / 60).arg(whole % 60, 2, 10, QChar(u'0'));
}

} // namespace ambrelle::Units
