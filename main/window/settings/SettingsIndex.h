// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

class SearchWords;
struct RowText;

/// Finds settings by what stands beside them.
namespace SettingsIndex {

/// Whether each word stands somewhere in what the row says, its keywords, or the section's title.
bool matches(const RowText& row, const QString& section, const SearchWords& words);

} // namespace SettingsIndex

} // namespace ambrelle
