// SPDX-License-Identifier: MIT

#include "services/RemindersService.h"

#include "platform/recording/RecordingCalendarStore.h"
#include "services/ServiceTest.h"

namespace ambrelle {
namespace {

struct RemindersServiceTest : ServiceTest {
    RemindersServiceTest()
    {
        count(service);
        store.currentCalendars = {{u"home"_s, u"Home"_s, QColor(Qt::green), false, true}};
    }
    void add(const QString& title, std::optional<int> days = {})
    {
        std::optional<QDateTime> due;
        if (days)
            due = clock.now().date().addDays(*days).startOfDay(Qt::UTC);
        store.currentReminders.append({u"id-"_s + title, u"home"_s, title, due, false});
    }
    void start()
    {
        service.start();
        store.answer();
    }

    RecordingCalendarStore store;
    RemindersService service{store, clock};
};

TEST_F(RemindersServiceTest, ListsTheEarliestDueFirstAndTheUndatedLast)
{
    for (const auto& [title, days] : std::initializer_list<std::pair<const char16_t*, std::optional<int>>>{
             {u"zoo", {}}, {u"tomorrow", 1}, {u"late", -3}, {u"abc", {}}, {u"b today", 0}, {u"a today", 0}})
        add(QString::fromUtf16(title), days);
    store.currentReminders.append({u"x"_s, u"elsewhere"_s, {}, clock.now(), true});
    service.start();
    service.start();
    EXPECT_EQ(service.status(), u"Requesting Reminders access…"_s);
    store.answer();
    EXPECT_EQ(store.accessRequests, 1);
    EXPECT_EQ(service.status(), QString());
    EXPECT_THAT(titles(service.reminders()),
        ElementsAre(u"late"_s, u"a today"_s, u"b today"_s, u"Untitled"_s, u"tomorrow"_s, u"abc"_s, u"zoo"_s));
    EXPECT_EQ(
        service.reminders().at(3), (ReminderRow{u"x"_s, u"Untitled"_s, clock.now(), true, QColor(0xFF, 0x95, 0)}));
    EXPECT_EQ(service.reminders().first().color, QColor(Qt::green));

    const int before = changes;
    Q_EMIT store.changed();
    store.answer();
    EXPECT_EQ(changes, before);
}

TEST_F(RemindersServiceTest, ATickedRowShowsItForAMomentAndGoes)
{
    add(u"one"_s);
    add(u"two"_s);
    start();
    service.complete(u"id-one"_s);
    service.complete(u"id-one"_s);
    service.complete(u"unknown"_s);
    EXPECT_THAT(store.completed, ElementsAre(u"id-one"_s));
    EXPECT_TRUE(service.completing().contains(u"id-one"_s));

    store.currentReminders.removeFirst();
    Q_EMIT store.changed(); // as the file watch tells it after the save
    store.answer();
    EXPECT_THAT(titles(service.reminders()), ElementsAre(u"one"_s, u"two"_s));
    service.complete(u"id-two"_s);
    store.saves = false;
    store.answer();
    // What was not saved loses its tick, and what was keeps it for its time.
    EXPECT_THAT(service.completing(), ElementsAre(u"id-one"_s));
    clock.advance(RemindersService::tickedTime);
    EXPECT_THAT(service.completing(), IsEmpty());
    EXPECT_THAT(titles(service.reminders()), ElementsAre(u"two"_s));
    store.answer();
    EXPECT_THAT(titles(service.reminders()), ElementsAre(u"two"_s));
}

TEST_F(RemindersServiceTest, ARecurringReminderComesBackWithItsNextDate)
{
    add(u"water"_s, 0);
    start();
    service.complete(u"id-water"_s);
    store.currentReminders.first().due = clock.now().date().addDays(2).startOfDay(Qt::UTC);
    store.answer();
    clock.advance(RemindersService::tickedTime);
    store.answer();
    ASSERT_THAT(titles(service.reminders()), ElementsAre(u"water"_s));
    EXPECT_EQ(service.reminders().first().due, store.currentReminders.first().due);
    EXPECT_THAT(service.completing(), IsEmpty());
}

TEST_F(RemindersServiceTest, CalendarsMayComeAndGo)
{
    store.currentWhyNot = u"No reminders."_s;
    add(u"one"_s);
    start();
    EXPECT_EQ(service.status(), u"No reminders."_s);
    EXPECT_THAT(service.reminders(), IsEmpty());
    store.currentWhyNot.clear();
    Q_EMIT store.changed();
    store.answer();
    EXPECT_EQ(service.status(), QString());
    EXPECT_THAT(titles(service.reminders()), ElementsAre(u"one"_s));
}

TEST_F(RemindersServiceTest, AnotherTimeZoneHasOtherDays)
{
    add(u"today"_s, 0);
    start();
    clock.advance(2min);
    store.currentReminders.first().due = store.currentReminders.first().due->addSecs(-12 * 3600);
    store.answer();
    EXPECT_EQ(service.reminders().first().due, clock.now().date().startOfDay(Qt::UTC)); // nobody asked
    clock.setNow(clock.now().toTimeZone(QTimeZone("Pacific/Auckland")));
    store.answer();
    EXPECT_EQ(service.reminders().first().due, clock.now().date().startOfDay(QTimeZone("Pacific/Auckland")));
}

TEST_F(RemindersServiceTest, SamplesAreTickedWithoutAStore)
{
    service.loadPreviewData();
    EXPECT_THAT(titles(service.reminders()),
        ElementsAre(u"Send the invoice"_s, u"Call the dentist"_s, u"Water the plants"_s, u"Book train tickets"_s));
    service.complete(u"3"_s);
    EXPECT_TRUE(service.completing().contains(u"3"_s));
    EXPECT_THAT(store.completed, IsEmpty());
}

TEST(ReminderRowTest, WhenItIsDue)
{
    const QTimeZone zone("Pacific/Auckland");
    const QDateTime now(QDate(2025, 6, 2), QTime(0, 5), zone);
    struct Case {
        QDateTime due;
        const char* text;
        bool overdue;
    };
    const Case cases[] = {
        {QDateTime(QDate(2025, 6, 2), QTime(0, 0), zone), "Today", false},
        {QDateTime(QDate(2025, 6, 2), QTime(11, 59), Qt::UTC), "Today", false},
        {QDateTime(QDate(2025, 6, 2), QTime(12, 0), Qt::UTC), "Tomorrow", false},
        {QDateTime(QDate(2025, 6, 1), QTime(23, 59), zone), "Yesterday", true},
        {QDateTime(QDate(2025, 5, 31), QTime(0, 0), zone), "31 May", true},
        {QDateTime(QDate(2025, 12, 31), QTime(0, 0), zone), "31 Dec", false},
        {QDateTime(QDate(2026, 1, 1), QTime(0, 0), zone), "1 Jan 2026", false},
    };
    for (const Case& each : cases) {
        const ReminderRow row{.due = each.due};
        EXPECT_EQ(row.dueText(now, british), QLatin1StringView(each.text));
        EXPECT_EQ(row.isOverdue(now), each.overdue) << each.text;
    }
    const ReminderRow later{.due = QDateTime(QDate(2026, 1, 15), QTime(0, 0), zone)};
    EXPECT_EQ(later.dueText(now, american), u"Jan 15, 2026"_s);
    EXPECT_EQ(ReminderRow().dueText(now, british), std::nullopt);
    EXPECT_FALSE(ReminderRow().isOverdue(now));
}

} // namespace
} // namespace ambrelle
