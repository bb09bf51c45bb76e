// SPDX-License-Identifier: MIT

#include "platform/linux/sway/SwayOutputs.h"
#include "platform/linux/sway/SwayWindowList.h"
#include "support/WaitUntil.h"
#include "support/wayland/VirtualInput.h"

#include <QGuiApplication>
#include <QProcess>
#include <QRasterWindow>
#include <QScreen>

#include <gtest/gtest.h>

#include <algorithm>

namespace ambrelle::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

void swaymsg(const QString& command)
{
    QProcess tool;
    tool.start(u"swaymsg"_s, {command});
    ASSERT_TRUE(tool.waitForFinished());
    EXPECT_EQ(tool.exitCode(), 0) << qPrintable(command) << tool.readAll().constData();
}

/// Another program.
class OtherWindows {
public:
    OtherWindows()
    {
        m_process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
        m_process.start(qEnvironmentVariable("AMBRELLE_TEST_TOOLS") + u"/other_windows"_s, QStringList());
    }
    ~OtherWindows()
    {
        m_process.closeWriteChannel();
        m_process.waitForFinished();
    }
    OtherWindows(const OtherWindows&) = delete;
    OtherWindows& operator=(const OtherWindows&) = delete;

    void tell(const QString& line) { m_process.write((line + u'\n').toUtf8()); }
    void open(const QString& name)
    {
        tell(u"open %1 300 200 #2060c0"_s.arg(name));
        QByteArray said;
        ASSERT_TRUE(waitUntil([&] {
            said += m_process.readAll();
            return said.contains((name + u" shown\n"_s).toUtf8());
        }));
    }

private:
    QProcess m_process;
};

// The session has two outputs of 1280 × 800 points; the right one has 1.5 pixels to a point.
struct OnSwayTest : testing::Test {
    const QString path = qEnvironmentVariable("SWAYSOCK");
    const QRectF layout{0, 0, 2560, 800};
    OtherWindows others;
    SwayWindowList list{path,
        [](const QRectF& place) { return QRectF(QPointF(place.x(), 800 - place.bottom()), place.size()); },
        QCoreApplication::applicationPid()};
    int told = 0;

    OnSwayTest()
    {
        QObject::connect(&list, &SwayWindowList::changed, &list, [this] { ++told; });
    }
    void SetUp() override
    {
        swaymsg(u"workspace 1; focus output HEADLESS-1"_s);
        list.setWatching(true);
        ASSERT_TRUE(becomes({}));
    }
    /// Whether just those windows come to be there, as Sway counts (y down). `again` is what Sway is told now and then
    /// until they are: a window that is just about to change its size does so after whatever it was told.
    bool becomes(const QList<QRectF>& places, const QString& again = {}) const
    {
        constexpr int rounds = 10;
        for (int round = 0; round < rounds; ++round) {
            if (!again.isEmpty())
                swaymsg(again);
            if (waitUntil([&] { return are(places); }, 3000))
                return true;
        }
        for (const OnscreenWindow& window : list.windows().value_or(QList<OnscreenWindow>()))
            ADD_FAILURE() << window.bounds.x() << ' ' << window.bounds.y() << ' ' << window.bounds.width() << ' '
                          << window.bounds.height();
        return false;
    }
    bool are(const QList<QRectF>& places) const
    {
        const auto windows = list.windows();
        return windows && windows->size() == places.size()
            && std::ranges::all_of(*windows, [&](const OnscreenWindow& window) {
                   return places.contains(
                       QRectF(QPointF(window.bounds.x(), 800 - window.bounds.bottom()), window.bounds.size()));
               });
    }
};

TEST_F(OnSwayTest, FollowsWindowsWhereverTheyGo)
{
    const QRectF whole(0, 0, 1280, 800);
    const QRectF left(0, 0, 640, 800);
    const QRectF right(640, 0, 640, 800);
    const QRectF floating(100, 150, 300, 200);
    others.open(u"a"_s);
    EXPECT_TRUE(becomes({whole}));
    others.open(u"b"_s);
    EXPECT_TRUE(becomes({left, right}));
    struct Step {
        const char* what;
        QString command;
        QList<QRectF> expected;
        QString again{};
    };
    const QString place = u"[title=b] resize set 300 200, move absolute position 100 150"_s;
    const Step steps[] = {
        {"resized", u"[title=b] resize set width 320 px"_s, {{0, 0, 960, 800}, {960, 0, 320, 800}}},
        {"as before", u"[title=b] resize set width 640 px"_s, {left, right}},
        {"floating", u"[title=b] floating enable, border none"_s, {whole, floating}, place},
        {"moved", u"[title=b] move absolute position 140 170"_s, {whole, {140, 170, 300, 200}}},
        {"on the other output", u"[title=b] move absolute position 1500 100"_s, {whole, {1500, 100, 300, 200}}},
        {"put aside", u"[title=b] move scratchpad"_s, {whole}},
        {"brought back", u"[title=b] scratchpad show"_s, {whole, floating}, place},
        {"on another workspace", u"[title=b] move container to workspace 5"_s, {whole}},
        {"which is shown", u"workspace 5"_s, {floating}},
        {"and left", u"workspace 1"_s, {whole}},
        {"in tabs", u"[title=b] move container to workspace 1, floating disable; [title=a] focus; layout tabbed"_s,
            {whole}},
        {"the other tab", u"[title=b] focus"_s, {whole}},
        {"in a row", u"layout splith"_s, {left, right}},
        {"one alone", u"[title=a] move container to output HEADLESS-2"_s, {whole, {1280, 0, 1280, 800}}},
    };
    for (const Step& step : steps) {
        SCOPED_TRACE(step.what);
        swaymsg(step.command);
        EXPECT_TRUE(becomes(step.expected, step.again));
    }
    others.tell(u"close a"_s);
    EXPECT_TRUE(becomes({whole}));
}

TEST_F(OnSwayTest, KnowsAFullScreenWindow)
{
    others.open(u"a"_s);
    others.open(u"b"_s);
    ASSERT_TRUE(becomes({{0, 0, 640, 800}, {640, 0, 640, 800}}));
    const auto isAlone = [this](
                             const QRectF& place) { return becomes({place}) && list.windows()->first().isFullScreen; };
    others.tell(u"fill b"_s);
    EXPECT_TRUE(isAlone({0, 0, 1280, 800}));
    swaymsg(u"[title=b] fullscreen disable; [title=a] fullscreen enable global"_s);
    EXPECT_TRUE(isAlone({0, 0, 2560, 800}));
}

TEST_F(OnSwayTest, SeesADragBesideAllEvents)
{
    const auto input = VirtualInput::plugIn();
    ASSERT_TRUE(input);
    others.open(u"a"_s);
    ASSERT_TRUE(becomes({{0, 0, 1280, 800}}));
    swaymsg(u"[title=a] floating enable, border none"_s);
    ASSERT_TRUE(becomes({{100, 100, 300, 200}}, u"[title=a] resize set 300 200, move absolute position 100 100"_s));
    input->setKey(u"super"_s, true);
    input->move({200, 200}, layout);
    input->press();
    told = 0;
    for (int step = 1; step <= 40; ++step)
        input->moveBy({5, 2});
    EXPECT_TRUE(becomes({{300, 180, 300, 200}})) << "before it is let go";
    EXPECT_GE(told, 1);
    input->moveBy({10, 10});
    input->release();
    input->setKey(u"super"_s, false);
    EXPECT_TRUE(becomes({{310, 190, 300, 200}}));
}

TEST_F(OnSwayTest, LeavesOutItsOwnWindows)
{
    QRasterWindow own;
    own.setTitle(u"own"_s);
    own.show();
    ASSERT_TRUE(waitUntil([&] { return own.isExposed(); }));
    others.open(u"a"_s);
    EXPECT_TRUE(becomes({{640, 0, 640, 800}}));
}

TEST_F(OnSwayTest, TellsRoomsOfOutputsWithAndWithoutBar)
{
    SwayOutputs outputs(path);
    ASSERT_TRUE(outputs.waitForAnswer(60s));
    const SwayOutput right = *outputs.output(u"HEADLESS-2"_s);
    EXPECT_EQ(right.place, QRectF(1280, 0, 1280, 800));
    EXPECT_EQ(right.usable, right.place);
    EXPECT_FALSE(right.maker.isEmpty());
    // The toolkit counts as Sway does.
    for (const QScreen* screen : QGuiApplication::screens())
        EXPECT_EQ(outputs.output(screen->name())->place, QRectF(screen->geometry())) << qPrintable(screen->name());
    int changes = 0;
    QObject::connect(&outputs, &SwayOutputs::changed, &outputs, [&] { ++changes; });
    swaymsg(u"bar bar-0 position top; bar bar-0 mode dock"_s);
    EXPECT_TRUE(waitUntil([&] { return changes > 0 || outputs.output(u"HEADLESS-2"_s)->usable.y() > 0; }));
    EXPECT_TRUE(waitUntil([&] {
        const QRectF usable = outputs.output(u"HEADLESS-1"_s)->usable;
        return usable.top() > 0 && usable.bottom() == 800 && usable.width() == 1280;
    }));
    swaymsg(u"bar bar-0 mode invisible"_s);
    EXPECT_TRUE(waitUntil([&] { return outputs.output(u"HEADLESS-1"_s)->usable == QRectF(0, 0, 1280, 800); }));
}

} // namespace
} // namespace ambrelle::test
