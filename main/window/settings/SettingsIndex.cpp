// SPDX-License-Identifier: MIT

#include "window/settings/SettingsIndex.h"

#include "window/frame/SearchWords.h"
#include "window/settings/SettingsRow.h"

namespace ambrelle::SettingsIndex {

bool matches(const RowText& row, const QString& section, const SearchWords& words)
{
    const QStringList parts = QStringList{row.name, row.caption, section} + row.keywords;
    return words.occurIn(parts.join(u'\n'));
}

} // namespace ambrelle::SettingsIndex
