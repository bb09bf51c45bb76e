// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"

#include "placement/ScreenPlacement.h"

#include <gtest/gtest.h>

#include <malloc.h>
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

/// Where a user takes hold of a widget and lets it go: near an edge or a corner of the screens, or a little outside.
QPointF spotAtAnEdge(std::mt19937& random, const QRectF& screen)
{
    const auto within = [&random](
                            double least, double most) { return std::uniform_real_distribution(least, most)(random); };
    constexpr double around = 250;
    const QPointF anywhere{within(screen.left(), screen.right()), within(screen.top(), screen.bottom())};
    const double x = (random() % 2 ? screen.left() : screen.right()) + within(-around, around);
    const double y = (random() % 2 ? screen.top() : screen.bottom()) + within(-around, around);
    switch (random() % 3) {
    case 0: return {x, anywhere.y()};
    case 1: return {anywhere.x(), y};
    default: return {x, y};
    }
}

/// What is whole on a screen stays so when it grows, and anything else keeps its lower left corner while it is seen.
void checkGrown(const QRectF& before, const QRectF& after, const QList<ScreenInfo>& screens)
{
    const auto screen = ScreenPlacement::screenShowing(before, screens);
    ASSERT_TRUE(screen.has_value());
    const QRectF room = ScreenPlacement::room(*screen);
    const bool fits = after.width() <= room.width() && after.height() <= room.height();
    const bool staysWhole = room.contains(before) && fits;
    ASSERT_TRUE(!staysWhole || room.contains(after));
    const QRectF put(before.topLeft(), after.size());
    const bool isSeen = ScreenPlacement::screenShowing(put, screens).has_value();
    const bool staysPut = room.contains(before) ? room.contains(put) : isSeen;
    ASSERT_EQ(after.topLeft(), staysPut ? before.topLeft() : after.topLeft());
}

TEST(AnyOrder, EightThousandSizesAndDragsAtEdgesLoseNothing)
{
    std::mt19937 random(20261123);
    UserDefaults store = UserDefaults::temporary();
    Desk desk(store);
    const QList<ScreenInfo> screens{desk.host.screens().first(), rightScreen};
    desk.host.setScreens(screens);
    for (int i = 0; i < 12; ++i)
        desk.manager.add(allCases<WidgetKind>()[static_cast<std::size_t>(i)]);
    std::size_t usedEarly = 0;
    constexpr std::size_t mostKept = 3'000'000; // layers of faces that come and go
    for (int step = 0; step < 8000; ++step) {
        const QList<WidgetController*>& widgets = desk.manager.controllers();
        WidgetController& widget = *widgets.at(static_cast<qsizetype>(random() % 12));
        const QRectF before = widget.widgetFrame();
        if (random() % 2) {
            widget.setScale(allCases<WidgetScale>()[random() % allCases<WidgetScale>().size()]);
            ASSERT_NO_FATAL_FAILURE(checkGrown(before, widget.widgetFrame(), screens)) << step;
        } else {
            desk.host.drag(
                before.center(), spotAtAnEdge(random, screens.at(static_cast<qsizetype>(random() % 2)).frame));
        }
        ASSERT_EQ(widgets.size(), 12) << step;
        const QList<RecordingPanel*> panels = desk.panels();
        ASSERT_EQ(panels.size(), 12) << step;
        for (qsizetype i = 0; i < widgets.size(); ++i) {
            const QRectF frame = widgets.at(i)->widgetFrame();
            ASSERT_EQ(frame.size(), widgets.at(i)->config().size()) << step;
            ASSERT_TRUE(ScreenPlacement::screenShowing(frame, screens)) << step;
            ASSERT_EQ(panels.at(i)->frame(), PanelGeometry::panelFrame(frame)) << step;
        }
        if (step % 100 == 0) {
            ASSERT_EQ(desk.stored(), desk.live()) << step;
            desk.paintAll();
        }
        if (step == 2000)
            usedEarly = ::mallinfo2().uordblks;
    }
    desk.paintAll();
    EXPECT_LT(::mallinfo2().uordblks, usedEarly + mostKept) << "memory grows";
}

} // namespace
} // namespace ambrelle
