// SPDX-License-Identifier: MIT

#pragma once

#include <QDateTime>
#include <QString>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// The day under which figures are stored, "2026-3-7".
inline QString dayKey(QDate date)
{
    return u"%1-%2-%3"_s.arg(date.year()).arg(date.month()).arg(date.day());
}

} // namespace ambrelle
