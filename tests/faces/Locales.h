// SPDX-License-Identifier: MIT

#pragma once

#include <QLocale>

namespace ambrelle {

inline const QLocale british(QLocale::English, QLocale::UnitedKingdom);
inline const QLocale american(QLocale::English, QLocale::UnitedStates);

} // namespace ambrelle
