// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

namespace ambrelle {

/// What the user searches for: every word has to occur, whatever its case and accents.
class SearchWords {
public:
    SearchWords() = default; ///< nothing
    explicit SearchWords(const QString& typed);

    bool isEmpty() const { return m_words.isEmpty(); }
    bool occurIn(const QString& text) const; ///< without words everywhere

private:
    QStringList m_words;
};

} // namespace ambrelle
