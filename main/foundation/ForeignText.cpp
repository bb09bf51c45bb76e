// SPDX-License-Identifier: MIT

#include "foundation/ForeignText.h"

#include <utility>

namespace ambrelle {

namespace {

constexpr char32_t nonJoiner = 0x200C;
constexpr char32_t joiner = 0x200D;

char32_t letterAt(const QString& text, qsizetype index)
{
    const QChar first = text.at(index);
    const QChar second = index + 1 < text.size() ? text.at(index + 1) : QChar();
    return first.isHighSurrogate() && second.isLowSurrogate() ? QChar::surrogateToUcs4(first, second) : first.unicode();
}

bool isSeen(char32_t letter)
{
    switch (QChar::category(letter)) {
    case QChar::Other_Control:
    case QChar::Other_Surrogate: return false; // half a letter
    case QChar::Other_Format: return letter == joiner || letter == nonJoiner;
    default: return true;
    }
}

} // namespace

QString foreignText(const QString& text, qsizetype longest)
{
    QString shown;
    bool isApart = false;
    for (qsizetype index = 0; index < text.size();) {
        const char32_t letter = letterAt(text, index);
        const auto units = QChar::requiresSurrogates(letter) ? 2 : 1;
        if (QChar::isSpace(letter)) {
            isApart = !shown.isEmpty();
        } else if (isSeen(letter)) {
            if (shown.size() + (isApart ? 1 : 0) + units > longest)
                break;
            if (std::exchange(isApart, false))
                shown += u' ';
            shown += QStringView(text).sliced(index, units);
        }
        index += units;
    }
    return shown;
}

} // namespace ambrelle
