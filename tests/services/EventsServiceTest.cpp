// SPDX-License-Identifier: MIT

#include "services/EventsService.h"

#include "platform/recording/RecordingCalendarStore.h"
#include "services/ServiceTest.h"

namespace ambrelle {
namespace {

struct EventsServiceTest : ServiceTest {
    EventsServiceTest()
    {
        count(service);
        store.currentCalendars = {{u"work"_s, u"Work"_s, QColor(Qt::red), true, false},
            {u"plain"_s, u"Plain"_s, {}, true, true}, {u"tasks"_s, u"Tasks"_s, {}, false, true}};
    }
    /// From and to in minutes from now, Monday at ten.
    void add(const QString& title, int from, int to, const QString& calendar = u"work"_s)
    {
        store.currentEvents.append({title + u'@' + QString::number(from), calendar, title, now.addSecs(60LL * from),
            now.addSecs(60LL * to), false});
    }
    void start()
    {
        service.start();
        store.answer();
    }

    const QDateTime now = clock.now();
    RecordingCalendarStore store;
    EventsService service{store, settings, clock};
};

TEST_F(EventsServiceTest, AsksForAccessOnceAndSaysSoMeanwhile)
{
    add(u"Now"_s, 0, 30);
    service.start();
    service.start();
    EXPECT_EQ(service.status(), u"Requesting calendar access…"_s);
    EXPECT_THAT(service.events(), IsEmpty());
    store.answer();
    EXPECT_EQ(store.accessRequests, 1);
    EXPECT_EQ(service.status(), QString());
    EXPECT_THAT(titles(service.events()), ElementsAre(u"Now"_s));
    EXPECT_EQ(changes, 2);
    const QDateTime today(QDate(2025, 6, 2), QTime(0, 0), Qt::UTC);
    EXPECT_THAT(store.windows, ElementsAre(std::pair(today, today.addDays(7))));
    QStringList calendars;
    for (const CalendarInfo& calendar : service.calendars())
        calendars.append(calendar.identifier);
    EXPECT_THAT(calendars, ElementsAre(u"work"_s, u"plain"_s));
}

TEST_F(EventsServiceTest, ListsTheNextEightThatAreNotOver)
{
    add(u"Just over"_s, -60, 0);
    add(u"Over"_s, -30, -1);
    add(u"Later"_s, 120, 180);
    add({}, -60, 60, u"plain"_s);
    add(u"Same time, second"_s, 120, 130);
    for (int i = 0; i < 9; ++i)
        add(u"Filler"_s, 200 + i, 300);
    start();
    ASSERT_EQ(service.events().size(), 8);
    EXPECT_THAT(
        titles(service.events()).first(4), ElementsAre(u"Untitled"_s, u"Later"_s, u"Same time, second"_s, u"Filler"_s));
    EXPECT_EQ(service.events().last().id, u"Filler@204"_s);
    const EventRow untitled{
        u"@-60"_s, u"Untitled"_s, now.addSecs(-3600), now.addSecs(3600), false, QColor(0, 0x7A, 0xFF)};
    EXPECT_EQ(service.events().first(), untitled);
    EXPECT_EQ(service.events().at(1).color, QColor(Qt::red));
}

TEST_F(EventsServiceTest, ExcludedCalendarsContributeNothingFromTheMomentTheyAre)
{
    add(u"Next"_s, 10, 20);
    add(u"Later"_s, 30, 40, u"plain"_s);
    settings.excludedCalendars.set({u"work"_s, u"gone"_s});
    start();
    EXPECT_THAT(titles(service.events()), ElementsAre(u"Later"_s));
    EXPECT_EQ(service.calendars().size(), 2);
    settings.excludedCalendars.set({u"plain"_s});
    store.answer();
    EXPECT_THAT(titles(service.events()), ElementsAre(u"Next"_s));
}

TEST_F(EventsServiceTest, FollowsTimeAndTheStoreAndSpeaksOnlyOfChanges)
{
    add(u"Short"_s, 0, 2);
    add(u"Long"_s, 0, 30);
    start();
    const int before = changes;
    clock.advance(1min);
    store.answer();
    EXPECT_EQ(store.windows.size(), 2);
    EXPECT_EQ(changes, before);
    clock.advance(1min);
    store.answer();
    EXPECT_THAT(titles(service.events()), ElementsAre(u"Long"_s));
    EXPECT_EQ(changes, before + 1);

    store.currentEvents.clear();
    Q_EMIT store.changed();
    store.answer();
    EXPECT_THAT(titles(service.events()), IsEmpty());
    EXPECT_EQ(changes, before + 2);

    store.currentUnread = {{u"/a.ics"_s, u"It is not a calendar."_s}};
    Q_EMIT store.changed();
    store.answer();
    EXPECT_EQ(service.unread(), store.currentUnread);
    EXPECT_EQ(changes, before + 3);
}

TEST_F(EventsServiceTest, CalendarsMayComeAndGo)
{
    store.currentWhyNot = u"No calendars."_s;
    add(u"Event"_s, 0, 30);
    start();
    EXPECT_EQ(service.status(), u"No calendars."_s);
    EXPECT_THAT(service.events(), IsEmpty());
    clock.advance(5min);
    EXPECT_THAT(store.windows, IsEmpty()); // nothing to ask for

    store.currentWhyNot.clear();
    Q_EMIT store.changed();
    store.answer();
    EXPECT_EQ(service.status(), QString());
    EXPECT_THAT(titles(service.events()), ElementsAre(u"Event"_s));

    service.reload();
    store.currentWhyNot = u"None left."_s;
    Q_EMIT store.changed();
    store.answer(); // the answer that was under way comes too late
    EXPECT_EQ(service.status(), u"None left."_s);
    EXPECT_THAT(service.events(), IsEmpty());
    EXPECT_THAT(service.calendars(), IsEmpty());
}

TEST_F(EventsServiceTest, TellsWhereCalendarsComeFromAndWhatIsLeftOut)
{
    store.currentWhyNot = u"No calendars yet."_s;
    store.currentSources = {{u"/standard"_s}};
    store.currentUnread = {{u"/standard/a\u202Eb.ics"_s, u"It cannot be read."_s}};
    start();
    EXPECT_THAT(service.sources(), ElementsAre(CalendarSource{u"/standard"_s}));
    ASSERT_EQ(service.unread().size(), 1);
    EXPECT_EQ(service.unread().first().name(), u"ab.ics"_s) << "what it is called turns nothing round";
    const int before = changes;
    EXPECT_TRUE(service.addSource(u"/added"_s));
    EXPECT_THAT(service.sources(), ElementsAre(CalendarSource{u"/standard"_s}, CalendarSource{u"/added"_s, true}));
    EXPECT_EQ(changes, before + 1) << "though there are as few calendars as before";
    service.removeSource(u"/added"_s);
    EXPECT_EQ(service.sources().size(), 1);
}

TEST_F(EventsServiceTest, SamplesNeedNoStore)
{
    service.loadPreviewData();
    EXPECT_THAT(titles(service.events()),
        ::testing::IsSupersetOf({u"Breakdown: call the electrician"_s, u"Deadline for the report"_s}));
    EXPECT_EQ(store.accessRequests, 0);
    EXPECT_EQ(service.status(), QString());
}

} // namespace
} // namespace ambrelle
