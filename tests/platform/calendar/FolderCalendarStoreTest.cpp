// SPDX-License-Identifier: MIT

#include "platform/calendar/FolderCalendarStore.h"

#include "foundation/ManualClock.h"
#include "platform/calendar/CalendarTexts.h"
#include "support/AnswerOf.h"
#include "support/TestData.h"
#include "support/TestFolder.h"

#include <gmock/gmock.h>

#include <ctime>

#include <sys/stat.h>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;
using ::testing::ElementsAre;
using ::testing::IsEmpty;

class FolderCalendarStoreTest : public ::testing::Test {
protected:
    QString path(const QString& name) const { return folder.filePath(name); }
    void write(const QString& name, const QByteArray& content) const { folder.write(name, content); }
    bool waitUntil(const std::function<bool()>& condition)
    {
        return ambrelle::waitUntil([&] {
            clock.advance(20ms);
            return condition();
        });
    }
    template <typename Value> Value later(const std::function<void(std::function<void(const Value&)>)>& ask)
    {
        return answerOf<Value>(ask, Answered::later, [this] { clock.advance(20ms); });
    }
    bool access(FolderCalendarStore& store)
    {
        return later<bool>([&](const auto& done) { store.requestAccess(&context, done); });
    }
    QStringList titles(FolderCalendarStore& store, const QStringList& calendars)
    {
        return titlesOf(later<QList<CalendarEvent>>(
            [&](const auto& done) { store.events(today, today.addDays(7), calendars, &context, done); }));
    }
    QList<CalendarReminder> reminders(FolderCalendarStore& store)
    {
        return later<QList<CalendarReminder>>([&](const auto& done) { store.reminders(clock.now(), &context, done); });
    }
    bool complete(FolderCalendarStore& store, const QString& identifier)
    {
        return later<bool>([&](const auto& done) { store.complete(identifier, moment, &context, done); });
    }

    ManualClock clock;
    const QDateTime today{QDate(2025, 6, 2), QTime(0, 0), Qt::UTC};
    const QDateTime moment = today.addSecs(10 * 3600);
    const TestFolder folder;
    QObject context;
};

TEST_F(FolderCalendarStoreTest, FoldersAndFilesAreCalendars)
{
    write(u"root/synced/account/office/displayname"_s, "Work \xE2\x9C\x93\n");
    write(u"root/synced/account/office/color"_s, "#ff8800aa\n");
    write(u"root/synced/account/office/a.ics"_s, calendar(event("a")));
    write(u"root/synced/account/office/b.ics"_s, "X-WR" + calendar("X-WR-CALNAME:Not a name\r\n" + reminder("b")));
    write(u"root/synced/account/office/.hidden.ics"_s, calendar(event("hidden")));
    write(u"root/synced/account/todo/c.ics"_s, calendar(reminder("c")));
    write(u"root/synced/account/new/color"_s, "teal");
    QDir().mkpath(path(u"root/synced/account/empty"_s));
    write(u"root/many.ics"_s, calendar(event("d") + event("e")));
    write(u"root/named.ICS"_s, calendar("X-WR-CALNAME:Holidays\r\nCOLOR:gold\r\n" + event("f")));
    write(u"root/invitation.ics"_s, calendar(event("g")));
    write(u"root/exported/export.ics"_s, calendar(event("h") + event("i")));
    write(u"root/.git/j.ics"_s, calendar(event("j")));
    write(u"root/notes/readme.txt"_s, "none of it");
    write(u"root/one/two/three/four/deep.ics"_s, calendar(event("deep")));
    FolderCalendarStore store(clock, {path(u"missing"_s), path(u"root"_s), path(u"root/synced/../"_s)});
    EXPECT_FALSE(store.isAvailable());
    ASSERT_TRUE(access(store));

    const QString account = path(u"root/synced/account/"_s);
    const QList<CalendarInfo> expected{
        {account + u"empty"_s, u"empty"_s, {}, true, true},
        {path(u"root/exported/export.ics"_s), u"exported"_s, {}, true, false},
        {path(u"root/named.ICS"_s), u"Holidays"_s, QColor(255, 215, 0), true, false},
        {path(u"root/many.ics"_s), u"many"_s, {}, true, false},
        {account + u"new"_s, u"new"_s, QColor(0, 128, 128), true, true},
        {path(u"root"_s), u"root"_s, {}, true, false},
        {account + u"todo"_s, u"todo"_s, {}, false, true},
        {account + u"office"_s, u"Work ✓"_s, QColor(0xFF, 0x88, 0), true, false},
    };
    auto found = store.calendars();
    std::ranges::sort(found, {}, [](const CalendarInfo& each) { return each.name.toLower(); });
    EXPECT_EQ(found.size(), expected.size());
    for (qsizetype i = 0; i < std::min(found.size(), expected.size()); ++i) {
        EXPECT_EQ(found[i].identifier.toStdString(), expected[i].identifier.toStdString());
        EXPECT_EQ(found[i], expected[i]) << qPrintable(found[i].name);
    }
    EXPECT_THAT(titles(store, {path(u"root/many.ics"_s), path(u"root"_s)}), ElementsAre(u"d"_s, u"e"_s, u"g"_s));
    EXPECT_THAT(titles(store, {account + u"office"_s, account + u"todo"_s}), ElementsAre(u"a"_s));
}

TEST_F(FolderCalendarStoreTest, NoticesWhatAppearsChangesAndGoes)
{
    FolderCalendarStore store(clock, {path(u"home/.calendars"_s)});
    int changes = 0;
    QObject::connect(&store, &CalendarStore::changed, [&changes] { ++changes; });
    EXPECT_FALSE(access(store));
    EXPECT_TRUE(store.whyNone(CalendarKind::events).contains(u"~/.calendars"_s));
    EXPECT_TRUE(store.whyNone(CalendarKind::reminders).contains(u"~/.calendars"_s));

    const auto becomes = [&](const QStringList& expected) {
        return waitUntil([&] {
            const int before = changes;
            return titles(store, identifiersOf(store.calendars())) == expected && changes == before;
        });
    };
    const QString file = u"home/.calendars/office/a.ics"_s;
    write(file, calendar(event("appears")));
    EXPECT_TRUE(becomes({u"appears"_s}));
    EXPECT_TRUE(store.isAvailable());
    EXPECT_EQ(store.whyNone(CalendarKind::events), QString());
    write(file, calendar(event("rewritten")));
    EXPECT_TRUE(becomes({u"rewritten"_s}));
    write(u"home/b.tmp"_s, calendar(event("moved")));
    ASSERT_EQ(::rename(qPrintable(path(u"home/b.tmp"_s)), qPrintable(path(u"home/.calendars/office/b.ics"_s))), 0);
    EXPECT_TRUE(becomes({u"moved"_s, u"rewritten"_s}));
    // A file elsewhere that a link leads to.
    write(u"elsewhere/c.ics"_s, calendar(event("linked")));
    ASSERT_TRUE(QFile::link(path(u"elsewhere/c.ics"_s), path(u"home/.calendars/c.ics"_s)));
    EXPECT_TRUE(becomes({u"linked"_s, u"moved"_s, u"rewritten"_s}));
    write(u"elsewhere/c.ics"_s, calendar(event("behind the link")));
    EXPECT_TRUE(becomes({u"behind the link"_s, u"moved"_s, u"rewritten"_s}));
    write(u"home/.calendars/office/displayname"_s, "Renamed");
    EXPECT_TRUE(waitUntil([&store] {
        return std::ranges::any_of(
            store.calendars(), [](const CalendarInfo& each) { return each.name == "Renamed"_L1; });
    }));

    ASSERT_TRUE(QDir(path(u"home/.calendars"_s)).removeRecursively());
    EXPECT_TRUE(waitUntil([&store] { return !store.isAvailable(); }));
    write(file, calendar(event("again")));
    EXPECT_TRUE(becomes({u"again"_s}));

    const int settled = changes;
    write(u"home/.calendars/office/notes.txt"_s, "not a calendar");
    write(file, calendar(event("last")));
    EXPECT_TRUE(becomes({u"last"_s}));
    EXPECT_EQ(changes, settled + 1);
}

TEST_F(FolderCalendarStoreTest, CompletesRemindersInTheirFiles)
{
    write(u"root/list/plain.ics"_s, calendar(reminder("plain", "X-KEPT:as it is\r\n")));
    write(u"root/list/daily.ics"_s, calendar(reminder("daily", "DUE;VALUE=DATE:20250602\r\nRRULE:FREQ=DAILY\r\n")));
    ASSERT_EQ(::chmod(qPrintable(path(u"root/list/plain.ics"_s)), 0640), 0);
    FolderCalendarStore store(clock, {path(u"root"_s)});
    ASSERT_TRUE(access(store));
    int changes = 0;
    QObject::connect(&store, &CalendarStore::changed, [&changes] { ++changes; });

    auto found = reminders(store);
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[0].title, u"daily"_s);
    EXPECT_EQ(found[0].due, today);
    EXPECT_FALSE(found[0].hasTime);
    EXPECT_EQ(found[1].due, std::nullopt);
    EXPECT_TRUE(complete(store, found[1].identifier));
    EXPECT_EQ(changes, 1);
    EXPECT_EQ(folder.read(u"root/list/plain.ics"_s),
        calendar(reminder("plain",
            "X-KEPT:as it is\r\nSTATUS:COMPLETED\r\nCOMPLETED:20250602T100000Z\r\nPERCENT-COMPLETE:100\r\n"
            "LAST-MODIFIED:20250602T100000Z\r\nSEQUENCE:1\r\n")));
    EXPECT_TRUE(QFile::permissions(path(u"root/list/plain.ics"_s)).testFlags(QFile::ReadGroup | QFile::WriteOwner));
    EXPECT_FALSE(QFile::permissions(path(u"root/list/plain.ics"_s)).testFlag(QFile::ReadOther));

    EXPECT_TRUE(complete(store, found[0].identifier));
    found = reminders(store);
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].due, today.addDays(1));
    EXPECT_EQ(QDir(path(u"root/list"_s)).entryList(QDir::Files | QDir::Hidden).size(), 2); // nothing left lying about

    EXPECT_FALSE(complete(store, u"nothing"_s));
    ASSERT_TRUE(QFile::remove(path(u"root/list/daily.ics"_s)));
    EXPECT_FALSE(complete(store, found[0].identifier));
    EXPECT_THAT(reminders(store), IsEmpty());
}

TEST_F(FolderCalendarStoreTest, HostileFilesDoNotHideTheOthers)
{
    write(u"root/good.ics"_s, calendar(event("good") + event("better")));
    write(u"root/empty.ics"_s, {});
    write(u"root/cut.ics"_s, testData("calendars/web-calendar.ics").left(700));
    QDir().mkpath(path(u"root/folder.ics"_s));
    ASSERT_TRUE(QFile::link(u"/dev/zero"_s, path(u"root/zero.ics"_s)));
    ASSERT_TRUE(QFile::link(path(u"root/loop.ics"_s), path(u"root/loop.ics"_s)));
    ASSERT_TRUE(QFile::link(path(u"root"_s), path(u"root/circle"_s)));
    ASSERT_EQ(::mkfifo(qPrintable(path(u"root/pipe.ics"_s)), 0600), 0);
    QFile large(path(u"root/large.ics"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(CalendarPages::mostFileBytes + 1));
    FolderCalendarStore store(clock, {path(u"root"_s)});
    ASSERT_TRUE(access(store));
    EXPECT_THAT(titles(store, {path(u"root/good.ics"_s)}), ElementsAre(u"better"_s, u"good"_s));
}

TEST_F(FolderCalendarStoreTest, SaysWhichFilesAreLeftOutAndWhy)
{
    write(u"root/p\u202Eage.ics"_s, "<html></html>");
    FolderCalendarStore store(clock, {path(u"root"_s)});
    EXPECT_FALSE(access(store));
    EXPECT_TRUE(store.whyNone(CalendarKind::events).contains(u"page.ics"_s)) << "signs that turn text round are gone";
    write(u"root/turned\u202E.ics"_s, calendar(event("turned") + event("round")));
    write(u"root/good.ics"_s, calendar(event("good") + event("better")));
    write(u"root/often.ics"_s,
        calendar(event("often", "20250601T000000Z\r\nRRULE:FREQ=SECONDLY;COUNT=2000000000") + event("x")));
    QFile large(path(u"root/large.ics"_s));
    ASSERT_TRUE(large.open(QIODevice::WriteOnly) && large.resize(CalendarPages::mostFileBytes + 1));
    ASSERT_TRUE(waitUntil([&store] { return store.unread().size() == 2 && store.isAvailable(); }));
    const auto reasons = [&store] {
        QStringList all;
        for (const UnreadCalendar& each : store.unread())
            all.append(each.name() + u": "_s + each.reason);
        return all;
    };
    EXPECT_THAT(reasons(), ElementsAre(u"large.ics: It is larger than 32 MB."_s, u"page.ics: It is not a calendar."_s));
    // What events come to is known when they were asked for.
    EXPECT_TRUE(titles(store, identifiersOf(store.calendars())).contains(u"good"_s));
    EXPECT_TRUE(reasons().contains(u"often.ics: There is more in it than can be listed."_s));
    EXPECT_TRUE(std::ranges::count(store.calendars(), u"turned"_s, &CalendarInfo::name));
    ASSERT_TRUE(QFile::remove(path(u"root/p\u202Eage.ics"_s)));
    EXPECT_TRUE(waitUntil([&] { return !reasons().join(u' ').contains(u"page"_s); }));
}

TEST_F(FolderCalendarStoreTest, FollowsTheFoldersTheUserAddsAndRemoves)
{
    write(u"standard/a.ics"_s, calendar(event("a")));
    write(u"added/b.ics"_s, calendar(event("b")));
    const QString standard = path(u"standard"_s);
    const QString added = path(u"added"_s);
    QList<QStringList> kept;
    FolderCalendarStore store(clock,
        CalendarPlaces{.folders = {standard},
            .added = {u"not absolute"_s, standard},
            .keepAdded = [&kept](const QStringList& folders) { kept.append(folders); }});
    EXPECT_THAT(store.sources(), ElementsAre(CalendarSource{standard}));
    ASSERT_TRUE(access(store));
    int changes = 0;
    QObject::connect(&store, &CalendarStore::changed, [&changes] { ++changes; });

    EXPECT_FALSE(store.addSource(u"relative"_s));
    EXPECT_TRUE(store.addSource(standard + u'/'));
    EXPECT_THAT(kept, IsEmpty()) << "it is looked at already";
    EXPECT_TRUE(store.addSource(added + u'/'));
    EXPECT_EQ(changes, 1) << "the list has changed, whatever is in the folder";
    EXPECT_THAT(store.sources(), ElementsAre(CalendarSource{standard}, CalendarSource{added, true}));
    EXPECT_THAT(kept, ElementsAre(QStringList{u"not absolute"_s, standard, added})) << "nothing of the user's is lost";
    EXPECT_TRUE(waitUntil([&] { return titles(store, {standard, added}) == QStringList{u"a"_s, u"b"_s}; }));
    write(u"added/b.ics"_s, calendar(event("later")));
    EXPECT_TRUE(waitUntil([&] { return titles(store, {standard, added}) == QStringList{u"a"_s, u"later"_s}; }));

    const QStringList before = store.addedSources();
    store.removeSource(added);
    store.removeSource(standard);
    EXPECT_EQ(kept.last(), QStringList(u"not absolute"_s));
    EXPECT_THAT(store.sources(), ElementsAre(CalendarSource{standard}));
    EXPECT_TRUE(waitUntil([&] { return store.calendars().size() == 1; }));
    EXPECT_THAT(titles(store, {standard, added}), ElementsAre(u"a"_s));
    EXPECT_EQ(folder.read(u"added/b.ics"_s), calendar(event("later")));

    EXPECT_TRUE(store.addSource(path(u"third"_s)));
    store.restoreSources(before);
    EXPECT_EQ(kept.last(), before + QStringList{path(u"third"_s)}) << "in another order, or without what came since";
    EXPECT_TRUE(waitUntil([&] { return titles(store, {standard, added}) == QStringList{u"a"_s, u"later"_s}; }));
}

TEST_F(FolderCalendarStoreTest, FoldersOnOtherComputersAreLookedThroughNowAndThen)
{
    write(u"root/a.ics"_s, calendar(event("first")));
    for (const bool isRemote : {true, false}) {
        SCOPED_TRACE(isRemote);
        FolderCalendarStore store(clock,
            CalendarPlaces{.folders = {path(u"root"_s)}, .isRemote = [isRemote](const QString&) { return isRemote; }});
        ASSERT_TRUE(access(store));
        const auto before = store.calendars().size();
        QFile other(path(isRemote ? u"root/b.ics"_s : u"root/c.ics"_s));
        ASSERT_TRUE(other.open(QIODevice::WriteOnly));
        ASSERT_TRUE(waitUntil([&] { return store.unread().size() == 1; })); // empty until now
        for (int round = 0; round < 3; ++round) {
            clock.advance(1s);
            titles(store, {}); // comes after any look that was under way
        }
        // Nobody is told of what is written before it is closed.
        other.write(calendar("X-WR-CALNAME:Other\r\n" + event("other")));
        ASSERT_TRUE(other.flush());
        clock.advance(10s);
        titles(store, {});
        EXPECT_EQ(store.calendars().size(), before);
        clock.advance(FolderCalendarStore::remotePeriod * 2);
        titles(store, {});
        EXPECT_EQ(store.calendars().size(), isRemote ? before + 1 : before);
    }
    EXPECT_FALSE(CalendarFolders::isRemote(path(u"root"_s)));
}

double secondsOf(clockid_t processor)
{
    timespec time{};
    ::clock_gettime(processor, &time);
    return static_cast<double>(time.tv_sec) + static_cast<double>(time.tv_nsec) / 1e9;
}

TEST_F(FolderCalendarStoreTest, ThousandsOfItemsAreReadOnAnotherThread)
{
    QByteArray many;
    for (int i = 0; i < 20'000; ++i)
        many += event(QByteArray::number(i), i % 2000 == 0 ? "20250603T080000Z" : "20240603T080000Z");
    write(u"root/many.ics"_s, calendar(many));
    for (int i = 0; i < 1000; ++i)
        write(u"root/items/%1.ics"_s.arg(i), calendar(event("item" + QByteArray::number(i))));
    FolderCalendarStore store(clock, {path(u"root"_s)});
    const double before = secondsOf(CLOCK_THREAD_CPUTIME_ID);
    const double allBefore = secondsOf(CLOCK_PROCESS_CPUTIME_ID);
    ASSERT_TRUE(access(store));
    EXPECT_EQ(titles(store, {path(u"root/many.ics"_s), path(u"root/items"_s)}).size(), 1010);
    const double all = secondsOf(CLOCK_PROCESS_CPUTIME_ID) - allBefore;
    EXPECT_LT(secondsOf(CLOCK_THREAD_CPUTIME_ID) - before, all / 3);
}

} // namespace
} // namespace ambrelle
