// SPDX-License-Identifier: MIT

#include "desktop/Desk.h"

namespace ambrelle {
namespace {

using enum WidgetKind;

struct EditModeTest : DeskTest {
    const ScreenInfo main = desk.host.screens().first();

    QList<RecordingPanel*> guides() const { return desk.panels().sliced(desk.live().size()); }
};

TEST_F(EditModeTest, EndsByEscapeAnEmptySpotAndTheWindowSystem)
{
    WidgetController* widget = desk.add(clock, {100, 100});
    int answered = 0;
    QObject::connect(&desk.manager, &WidgetManager::clicked, [&] { ++answered; });
    struct Case {
        const char* what;
        std::function<void()> act;
        bool ends;
    };
    const Case cases[] = {
        {"Escape", [&] { desk.host.pressKey(Qt::Key_Escape); }, true},
        {"another key", [&] { desk.host.pressKey(Qt::Key_Return); }, false},
        {"an empty spot", [&] { desk.host.click(QPointF(900, 700)); }, true},
        {"an empty spot of the other screen", [&] { desk.host.click(QPointF(2500, 700)); }, true},
        {"the right button", [&] { desk.host.click(QPointF(900, 700), Qt::RightButton); }, false},
        {"a face", [&] { desk.host.click(widget->widgetFrame().center()); }, false},
        {"the toolbar", [&] { desk.useToolbar(*widget, WidgetToolbar::Button::pin); }, false},
        {"the window manager", [&] { desk.host.focused()->delegate().closeRequested(); }, true},
        {"the setting", [&] { desk.settings.editing.set(false); }, true},
    };
    desk.show({main, rightScreen});
    for (const Case& c : cases) {
        desk.manager.setEditing(true);
        ASSERT_EQ(desk.host.backdrops().size(), 2) << c.what;
        for (const RecordingBackdrop* backdrop : desk.host.backdrops())
            EXPECT_TRUE(backdrop->isVisible()) << c.what;
        c.act();
        EXPECT_EQ(desk.settings.editing(), !c.ends) << c.what;
        EXPECT_EQ(desk.host.backdrops().size(), c.ends ? 0 : 2) << c.what;
    }
    EXPECT_EQ(answered, 0) << "a face answers nothing while it is arranged";
    EXPECT_TRUE(widget->config().pinned) << "the toolbar still works";
}

TEST_F(EditModeTest, BackdropsFollowTheScreensAndTheKeyboardThePointer)
{
    desk.show({main, rightScreen});
    desk.host.movePointer({2000, 500});
    desk.manager.setEditing(true);
    ASSERT_TRUE(desk.host.focused());
    EXPECT_EQ(desk.host.focused()->frame(), rightScreen.frame);

    desk.show({main});
    ASSERT_EQ(desk.host.backdrops().size(), 1);
    EXPECT_EQ(desk.host.focused(), desk.host.backdrops().first()) << "its screen has gone";
    desk.show({});
    EXPECT_TRUE(desk.host.backdrops().isEmpty());
    ScreenInfo larger = main;
    larger.frame.setSize({2560, 1440});
    desk.show({larger});
    ASSERT_EQ(desk.host.backdrops().size(), 1);
    EXPECT_EQ(desk.host.backdrops().first()->frame(), larger.frame);
    desk.host.pressKey(Qt::Key_Escape);
    EXPECT_TRUE(desk.host.backdrops().isEmpty());
}

TEST_F(EditModeTest, TheInstructionFitsAndIsLegibleOnEveryScreen)
{
    for (const QSizeF& size : {QSizeF(1440, 900), QSizeF(320, 240), QSizeF(200, 150), QSizeF(40, 30)}) {
        ScreenInfo info = main;
        info.frame = info.visibleFrame = QRectF({-300, 77}, size);
        EditBackdrop backdrop(desk.host, desk.settings);
        backdrop.cover(info, {});
        if (size.width() >= 200) {
            EXPECT_TRUE(info.frame.contains(backdrop.instruction())) << size.width();
        }
        const QImage picture = desk.host.backdrops().first()->picture();
        int letters = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x)
                letters += qGray(picture.pixel(x, y)) > 200 ? 1 : 0;
        }
        EXPECT_GT(letters, size.width() >= 200 ? 400 : 0) << size.width();
    }
}

TEST_F(EditModeTest, SaysThatPositionsAreLockedAndUnlocksThem)
{
    WidgetController* widget = desk.add(clock, {100, 100});
    const auto dragIt = [&] {
        const QPointF before = widget->config().origin;
        desk.host.drag(widget->widgetFrame().center(), widget->widgetFrame().center() + QPointF(200, 100));
        return widget->config().origin != before;
    };
    const auto instruction = [&] { return desk.host.backdrops().first()->picture(); };
    desk.manager.setEditing(true);
    const QImage usual = instruction();
    desk.settings.locked.set(true);
    const QImage locked = instruction();
    EXPECT_NE(locked, usual) << "it tells to drag what cannot be dragged";
    EXPECT_FALSE(dragIt());
    desk.host.pressKey(Qt::Key_Space);
    EXPECT_TRUE(desk.settings.editing());
    EXPECT_FALSE(desk.settings.locked());
    EXPECT_EQ(instruction(), usual);
    EXPECT_TRUE(dragIt());
}

TEST_F(EditModeTest, DragsSnapToNeighboursUnlessAModifierIsHeld)
{
    desk.add(cpu, {400, 300});
    WidgetController* dragged = desk.add(memory, {900, 600});
    const QPointF grip = dragged->widgetFrame().center();
    const auto dragTo = [&](QPointF origin, Qt::KeyboardModifiers held) {
        desk.host.movePointer(grip + origin - QPointF(900, 600), held);
        return PanelGeometry::widgetOrigin(desk.panels().at(1)->frame().topLeft());
    };
    desk.host.press(grip);
    EXPECT_EQ(dragTo({404, 600}, Qt::NoModifier), QPointF(400, 600));
    ASSERT_EQ(guides().size(), 2) << "both edges";
    for (const RecordingPanel* guide : guides()) {
        EXPECT_TRUE(guide->isVisible() && guide->isClickThrough());
        EXPECT_EQ(guide->level(), WindowLevel::desktop);
    }
    for (const Qt::KeyboardModifier held : {Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier}) {
        EXPECT_EQ(dragTo({404, 600}, held), QPointF(404, 600));
        EXPECT_FALSE(guides().first()->isVisible());
    }
    EXPECT_EQ(dragTo({405, 600}, Qt::NoModifier), QPointF(400, 600));
    EXPECT_TRUE(guides().first()->isVisible());
    desk.host.release(desk.host.pointer());
    EXPECT_TRUE(guides().isEmpty());
    EXPECT_EQ(desk.stored().at(1).origin, QPointF(400, 600));

    desk.host.press(dragged->widgetFrame().center());
    desk.host.movePointer(dragged->widgetFrame().center() + QPointF(5, 0));
    EXPECT_FALSE(guides().isEmpty());
    desk.manager.remove(dragged);
    EXPECT_TRUE(guides().isEmpty()) << "removed while dragged";
}

TEST_F(EditModeTest, WhatWasTouchedLastStaysOnTop)
{
    WidgetController* lower = desk.add(cpu, {400, 300});
    desk.add(memory, {450, 300});
    desk.manager.setEditing(true);
    desk.host.drag({410, 310}, {430, 330});
    desk.manager.setEditing(false);
    const QPointF common(540, 400);
    ASSERT_TRUE(lower->widgetFrame().contains(common));
    EXPECT_EQ(desk.host.panelAt(common), desk.panels().first());
    EXPECT_EQ(desk.stored().first().kind, cpu) << "the order of creation is another matter";
    desk.manager.remove(lower);
    desk.settings.layer.set(WidgetLayer::floating);
    EXPECT_EQ(desk.host.panelAt(common), desk.panels().first());
}

/// The change of level takes the window from under the pointer, and the release goes elsewhere.
TEST_F(EditModeTest, EndingItDuringADragDropsTheWidget)
{
    WidgetController* widget = desk.add(cpu, {400, 300});
    desk.manager.setEditing(true);
    desk.host.press(widget->widgetFrame().center());
    desk.host.movePointer(widget->widgetFrame().center() + QPointF(200, 100));
    desk.host.pressKey(Qt::Key_Escape);
    EXPECT_EQ(desk.stored().first().origin, QPointF(600, 400));
    EXPECT_TRUE(guides().isEmpty());
    desk.host.movePointer({50, 50});
    EXPECT_EQ(desk.panels().first()->frame().topLeft(), QPointF(570, 370));
    EXPECT_EQ(desk.stored(), desk.live());
}

} // namespace
} // namespace ambrelle
