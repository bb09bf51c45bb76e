// SPDX-License-Identifier: MIT

#include "window/frame/SearchWords.h"

#include <algorithm>

namespace ambrelle {

namespace {

QString bareLetters(const QString& text)
{
    QString letters;
    for (const QChar letter : text.normalized(QString::NormalizationForm_KD).toCaseFolded()) {
        if (!letter.isMark())
            letters.append(letter);
    }
    return letters;
}

} // namespace

SearchWords::SearchWords(const QString& typed)
    : m_words(bareLetters(typed).simplified().split(u' ', Qt::SkipEmptyParts))
{
}

bool SearchWords::occurIn(const QString& text) const
{
    const QString letters = bareLetters(text);
    return std::ranges::all_of(m_words, [&](const QString& word) { return letters.contains(word); });
}

} // namespace ambrelle
