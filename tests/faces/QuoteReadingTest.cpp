// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

TEST(QuoteReading, ShowsWhatTheWidgetIsSetTo)
{
    WidgetConfig config(WidgetKind::quote, Skin::glass);
    const QDate day(2026, 11, 21);
    const QuoteReading saying = quoteReading(config, day);
    EXPECT_EQ(saying.text, u"Imagination is more important than knowledge."_s);
    EXPECT_FALSE(saying.word);
    EXPECT_TRUE(saying.note.isEmpty());
    config.quoteWords = true;
    const QuoteReading word = quoteReading(config, day);
    EXPECT_EQ(word.source, u"Saudade"_s);
    EXPECT_TRUE(word.word);
    EXPECT_FALSE(word.note.isEmpty());
    EXPECT_NE(quoteReading(config, day.addDays(1)), word);
}

} // namespace ambrelle
