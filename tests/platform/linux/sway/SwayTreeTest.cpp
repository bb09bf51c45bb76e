// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwayTree.h"
#include "support/TestData.h"

namespace ambrelle::test {
namespace {

using namespace Qt::StringLiterals;

TEST(SwayTreeTest, FindsTheWindowsThatAreShown)
{
    // Behind them are a tab, two of a stack and a window of another workspace; one is put aside.
    const auto windows = swayWindows(testData("sway-tree.json"));
    ASSERT_TRUE(windows);
    const QList<SwayWindow> expected{
        {{0, 23, 1280, 777}, 4711, false}, // with the tabs' titles
        {{1280, 21, 1066, 779}, 4711, false}, // with the titles of all three in its stack
        {{1398, 275, 1066, 704}, 4711, false}, // floating, with its title
        {{2000, 500, 529, 752}, 4711, false}, // without one
    };
    EXPECT_EQ(*windows, expected);
}

TEST(SwayTreeTest, KnowsAFullScreenWindow)
{
    QByteArray tree = testData("sway-tree.json");
    const qsizetype window = tree.indexOf("\"name\":\"sticky\"");
    const QByteArray plain = "\"fullscreen_mode\":0";
    tree.replace(tree.indexOf(plain, window), plain.size(), "\"fullscreen_mode\":1");
    const auto windows = swayWindows(tree);
    ASSERT_TRUE(windows && windows->size() == 4);
    EXPECT_TRUE(windows->last().isFullScreen);
    EXPECT_FALSE(windows->first().isFullScreen);
}

TEST(SwayTreeTest, TakesNoHarmFromWhatIsNoTree)
{
    struct Case {
        const char* what;
        QByteArray tree;
        qsizetype windows; ///< -1: no answer
    };
    const QByteArray start = R"({"type":"root","nodes":[)";
    const Case cases[] = {
        {"nothing", "", -1},
        {"a list", "[]", -1},
        {"an error", R"({"success":false,"error":"no"})", -1},
        {"an empty tree", R"({"type":"root"})", 0},
        {"children that are none", R"({"type":"root","nodes":{"a":1},"floating_nodes":"x"})", 0},
        {"children of odd kinds", start + R"(1,null,"x",[],[{"pid":1}],{}]})", 0},
        {"a window without a place", start + R"({"pid":1,"visible":true}]})", 0},
        {"a place of texts", start + R"({"pid":1,"rect":{"x":"1","y":"1","width":"9","height":"9"}}]})", 0},
        {"a place without size", start + R"({"pid":1,"rect":{"x":1,"y":1,"width":-5,"height":9}}]})", 0},
        {"a place beyond all screens", start + R"({"pid":1,"rect":{"x":1e300,"y":1,"width":5,"height":1e308}}]})", 0},
        {"a process of text", start + R"({"pid":"x","rect":{"x":1,"y":1,"width":5,"height":9}}]})", 1},
        {"deeper than anything",
            R"({"type":"root",)" + QByteArray(R"("nodes":[{)").repeated(100'000) + QByteArray("}]").repeated(100'000)
                + "}",
            -1},
    };
    for (const Case& each : cases) {
        const auto windows = swayWindows(each.tree);
        EXPECT_EQ(windows ? windows->size() : -1, each.windows) << each.what;
    }
    const QByteArray whole = testData("sway-tree.json");
    for (qsizetype length = 0; length < whole.trimmed().size(); length += 7)
        EXPECT_FALSE(swayWindows(whole.first(length))) << length;
}

TEST(SwayOutputsTest, TellsWhatBarsLeave)
{
    const auto outputs = swayOutputs(testData("sway-outputs.json"), testData("sway-workspaces.json"));
    ASSERT_TRUE(outputs);
    const QList<SwayOutput> expected{
        {u"HEADLESS-1"_s, u"headless"_s, u"headless"_s, u""_s, {0, 0, 1280, 800}, {0, 23, 1280, 777}},
        {u"HEADLESS-2"_s, u"headless"_s, u"headless"_s, u""_s, {1280, 0, 1066, 800}, {1280, 21, 1066, 779}},
    };
    EXPECT_EQ(*outputs, expected);
}

TEST(SwayOutputsTest, MakesDoWithLess)
{
    const QByteArray place = R"("rect":{"x":0,"y":0,"width":100,"height":50})";
    const QByteArray output =
        R"([{"name":"DP-1","active":true,"make":"Unknown","model":"U2 ","serial":7,)" + place + "}]";
    const auto usable = [&](const QByteArray& workspaces) {
        const auto outputs = swayOutputs(output, workspaces);
        return outputs && outputs->size() == 1 ? outputs->first().usable : QRectF();
    };
    EXPECT_EQ(usable("[]"), QRectF(0, 0, 100, 50));
    EXPECT_EQ(usable(R"([{"output":"DP-1","visible":false,"rect":{"x":1,"y":1,"width":5,"height":5}}])"),
        QRectF(0, 0, 100, 50));
    EXPECT_EQ(usable(R"([{"output":"DP-1","visible":true,"rect":{"x":0,"y":10,"width":500,"height":5}}])"),
        QRectF(0, 10, 100, 5))
        << "not beyond the output";
    EXPECT_EQ(usable(R"([{"output":"DP-1","visible":true,"rect":7}, null, []])"), QRectF(0, 0, 100, 50));
    const SwayOutput told = swayOutputs(output, "[]")->first();
    EXPECT_EQ(told.maker, QString()) << "the display says nothing";
    EXPECT_EQ(told.model, u"U2"_s);
    EXPECT_EQ(told.serial, QString());
    EXPECT_EQ(swayOutputs(R"([{"name":"DP-1","active":false},{"name":"","active":true},{"active":true},5])", "[]"),
        QList<SwayOutput>());
    EXPECT_FALSE(swayOutputs("{}", "[]"));
    EXPECT_FALSE(swayOutputs(output, ""));
}

} // namespace
} // namespace ambrelle::test
