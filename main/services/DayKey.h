#pragma once

#include <QDateTime>
#include <QString>

namespace ambrelle {

/// The day under which figures are stored, "2026-3-7".
inline QString dayKey(QDate date)
{
    return QStringLiteral("%1-%2-%3").arg(date.year()).arg(date.month()).arg(date.day());
}

} // namespace ambrelle
