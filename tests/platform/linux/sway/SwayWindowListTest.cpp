// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwayWindowList.h"
#include "platform/linux/sway/FakeSway.h"
#include "platform/linux/sway/SwayOutputs.h"
#include "support/TestData.h"

namespace ambrelle::test {
namespace {

using namespace std::chrono_literals;

constexpr qint64 ownProcess = 7;
constexpr int tree = 4; // the question

QByteArray window(qint64 process, double x, const QByteArray& more = {})
{
    return R"({"pid":)" + QByteArray::number(process) + R"(,"rect":{"x":)" + QByteArray::number(x)
        + R"(,"y":0,"width":100,"height":100})" + more + "}";
}

QByteArray treeOf(const QByteArrayList& windows)
{
    return R"({"type":"root","nodes":[)" + windows.join(',') + "]}";
}

struct SwayWindowListTest : testing::Test {
    FakeSway sway;
    SwayWindowList list{sway.path(),
        [](const QRectF& place) { return QRectF(QPointF(place.x(), 800 - place.bottom()), place.size()); }, ownProcess,
        {.settling = 30ms, .look = 60ms}};
    int told = 0;

    SwayWindowListTest()
    {
        QObject::connect(&list, &SwayWindowList::changed, &list, [this] { ++told; });
        show({window(1, 0)});
    }
    void show(const QByteArrayList& windows) { sway.answers[tree] = treeOf(windows); }
    bool watch()
    {
        list.setWatching(true);
        return waitUntil([this] { return list.windows().has_value(); });
    }
    /// Whether it asks no more.
    bool isAsleep()
    {
        const bool isAtRest = waitUntil(
            [this] {
                const qsizetype before = sway.asked.size();
                return !waitUntil([&] { return sway.asked.size() > before; }, 300);
            },
            3000);
        return isAtRest;
    }
};

TEST_F(SwayWindowListTest, TellsWindowsOfOthersInGlobalPoints)
{
    show({window(1, 50), window(ownProcess, 60), window(2, 300, R"(,"fullscreen_mode":2)")});
    EXPECT_TRUE(list.isAvailable());
    EXPECT_FALSE(list.windows()) << "nobody watches";
    ASSERT_TRUE(watch());
    const QList<OnscreenWindow> expected{
        {.bounds = {50, 700, 100, 100}}, {.bounds = {300, 700, 100, 100}, .isFullScreen = true}};
    EXPECT_EQ(list.windows(), expected);
    EXPECT_EQ(told, 1);
}

TEST_F(SwayWindowListTest, SeesADragOfWhichNothingIsTold)
{
    ASSERT_TRUE(watch());
    told = 0;
    for (const double x : {10.0, 20.0, 30.0}) {
        show({window(1, x)});
        ASSERT_TRUE(waitUntil([&] { return list.windows()->first().bounds.x() == x; }));
    }
    EXPECT_EQ(told, 3);
    const qsizetype before = sway.count(tree);
    show({window(1, 30), window(ownProcess, 10)});
    ASSERT_TRUE(sway.wasLookedAt(before + 2));
    show({window(1, 30, R"(,"name":"another title")"), window(ownProcess, 20)});
    ASSERT_TRUE(sway.wasLookedAt(before + 5));
    EXPECT_EQ(told, 3) << "a title changed, and a window of our own moved";
}

TEST_F(SwayWindowListTest, DoesNotLookWhileNothingCanBeDragged)
{
    for (const QByteArrayList& windows : {QByteArrayList(), {window(ownProcess, 0)},
             {window(1, 0, R"(,"fullscreen_mode":1)")}, {window(1, 0, R"(,"visible":false)")}}) {
        show(windows);
        ASSERT_TRUE(watch());
        EXPECT_TRUE(isAsleep()) << windows.join().constData();
        list.setWatching(false);
    }
    show({window(1, 0)});
    ASSERT_TRUE(watch());
    list.setResting(true);
    EXPECT_TRUE(isAsleep()) << "nobody is there to drag it";
    show({window(1, 10)});
    list.setResting(false);
    EXPECT_TRUE(waitUntil([this] { return list.windows()->first().bounds.x() == 10; }));
    list.setWatching(false);
    EXPECT_TRUE(isAsleep()) << "nobody watches";
    EXPECT_FALSE(list.windows());
}

TEST_F(SwayWindowListTest, LooksOnceAfterManyEvents)
{
    show({});
    ASSERT_TRUE(watch());
    ASSERT_TRUE(isAsleep());
    const qsizetype before = sway.count(tree);
    told = 0;
    for (int each = 0; each < 50; ++each)
        sway.happen(3, R"({"change":"title"})");
    EXPECT_TRUE(isAsleep());
    EXPECT_EQ(sway.count(tree), before) << "titles";
    show({window(1, 0, R"(,"fullscreen_mode":1)")});
    for (int each = 0; each < 50; ++each)
        sway.happen(each % 2 ? 3 : 0, R"({"change":"focus"})");
    EXPECT_TRUE(waitUntil([this] { return told == 1; }));
    EXPECT_TRUE(isAsleep());
    EXPECT_LE(sway.count(tree), before + 2);
    EXPECT_EQ(told, 1);
}

TEST_F(SwayWindowListTest, LooksAgainAtWhatHappenedWhileItLooked)
{
    show({});
    ASSERT_TRUE(watch());
    ASSERT_TRUE(isAsleep());
    const auto answer = sway.answer;
    sway.answer = [](const SwayMessage&) { return QByteArray(); }; // takes its time
    const qsizetype before = sway.count(tree);
    sway.happen(3, R"({"change":"new"})");
    ASSERT_TRUE(sway.wasLookedAt(before + 1));
    sway.happen(3, R"({"change":"fullscreen_mode"})");
    EXPECT_FALSE(waitUntil([&] { return sway.count(tree) > before + 1; }, 150)) << "one question at a time";
    sway.answer = answer;
    sway.send(SwayMessages::packed({tree, treeOf({})}));
    show({window(1, 5, R"(,"fullscreen_mode":1)")});
    EXPECT_TRUE(waitUntil([this] { return list.windows()->size() == 1; }));
}

TEST_F(SwayWindowListTest, SaysThatSwayIsGone)
{
    ASSERT_TRUE(watch());
    told = 0;
    sway.end();
    ASSERT_TRUE(waitUntil([this] { return !list.isAvailable(); }));
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(list.windows());
    EXPECT_FALSE(list.whyNot().isEmpty());
    list.setWatching(true);
    EXPECT_FALSE(waitUntil([this] { return told > 1; }, 100));
    const SwayWindowList none(
        {}, [](const QRectF& place) { return place; }, ownProcess);
    EXPECT_FALSE(none.isAvailable());
}

TEST_F(SwayWindowListTest, HasNoListAfterAnAnswerThatIsNone)
{
    ASSERT_TRUE(watch());
    sway.answers[tree] = "{\"type\":";
    EXPECT_TRUE(waitUntil([this] { return !list.windows(); }));
    show({window(1, 40)});
    sway.happen(0, R"({"change":"focus"})");
    EXPECT_TRUE(waitUntil([this] { return list.windows().has_value(); }));
}

struct SwayOutputsPortTest : testing::Test {
    FakeSway sway;

    SwayOutputsPortTest()
    {
        sway.answers[3] = testData("sway-outputs.json");
        sway.answers[1] = testData("sway-workspaces.json");
    }
    void giveRoomBack()
    {
        sway.answers[1].replace(R"("y":23,"width":1280,"height":777)", R"("y":0,"width":1280,"height":800)");
    }
};

TEST_F(SwayOutputsPortTest, AsksAgainWhenItIsAsked)
{
    SwayOutputs outputs(sway.path());
    int told = 0;
    QObject::connect(&outputs, &SwayOutputs::changed, &outputs, [&] { ++told; });
    EXPECT_FALSE(outputs.output(u"HEADLESS-1"_s));
    ASSERT_TRUE(waitUntil([&] { return told == 1; }));
    EXPECT_EQ(outputs.output(u"HEADLESS-1"_s)->usable, QRectF(0, 23, 1280, 777));
    EXPECT_FALSE(outputs.output(u"HEADLESS-7"_s));
    giveRoomBack();
    EXPECT_TRUE(waitUntil([&] { return outputs.output(u"HEADLESS-1"_s)->usable == QRectF(0, 0, 1280, 800); }));
    EXPECT_EQ(told, 2);
    EXPECT_TRUE(waitUntil([&] {
        const qsizetype before = sway.asked.size();
        return !waitUntil([&] { return sway.asked.size() > before; }, 300);
    })) << "asked by nobody, it asks nobody";
    sway.answers[1] = "[";
    outputs.refresh();
    const qsizetype before = sway.count(1);
    ASSERT_TRUE(waitUntil([&] { return sway.count(1) > before; }));
    EXPECT_FALSE(waitUntil([&] { return told > 2; }, 100)) << "what is no answer changes nothing";
    sway.end();
    EXPECT_TRUE(waitUntil([&] { return told == 3 && !outputs.output(u"HEADLESS-1"_s); }));
}

TEST_F(SwayOutputsPortTest, FollowsBarsAndConfigurations)
{
    struct Case {
        quint32 kind;
        const char* change;
    };
    for (const Case& each : {Case{4, R"({"id":"bar-0","mode":"hide"})"}, Case{0, R"({"change":"reload"})"},
             Case{1, R"({"change":"unspecified"})"}}) {
        sway.answers[1] = testData("sway-workspaces.json");
        SwayOutputs outputs(sway.path());
        ASSERT_TRUE(waitUntil([&] { return outputs.output(u"HEADLESS-1"_s).has_value(); }));
        bool told = false;
        QObject::connect(&outputs, &SwayOutputs::changed, &outputs, [&] { told = true; });
        giveRoomBack();
        sway.happen(each.kind, each.change);
        EXPECT_TRUE(waitUntil([&] { return told; })) << each.change;
    }
}

TEST_F(SwayOutputsPortTest, MayBeWaitedForAtTheStart)
{
    SwayOutputs nowhere(u"/nonexistent/sway.sock"_s);
    EXPECT_FALSE(nowhere.waitForAnswer(10s));
    EXPECT_FALSE(SwayOutputs({}).waitForAnswer(10s));
    sway.answer = [](const SwayMessage&) { return QByteArray(); };
    SwayOutputs late(sway.path());
    EXPECT_FALSE(late.waitForAnswer(50ms));
}

} // namespace
} // namespace ambrelle::test
