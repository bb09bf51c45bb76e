// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"

#include "placement/ScreenPlacement.h"

#include <gtest/gtest.h>

#include <random>

namespace ambrelle {
namespace {

/// A desktop with a user who does anything at any time, and with screens that do so too.
class RandomDesk {
public:
    explicit RandomDesk(unsigned seed)
        : m_random(seed)
    {
        const ScreenInfo main = desk.host.screens().first();
        ScreenInfo smaller = main;
        smaller.frame = smaller.visibleFrame = QRectF(0, 0, 1024, 600);
        everything = {main, rightScreen};
        m_arrangements = {{main}, everything, {rightScreen}, {}, {smaller}, {smaller, rightScreen}};
    }

    void step()
    {
        const QList<WidgetController*>& widgets = desk.manager.controllers();
        const int operation = pick(12);
        if (widgets.isEmpty() || operation == 0)
            add();
        else if (operation < 8)
            change(*widgets.at(pick(static_cast<int>(widgets.size()))), operation);
        else if (operation < 10)
            desk.show(m_arrangements.at(pick(static_cast<int>(m_arrangements.size()))));
        else
            edit(pick(5));
    }

    UserDefaults store = UserDefaults::temporary();
    Desk desk{store};
    QList<ScreenInfo> everything;

private:
    int pick(int below) { return static_cast<int>(m_random() % static_cast<unsigned>(below)); }
    QPointF anywhere() { return {static_cast<double>(pick(6000) - 2000), static_cast<double>(pick(4000) - 1500)}; }

    void add()
    {
        constexpr int most = 12;
        if (desk.manager.controllers().size() < most)
            desk.manager.add(allCases<WidgetKind>()[static_cast<std::size_t>(pick(20))], std::nullopt,
                pick(2) ? std::optional(anywhere() / 2) : std::nullopt);
    }

    void change(WidgetController& widget, int operation)
    {
        switch (operation) {
        case 1:
        case 2: desk.host.drag(widget.widgetFrame().center(), anywhere()); break;
        case 3: dragNear(widget); break;
        case 4: widget.setScale(next(widget.config().scale)); break;
        case 5: widget.setPinned(pick(2) == 0); break;
        case 6: widget.setSkin(allCases<Skin>()[static_cast<std::size_t>(pick(30))]); break;
        default: desk.manager.remove(&widget); break;
        }
    }

    /// A drag along another widget, during which edit mode may begin or end.
    void dragNear(const WidgetController& widget)
    {
        const QList<WidgetController*>& widgets = desk.manager.controllers();
        const QPointF grip = widget.widgetFrame().center();
        desk.host.press(grip);
        desk.host.movePointer(widgets.at(pick(static_cast<int>(widgets.size())))->widgetFrame().bottomRight());
        if (const int during = pick(10); during != clickSomewhere)
            edit(during);
        desk.host.movePointer(desk.host.pointer() + QPointF(pick(9), pick(9)));
        desk.host.release(desk.host.pointer());
    }

    static constexpr int clickSomewhere = 3;

    void edit(int operation)
    {
        switch (operation) {
        case 0: desk.manager.setEditing(true); break;
        case 1: desk.settings.editing.set(!desk.settings.editing()); break;
        case 2: desk.host.pressKey(Qt::Key_Escape); break;
        case clickSomewhere: desk.host.click(anywhere()); break;
        case 4: desk.settings.locked.set(pick(3) == 0); break;
        default: break;
        }
    }

    std::mt19937 m_random;
    QList<QList<ScreenInfo>> m_arrangements;
};

/// Whatever happens: what is stored is what is shown, every widget can be seen, and no window is left over.
TEST(AnyOrder, OfOperationsLeavesTheDesktopWhole)
{
    for (const unsigned seed : {20250602U, 1U, 77U, 4099U}) {
        RandomDesk random(seed);
        Desk& desk = random.desk;
        for (int step = 0; step < 1000; ++step) {
            random.step();
            ASSERT_EQ(desk.stored(), desk.live()) << seed << ", step " << step;
            const QList<RecordingPanel*> panels = desk.panels();
            ASSERT_EQ(panels.size(), desk.live().size()) << seed << ", step " << step;
            for (qsizetype index = 0; index < panels.size(); ++index) {
                const QRectF frame = desk.live().at(index).frame();
                ASSERT_EQ(panels.at(index)->frame(), PanelGeometry::panelFrame(frame)) << seed << ", step " << step;
                ASSERT_TRUE(desk.host.screens().isEmpty() || ScreenPlacement::screenShowing(frame, desk.host.screens()))
                    << seed << ", step " << step;
            }
            ASSERT_EQ(desk.host.backdrops().size(), desk.settings.editing() ? desk.host.screens().size() : 0);
        }
        desk.show(random.everything);
        Desk next(random.store);
        next.host.setScreens(desk.host.screens());
        next.manager.load();
        EXPECT_EQ(next.live(), desk.live());
    }
}

} // namespace
} // namespace ambrelle
