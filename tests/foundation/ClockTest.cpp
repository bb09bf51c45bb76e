// SPDX-License-Identifier: MIT

#include "foundation/ManualClock.h"
#include "foundation/TimerQueue.h"
#include "platform/linux/kernel/SystemClock.h"

#include <QAbstractEventDispatcher>
#include <QCoreApplication>
#include <QDir>
#include <QEvent>
#include <QEventLoop>
#include <QStringList>

#include <gtest/gtest.h>

#include <memory>
#include <utility>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using namespace Qt::StringLiterals;

TEST(TimerQueueTest, WakesOnceForWorkThatMayWaitForEachOther)
{
    TimerQueue queue;
    const Ticket slow = queue.repeat(1000ms, 1000ms, [] {});
    EXPECT_EQ(queue.nextWake(), 1000ms);
    const Ticket soonAfter = queue.repeat(1050ms, 2000ms, [] {});
    EXPECT_EQ(queue.nextWake(), 1050ms);
    const Ticket tooLate = queue.repeat(1101ms, 5000ms, [] {});
    EXPECT_EQ(queue.nextWake(), 1050ms) << "more than a tenth of a second late";
    const Ticket exact = queue.once(1020ms, [] {});
    EXPECT_EQ(queue.nextWake(), 1020ms) << "single work may not be late";
}

TEST(TimerQueueTest, MissedTimesAreLeftOut)
{
    TimerQueue queue;
    int runs = 0;
    const Ticket ticket = queue.repeat(100ms, 100ms, [&] { ++runs; });
    queue.run(570ms);
    EXPECT_EQ(runs, 1);
    EXPECT_EQ(queue.nextDue(), 600ms);
}

TEST(TimerQueueTest, SharedPhasesMeetWithoutHurryingTheFirstRun)
{
    TimerQueue queue;
    QList<qint64> runs;
    TimerQueue::Moment now = 700ms;
    const Ticket ticket = queue.repeat(
        now + 1000ms, 1000ms, [&] { runs.append(now.count()); }, TimerQueue::Phase::shared);
    while (runs.size() < 8) {
        now = *queue.nextDue();
        queue.run(now);
    }
    EXPECT_EQ(runs, (QList<qint64>{1700, 2750, 3800, 4850, 5900, 6950, 8000, 9000}));
}

TEST(TimerQueueTest, WorkMayCancelItselfAndOthers)
{
    TimerQueue queue;
    QStringList log;
    Ticket self, other, once;
    self = queue.repeat(1ms, 1ms, [&, guard = std::make_shared<int>(7)] {
        self.reset();
        other.reset();
        log << u"self %1"_s.arg(*guard); // what the work captured must still be there
    });
    other = queue.repeat(2ms, 1ms, [&] { log << u"other"_s; });
    once = queue.once(3ms, [&] {
        once.reset();
        log << u"once"_s;
    });
    queue.run(5ms);
    queue.run(9ms);
    EXPECT_EQ(log, (QStringList{u"self 7"_s, u"once"_s}));
    EXPECT_TRUE(queue.isEmpty());
}

TEST(TimerQueueTest, WorkMayDestroyTheQueueAndTicketsOutliveIt)
{
    auto queue = std::make_unique<TimerQueue>();
    bool ranAfterwards = false;
    const Ticket first = queue->once(1ms, [&] { queue.reset(); });
    Ticket second = queue->repeat(1ms, 1ms, [&] { ranAfterwards = true; });
    queue->run(1ms);
    EXPECT_FALSE(ranAfterwards);
    second.reset();
}

TEST(ManualClockTest, DoesWorkInOrderEachAtItsMoment)
{
    ManualClock clock;
    const QDateTime start = clock.now();
    QStringList log;
    const auto note = [&](const char* what) {
        return [&log, &clock, start, what] {
            log << u"%1@%2"_s.arg(QLatin1StringView(what)).arg(start.msecsTo(clock.now()));
        };
    };
    const Ticket late = clock.after(250ms, note("late"));
    const Ticket tick = clock.every(100ms, note("tick"));
    Ticket chained;
    const Ticket early = clock.after(50ms, [&] { chained = clock.after(60ms, note("chained")); });
    clock.advance(260ms);
    EXPECT_EQ(log, (QStringList{u"tick@100"_s, u"chained@110"_s, u"tick@200"_s, u"late@250"_s}));
    EXPECT_DOUBLE_EQ(clock.elapsed(), 0.26);
    EXPECT_EQ(start.msecsTo(clock.now()), 260);
}

TEST(ManualClockTest, MinutesFollowTheWallClock)
{
    ManualClock clock(QDateTime(QDate(2025, 3, 30), QTime(0, 59, 58, 500), Qt::UTC));
    QStringList log;
    Ticket minutes = clock.everyMinute([&] { log << clock.now().toString(u"hh:mm:ss"_s); });
    clock.advance(1499ms);
    EXPECT_TRUE(log.isEmpty());
    clock.advance(60s);
    EXPECT_EQ(log, QStringList{u"01:00:00"_s});
    clock.setNow(QDateTime(QDate(2025, 3, 30), QTime(7, 30, 59), Qt::UTC));
    clock.advance(1s);
    EXPECT_EQ(log.mid(1), (QStringList{u"07:30:59"_s, u"07:31:00"_s})) << "at once, then at the new clock's minute";
    minutes.reset();
    int jumps = 0;
    const Ticket jump = clock.everyJump([&] { ++jumps; });
    clock.setNow(QDateTime(QDate(2026, 1, 1), QTime(0, 0), Qt::UTC));
    clock.advance(10min);
    EXPECT_EQ(log.size(), 3);
    EXPECT_EQ(jumps, 1) << "and not by the minute";
}

// Its wall clock falls behind without a jump, as when the time service slows it down.
class LaggingClock : public ManualClock {
public:
    QDateTime now() const override { return ManualClock::now().addMSecs(-lag); }
    qint64 lag = 0;
};

TEST(MinuteBeatTest, ASlowedWallClockIsWaitedFor)
{
    LaggingClock clock;
    MinuteBeat beat(clock);
    QStringList log;
    const Ticket minutes = beat.add([&] { log << clock.now().toString(u"mm:ss.zzz"_s); });
    clock.lag = 20;
    clock.advance(60s);
    EXPECT_EQ(log, QStringList()) << "the wall clock shows 59.980";
    clock.advance(20ms);
    EXPECT_EQ(log, QStringList{u"01:00.000"_s});
}

TEST(SystemClockTest, EqualPeriodsComeToShareAWakeUp)
{
    SystemClock clock;
    QEventLoop loop;
    int wakes = 0;
    const auto counting =
        QObject::connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::awake, [&] { ++wakes; });
    int wakeOfFirst = -1;
    QList<std::pair<int, int>> beats;
    const Ticket one = clock.every(20ms, [&] { wakeOfFirst = wakes; });
    Ticket two;
    const Ticket delayed = clock.after(5ms, [&] {
        two = clock.every(20ms, [&] {
            beats.append({wakeOfFirst, wakes});
            if (beats.size() == 30)
                loop.quit();
        });
    });
    loop.exec();
    QObject::disconnect(counting);
    for (const auto& [first, second] : beats.last(2))
        EXPECT_EQ(first, second) << "two wake-ups for one beat";
}

TEST(SystemClockTest, NestedLoopsKeepTheirTimersAndNothingIsLateForEver)
{
    SystemClock clock;
    bool inner = false;
    QEventLoop outer;
    const Ticket start = clock.after(0ms, [&] {
        QEventLoop nested;
        const Ticket timer = clock.after(1ms, [&] {
            inner = true;
            nested.quit();
        });
        nested.exec();
        outer.quit();
    });
    outer.exec();
    EXPECT_TRUE(inner);
}

TEST(SystemClockTest, NothingIsWatchedWhileNobodyWaitsForMinutes)
{
    SystemClock clock;
    QEventLoop().processEvents();
    const auto openDescriptors = [] {
        return QDir(u"/proc/self/fd"_s).entryList(QDir::AllEntries | QDir::System).size();
    };
    const qsizetype before = openDescriptors();
    Ticket minutes = clock.everyMinute([] {});
    Ticket others = clock.everyJump([] {});
    EXPECT_GT(openDescriptors(), before);
    minutes.reset();
    EXPECT_GT(openDescriptors(), before);
    others.reset();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_EQ(openDescriptors(), before);
}

TEST(SystemClockTest, TicketsOutliveTheClock)
{
    Ticket tick, minutes;
    {
        SystemClock clock;
        tick = clock.every(1s, [] {});
        minutes = clock.everyMinute([] {});
    }
    tick.reset();
    minutes.reset();
    SUCCEED() << "the sanitizers watch this one";
}

} // namespace
} // namespace ambrelle
