// SPDX-License-Identifier: MIT

#include "window/frame/Undo.h"
#include "foundation/ManualClock.h"
#include "window/frame/UndoBar.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"

#include <QAccessible>
#include <QApplication>
#include <QLineEdit>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

struct UndoTest : testing::Test {
    ManualClock clock;
    UndoKeeper keeper{clock};
    QStringList done;

    Undo undoOf(const QString& text)
    {
        return {text, [this, text] { done.append(text); }};
    }
};

TEST_F(UndoTest, LastsEightSecondsWhileNobodyHoldsIt)
{
    keeper.offer(undoOf(u"a"_s));
    clock.advance(7'900ms);
    keeper.setHeld(true);
    clock.advance(60s);
    EXPECT_TRUE(keeper.canUndo()) << "gone under the pointer";
    keeper.setHeld(false);
    clock.advance(50ms);
    EXPECT_TRUE(keeper.canUndo());
    clock.advance(60ms);
    EXPECT_FALSE(keeper.isShown());
    keeper.undo();
    EXPECT_TRUE(done.isEmpty());
}

TEST_F(UndoTest, TheNextActionMakesTheOneBeforeFinal)
{
    keeper.offer(undoOf(u"a"_s));
    clock.advance(5s);
    keeper.offer(undoOf(u"b"_s));
    clock.advance(5s);
    EXPECT_EQ(keeper.text(), u"b"_s) << "it ends with the time of the one before";
    keeper.undo();
    keeper.undo();
    EXPECT_EQ(done, QStringList{u"b"_s});
    // What is taken back may offer something itself.
    keeper.offer({u"c"_s, [this] { keeper.offer(undoOf(u"d"_s)); }});
    keeper.undo();
    EXPECT_EQ(keeper.text(), u"d"_s);
    keeper.dismiss();
    keeper.undo();
    EXPECT_EQ(done, QStringList{u"b"_s});
}

TEST_F(UndoTest, AFailureStaysAndCostsWhatCanBeUndoneNoTime)
{
    keeper.offer(undoOf(u"a"_s));
    clock.advance(6s);
    keeper.fail(u"No room"_s, [this] { done.append(u"again"_s); });
    clock.advance(1h);
    EXPECT_EQ(keeper.text(), u"No room"_s);
    EXPECT_FALSE(keeper.canUndo());
    keeper.makeFinal();
    EXPECT_TRUE(keeper.failure()) << "nobody has seen it";
    keeper.offer(undoOf(u"b"_s));
    keeper.tryAgain();
    EXPECT_EQ(done, QStringList{u"again"_s});
    clock.advance(7s);
    EXPECT_EQ(keeper.text(), u"b"_s);
    clock.advance(2s);
    EXPECT_FALSE(keeper.isShown());
}

TEST_F(UndoTest, TheFailureOfAPictureGoesWhenTheNextOneIsOrdered)
{
    keeper.fail(u"No room"_s);
    keeper.beginPicture();
    EXPECT_EQ(keeper.text(), u"No room"_s) << "no other picture helps that";
    keeper.failPicture(u"No picture"_s, [this] { done.append(u"again"_s); });
    keeper.makeFinal();
    EXPECT_EQ(keeper.text(), u"No picture"_s);
    keeper.offer(undoOf(u"a"_s));
    keeper.beginPicture();
    EXPECT_FALSE(keeper.isShown());
    keeper.offer(undoOf(u"b"_s));
    EXPECT_TRUE(keeper.canUndo());
}

TEST_F(UndoTest, TheBarTakesNoFocusAndLiesWholeAtTheFoot)
{
    QWidget window;
    QLineEdit field(&window);
    UndoBar bar(keeper, window);
    for (const double scale : {1.0, 1.5}) {
        AppLook::shared().apply({.reducesMotion = true, .textScale = scale});
        for (const int width : {1120, 720, 400}) {
            window.resize(width, 480);
            window.show();
            field.setFocus();
            keeper.offer(undoOf(u"“Neon” is on your desktop"_s));
            const auto plate = [&] { return bar.geometry().marginsRemoved(QMargins(18, 18, 18, 18)); };
            EXPECT_EQ(plate().bottom() + 1, 480 - 18);
            EXPECT_GE(plate().height(), 44);
            EXPECT_EQ(window.focusWidget(), &field);
            keeper.fail(QString(40, u'm') + u" of the folder cannot be written to, since its disk is full"_s, {});
            EXPECT_TRUE(window.rect().contains(plate())) << width;
            EXPECT_EQ(plate().bottom() + 1, 480 - 18);
            window.hide();
            keeper.dismiss();
            EXPECT_FALSE(keeper.isShown()) << "hiding did not make it final";
        }
    }
    AppLook::shared().apply({});
    keeper.offer(undoOf(u"Clock removed"_s));
    QAccessibleInterface* alert = QAccessible::queryAccessibleInterface(&bar);
    EXPECT_EQ(alert->role(), QAccessible::AlertMessage);
    EXPECT_EQ(alert->text(QAccessible::Name), u"Clock removed"_s);
    for (Button* button : bar.findChildren<Button*>()) {
        if (button->title() == u"Undo"_s)
            button->click();
    }
    EXPECT_EQ(done, QStringList{u"Clock removed"_s});
}

} // namespace
} // namespace ambrelle
