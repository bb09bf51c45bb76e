// SPDX-License-Identifier: MIT

#include "drawing/SkinStyle.h"

#include "drawing/Colours.h"

namespace ambrelle {

QColor SkinStyle::accentText() const
{
    return legible(accent, ink, ground, 4.5);
}

QString SkinStyle::words(const QString& sentence) const
{
    if (!lowercase)
        return sentence;
    QStringList result = sentence.split(u' ');
    for (QString& word : result) {
        if (word != word.toUpper())
            word = word.toLower();
    }
    return result.join(u' ');
}

} // namespace ambrelle
