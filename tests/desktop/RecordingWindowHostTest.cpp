// SPDX-License-Identifier: MIT

#include "platform/recording/RecordingWindowHost.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

class Listener : public PanelDelegate {
public:
    void paint(QPainter&, const QRectF&) override { }
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

struct TwoPanels {
    RecordingWindowHost host;
    Listener low;
    Listener high;
    std::unique_ptr<PanelWindow> lowPanel = host.makePanel(low);
    std::unique_ptr<PanelWindow> highPanel = host.makePanel(high);

    TwoPanels()
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
    TwoPanels machine;
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
    TwoPanels machine;
    machine.host.drag({110, 150}, {340, 150}, 2);
    EXPECT_EQ(machine.low.heard, (QStringList{"enter", "move", "press", "move", "move", "release", "leave"}));
    EXPECT_EQ(machine.low.last.global, QPointF(340, 150));
    EXPECT_EQ(machine.high.heard, QStringList{"enter"});
}

} // namespace
} // namespace ambrelle
