// SPDX-License-Identifier: MIT

#pragma once

#include <QCoreApplication>
#include <QRegularExpression>
#include <QTranslator>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// Writes every text in Cyrillic letters, so that one that went past it is told even where it is broken or cut.
class OtherLetters final : public QTranslator {
public:
    OtherLetters() { QCoreApplication::installTranslator(this); }
    bool isEmpty() const override { return false; }
    QString translate(const char* context, const char* source, const char*, int) const override
    {
        static const QRegularExpression letter(u"(?<!%)[A-Za-z]"_s);
        QString text = QByteArrayView(context) == "ambrelle" ? QString::fromUtf8(source) : QString();
        for (qsizetype at = text.indexOf(letter); at >= 0; at = text.indexOf(letter, at + 1))
            text[at] = QChar(text[at].unicode() - 'A' + 0x0410);
        return text;
    }
};

} // namespace ambrelle
