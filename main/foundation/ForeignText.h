// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

inline constexpr qsizetype longestForeignText = 500; ///< letters; no face has room for more

/// A text that somebody else wrote, as it shows in one line: spaces and line ends count as one space each run, and
/// what turns the writing round, hides or controls it is left out; only the joiners that words and emoji need stay. Cut
/// to that many letters. For titles and names where they come in; what is written back stays as it was.
QString foreignText(const QString& text, qsizetype longest = longestForeignText);

} // namespace ambrelle
