// SPDX-License-Identifier: MIT

#include "window/settings/SettingsIndex.h"

#include "window/settings/SettingsRow.h"

#include <algorithm>

namespace ambrelle::SettingsIndex {

namespace {

/// Lower case, letters without their accents.
QString folded(const QString& text)
{
    QString letters;
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD)) {
        if (!letter.isMark())
            letters += letter;
    }
    return letters.toCaseFolded();
}

} // namespace

QStringList words(const QString& search)
{
    return folded(search).simplified().split(u' ', Qt::SkipEmptyParts);
}

bool matches(const RowText& row, const QString& section, const QStringList& words)
{
    const QStringList parts = QStringList{row.name, row.caption, section} + row.keywords;
    const QString text = folded(parts.join(u'\n'));
    return std::ranges::all_of(words, [&text](const QString& word) { return text.contains(word); });
}

} // namespace ambrelle::SettingsIndex
