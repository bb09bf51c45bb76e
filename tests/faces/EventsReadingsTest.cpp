// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/recording/RecordingCalendarStore.h"
#include "services/EventsService.h"
#include "services/RemindersService.h"

#include <gmock/gmock.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using ::testing::ElementsAre;

class EventsReadingsTest : public ::testing::Test {
protected:
    EventsReadingsTest() { store.currentCalendars = {{u"c"_s, u"C"_s, QColor(Qt::red), true, true}}; }

    void add(const char* title, const char* start, const char* end, bool allDay = false)
    {
        const auto moment = [](const char* text) {
            auto date = QDateTime::fromString(QLatin1StringView(text), Qt::ISODate);
            date.setTimeSpec(Qt::UTC);
            return date;
        };
        const auto name = QString::fromLatin1(title);
        store.currentEvents.append({name, u"c"_s, name, moment(start), moment(end), allDay});
    }
    EventsReading reading(const QLocale& locale = QLocale::c())
    {
        service.start();
        store.answer();
        return eventsReading(service, clock.now(), locale);
    }

    ManualClock clock; // Monday, 2 June 2025, 10:00 UTC
    RecordingCalendarStore store;
    UserDefaults defaults = UserDefaults::temporary();
    AppSettings settings{defaults};
    EventsService service{store, settings, clock};
    RemindersService reminders{store, clock};
};

TEST_F(EventsReadingsTest, RowsSayWhen)
{
    add("since last week", "2025-05-30T09:00", "2025-06-04T09:00");
    add("since yesterday", "2025-06-01T22:00", "2025-06-02T11:30");
    add("today", "2025-06-02T00:00", "2025-06-03T00:00", true);
    add("afternoon", "2025-06-02T14:05", "2025-06-02T15:00");
    add("tomorrow", "2025-06-03T00:00", "2025-06-04T00:00", true);
    add("Thursday", "2025-06-05T14:00", "2025-06-05T15:00");
    const EventsReading shown = reading();
    EXPECT_FALSE(shown.notice);
    EXPECT_EQ(shown.day, u"Monday 2"_s);
    QStringList rows;
    for (const auto& row : shown.rows) {
        rows.append(row.title + u": "_s + row.time);
        EXPECT_EQ(row.colour, QColor(Qt::red));
    }
    EXPECT_THAT(rows,
        ElementsAre(u"since last week: All day"_s, u"since yesterday: Until 11:30"_s, u"today: All day"_s,
            u"afternoon: 14:05"_s, u"tomorrow: Tue, all day"_s, u"Thursday: Thu 14:00"_s));
    EXPECT_EQ(reading(QLocale(QLocale::English, QLocale::UnitedStates)).rows.at(3).time, u"2:05"_s);
}

TEST_F(EventsReadingsTest, SentencesInPlaceOfEvents)
{
    service.start();
    EXPECT_EQ(eventsReading(service, clock.now(), QLocale::c()).notice,
        (Notice{u"calendar.badge.clock"_s, u"Requesting calendar access…"_s}));
    add("Thursday", "2025-06-05T14:00", "2025-06-05T15:00");
    EXPECT_EQ(reading().notice.sentence, u"No more events today"_s);
    // The same rows on another day.
    EXPECT_FALSE(eventsReading(service, clock.now().addDays(3), QLocale::c()).notice);
    store.currentWhyNot = u"Put calendars here."_s;
    Q_EMIT store.changed();
    EXPECT_EQ(reading().notice.sentence, u"Put calendars here."_s);
}

TEST_F(EventsReadingsTest, RemindersWithTheirMarks)
{
    const auto shown = [this] {
        store.answer();
        return remindersReading(reminders, clock.now(), QLocale(QLocale::English, QLocale::UnitedKingdom));
    };
    reminders.start();
    EXPECT_EQ(remindersReading(reminders, clock.now(), QLocale::c()).notice,
        (Notice{u"checklist"_s, u"Requesting Reminders access…"_s}));
    EXPECT_EQ(shown().notice, (Notice{u"checklist"_s, u"All done"_s}));

    store.currentReminders = {
        {u"1"_s, u"c"_s, u"Late"_s, clock.now().addDays(-1), true}, {u"2"_s, u"c"_s, u"Some day"_s, {}, false}};
    Q_EMIT store.changed();
    RemindersReading expected;
    expected.rows = {{.id = u"1"_s, .title = u"Late"_s, .due = u"Yesterday"_s, .overdue = true, .colour = Qt::red},
        {.id = u"2"_s, .title = u"Some day"_s, .due = {}, .colour = Qt::red}};
    EXPECT_EQ(shown(), expected);
    reminders.complete(u"2"_s);
    expected.rows[1].done = true;
    EXPECT_EQ(shown(), expected);
}

} // namespace
} // namespace ambrelle
