// SPDX-License-Identifier: MIT

#include "platform/calendar/CalendarBook.h"

#include "platform/calendar/CalendarTexts.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

namespace ambrelle {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

struct CalendarBookTest : testing::Test {
    const QDateTime today{QDate(2025, 6, 2), QTime(0, 0), Qt::UTC};
    const TestFolder folder;
};

TEST_F(CalendarBookTest, FilesTooLargeTogetherGiveWayToSmallerOnes)
{
    QByteArray many;
    for (int i = 0; i < 60'000; ++i)
        many += event(QByteArray::number(i));
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s, u"e"_s})
        folder.write(u"root/"_s + name + u".ics"_s, calendar(many));
    folder.write(u"root/z.ics"_s, calendar(event("good") + event("better")));
    CalendarBook book;
    const QStringList root{folder.filePath(u"root"_s)};
    EXPECT_TRUE(book.refresh(root));
    const QStringList good{folder.filePath(u"root/z.ics"_s)};
    EXPECT_EQ(book.events(today, today.addDays(7), good).size(), 2);
    const auto before = book.unread().size();
    EXPECT_GT(before, 0);
    EXPECT_FALSE(book.refresh(root)); // nor are they read again and again
    for (const QString& name : {u"a"_s, u"b"_s, u"c"_s, u"d"_s})
        ASSERT_TRUE(QFile::remove(folder.filePath(u"root/"_s + name + u".ics"_s)));
    EXPECT_TRUE(book.refresh(root));
    EXPECT_TRUE(book.unread().isEmpty()) << "there is room for all that is left";
    EXPECT_EQ(book.events(today, today.addDays(7), {folder.filePath(u"root/e.ics"_s)}).size(), 10'000);
    EXPECT_FALSE(book.refresh(root));
}

TEST_F(CalendarBookTest, SaysWhatIsTooMuchAtThatTimeAndNoLonger)
{
    // All files together have a few more than can be listed, in the second of two weeks; "c" has the most.
    QByteArray week;
    for (int i = 0; i < 9500; ++i)
        week += event(QByteArray::number(i), "20250610T080000Z");
    for (int i = 0; i < 10; ++i)
        folder.write(u"root/a%1.ics"_s.arg(i), calendar(week));
    folder.write(u"root/c.ics"_s, calendar(week + event("more", "20250610T080000Z")));
    CalendarBook book;
    book.refresh({folder.filePath(u"root"_s)});
    const auto listed = [&](const QDateTime& from) {
        return book.events(from, from.addDays(7), identifiersOf(book.calendars())).size();
    };
    EXPECT_EQ(listed(today), 0);
    EXPECT_THAT(book.unread(), IsEmpty());
    EXPECT_EQ(listed(today.addDays(7)), 95'000);
    EXPECT_THAT(book.unread(),
        ElementsAre(UnreadCalendar{folder.filePath(u"root/c.ics"_s), u"There is more in it than can be listed."_s}));
    EXPECT_EQ(listed(today), 0);
    EXPECT_THAT(book.unread(), IsEmpty());
}

TEST_F(CalendarBookTest, KnowsWhoseCalendarsTheyAre)
{
    const QByteArray declined("20250603T080000Z\r\nATTENDEE;PARTSTAT=DECLINED:mailto:me@example.org");
    folder.write(u"root/me@example.org/a.ics"_s, calendar(event("by folder", declined)));
    folder.write(u"root/Me@Example.org.ics"_s, calendar(event("by file", declined) + event("mine")));
    folder.write(u"root/team/b.ics"_s, calendar(event("of the team", declined)));
    const auto listed = [&](const QStringList& addresses) {
        CalendarBook book(addresses);
        book.refresh({folder.filePath(u"root"_s)});
        return titlesOf(book.events(today, today.addDays(7), identifiersOf(book.calendars())));
    };
    EXPECT_THAT(listed({}), ElementsAre(u"mine"_s, u"of the team"_s));
    EXPECT_THAT(listed({u" ME@example.org"_s}), ElementsAre(u"mine"_s));
}

} // namespace
} // namespace ambrelle
