// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace ambrelle {

struct RowText;

/// Finds settings by what stands beside them.
namespace SettingsIndex {

/// What is looked for, without regard to case and accents; none when only spaces were typed.
QStringList words(const QString& search);
/// Whether each word stands somewhere in what the row says, its keywords, or the section's title.
bool matches(const RowText& row, const QString& section, const QStringList& words);

} // namespace SettingsIndex

} // namespace ambrelle
