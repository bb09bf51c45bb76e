#include "platform/recording/RecordingWindowHost.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

class Listener : public PanelDelegate {
public:
    void paint(QPainter& painter, const QRectF& area) override
    {
        painter.fillRect(area.adjusted(0, 0, -10, 0), Qt::red);
    }
    void pointerPressed(const PointerEvent& event) override
    {
        heard.append("press");
        last = event;
    }
    void pointerMoved(const PointerEvent& event) override
    {
        heard.append("move");
        last = event;
    }
    void pointerReleased(const PointerEvent& event) override
    {
        heard.append("release");
        last = event;
    }
    void pointerEntered() override { heard.append("enter"); }
    void pointerLeft() override { heard.append("leave"); }
    void appearanceChanged() override { }

    QStringList heard;
    PointerEvent last;
};

struct Machine {
    RecordingWindowHost host;
    Listener low;
    Listener high;
    std::unique_ptr<PanelWindow> lowPanel = host.makePanel(low);
    std::unique_ptr<PanelWindow> highPanel = host.makePanel(high);

    Machine()
    {
        lowPanel->setFrame({100, 100, 200, 100});
        lowPanel->setLevel(WindowLevel::floating);
        lowPanel->show();
        highPanel->setFrame({150, 100, 200, 100});
        highPanel->show();
    }
};

TEST(RecordingWindowHostTest, ThePointerGoesToTheTopmostWindowThatHearsIt)
{
    Machine machine;
    machine.host.click({160, 110});
    EXPECT_EQ(machine.low.heard, (QStringList{"enter", "move", "press", "release"}));
    EXPECT_EQ(machine.low.last.local, QPointF(60, 90)) << "y down from the upper left corner";

    machine.lowPanel->setInputArea({0, 0, 200, 50});
    machine.host.click({160, 110});
    EXPECT_EQ(machine.high.heard, (QStringList{"enter", "press", "release"}));
    machine.highPanel->setClickThrough(true);
    machine.host.movePointer({161, 110});
    EXPECT_EQ(machine.high.heard.last(), QString("leave"));
    EXPECT_EQ(machine.host.panelAt({161, 110}), nullptr);
}

TEST(RecordingWindowHostTest, APressedWindowKeepsThePointerUntilRelease)
{
    Machine machine;
    machine.host.drag({110, 150}, {340, 150}, 2);
    EXPECT_EQ(machine.low.heard, (QStringList{"enter", "move", "press", "move", "move", "release", "leave"}));
    EXPECT_EQ(machine.low.last.global, QPointF(340, 150));
    EXPECT_EQ(machine.high.heard, QStringList{"enter"});
}

TEST(RecordingWindowHostTest, WindowsCanBeClosedAndLookedAt)
{
    Machine machine;
    const QImage picture = machine.host.panels().first()->picture(2);
    EXPECT_EQ(picture.size(), QSize(400, 200));
    EXPECT_EQ(picture.pixelColor(0, 0), QColor(Qt::red));
    EXPECT_EQ(picture.pixelColor(399, 0).alpha(), 0);
    machine.host.press({110, 150});
    machine.lowPanel.reset();
    machine.host.release({110, 150});
    EXPECT_EQ(machine.host.panels().size(), 1);
}

TEST(RecordingWindowHostTest, TellsOfScreensOnlyWhenTheyDiffer)
{
    RecordingWindowHost host;
    int told = 0;
    QObject::connect(&host, &WindowHost::screensChanged, &host, [&] { ++told; });
    host.setScreens(host.screens());
    EXPECT_EQ(told, 0);
    host.setScreens({});
    EXPECT_EQ(told, 1);
}

} // namespace
} // namespace ambrelle
