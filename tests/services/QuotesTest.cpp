// SPDX-License-Identifier: MIT

#include "services/Quotes.h"

#include <QSet>

#include <gtest/gtest.h>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

TEST(Quotes, EveryEntryComesOncePerRoundAndDaysAgree)
{
    for (const bool words : {true, false}) {
        const int count = words ? 40 : 56;
        QSet<QString> texts;
        QSet<QString> sources;
        const QDate start(2026, 11, 21);
        for (int day = 0; day < count; ++day) {
            const Quote quote = Quotes::entry(words, start.addDays(day));
            texts.insert(quote.text);
            sources.insert(quote.source);
            EXPECT_EQ(quote.note.has_value(), words);
            EXPECT_FALSE(quote.source.isEmpty());
            EXPECT_TRUE(quote.text.endsWith(u'.') || quote.text.endsWith(u'?')) << qPrintable(quote.text);
            EXPECT_EQ(quote, Quotes::entry(words, start, day)) << "the offset counts days";
        }
        EXPECT_EQ(texts.size(), count);
        if (words) {
            EXPECT_EQ(sources.size(), count);
        }
        EXPECT_EQ(Quotes::entry(words, start), Quotes::entry(words, start.addDays(count)));
    }
}

TEST(Quotes, TheDayOfTheEraDecides)
{
    EXPECT_EQ(Quotes::entry(true, QDate(1, 1, 1)).source, u"Gloaming"_s) << "7919 leaves 39";
    EXPECT_FALSE(Quotes::entry(false, QDate(-44, 3, 15)).text.isEmpty()) << "days before the era have entries too";
}

} // namespace
