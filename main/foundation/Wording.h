// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>

namespace ambrelle {

/// Every text that people read goes through Wording::tr(): one context, so that one file translates the program. Texts
/// in tables are marked with QT_TRANSLATE_NOOP("ambrelle", …) and translated where they are read, not where they stand:
/// the wording is chosen after constants are made.
class Wording {
    Q_DECLARE_TR_FUNCTIONS(ambrelle)
};

} // namespace ambrelle
