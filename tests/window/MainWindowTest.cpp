// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "window/frame/MainWindowController.h"
#include "window/look/AppLook.h"
#include "window/look/SymbolIcon.h"

#include <QAccessible>
#include <QApplication>
#include <QTabBar>
#include <QToolButton>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

QWidget* openWindow()
{
    for (QWidget* widget : QApplication::topLevelWidgets()) {
        if (widget->isVisible())
            return widget;
    }
    return nullptr;
}

void press(QWidget& widget, Qt::Key key)
{
    for (const auto type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, Qt::NoModifier);
        QApplication::sendEvent(&widget, &event);
    }
    QCoreApplication::processEvents();
}

TEST(MainWindow, KeepsItsTabWhileClosedAndIsGoneMeanwhile)
{
    MainWindowController controller([] { return QList<ActionItem>(); });
    controller.show(MainTab::wallpapers);
    ASSERT_TRUE(openWindow());
    EXPECT_EQ(openWindow()->findChild<QTabBar*>()->currentIndex(), 2);
    openWindow()->findChild<QTabBar*>()->setCurrentIndex(3);
    controller.toggle();
    QCoreApplication::processEvents();
    EXPECT_FALSE(controller.isVisible());
    EXPECT_TRUE(QApplication::topLevelWidgets().isEmpty()) << "a closed window takes no memory";
    controller.toggle();
    EXPECT_EQ(openWindow()->findChild<QTabBar*>()->currentIndex(), 3);
}

TEST(MainWindow, OffersEveryActionByNameAndKeyAsThingsStandNow)
{
    bool locked = false;
    int pressed = 0;
    MainWindowController controller([&] {
        return QList<ActionItem>{{.title = u"Edit & Move"_s, .symbol = u"hand.draw"_s, .handler = [&] { ++pressed; }},
            ActionItem::separator(), {.title = u"Lock"_s, .checked = locked, .handler = [&] { locked = !locked; }}};
    });
    controller.show();
    const auto buttons = [] { return openWindow()->findChildren<QToolButton*>(Qt::FindDirectChildrenOnly); };
    ASSERT_EQ(buttons().size(), 2);
    EXPECT_EQ(QAccessible::queryAccessibleInterface(buttons()[0])->text(QAccessible::Name), u"Edit & Move"_s);
    EXPECT_NE(buttons()[0]->focusPolicy() & Qt::TabFocus, 0);
    press(*buttons()[0], Qt::Key_Space);
    EXPECT_EQ(pressed, 1);
    press(*buttons()[1], Qt::Key_Space);
    EXPECT_TRUE(locked);
    EXPECT_TRUE(buttons()[1]->isChecked());
}

TEST(SymbolIcon, TheMarkIsSharpAndShowsOnEveryPanel)
{
    for (const int side : {16, 22, 24, 32, 48}) {
        const QImage mark = markIcon().pixmap(QSize(side, side), 1.0).toImage();
        ASSERT_EQ(mark.size(), QSize(side, side));
        const int row = side * 3 / 10; // through the middle of the upper tiles
        int opaque = 0;
        for (int x = 0; x < side; ++x) {
            const int alpha = mark.pixelColor(x, row).alpha();
            EXPECT_TRUE(alpha == 0 || alpha == 255) << side << ": a tile ends within pixel " << x;
            EXPECT_EQ(alpha, mark.pixelColor(side - 1 - x, row).alpha()) << side << ": it is lopsided";
            opaque += alpha == 255 ? 1 : 0;
        }
        EXPECT_GT(opaque, side / 2);
        for (const QRgb panel : {0xffffffff, 0xffe0e0e0, 0xff2b2b2b, 0xff000000})
            EXPECT_GE(contrast(mark.pixelColor(row, row), QColor(panel)), 3) << side << ' ' << std::hex << panel;
    }
}

TEST(AppLook, EveryTextIsLegible)
{
    for (const bool dark : {false, true}) {
        const QPalette palette = AppLook::palette({.dark = dark});
        for (const auto& [text, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                 std::pair{QPalette::Text, QPalette::Base}, std::pair{QPalette::ButtonText, QPalette::Button},
                 std::pair{QPalette::HighlightedText, QPalette::Highlight}})
            EXPECT_GE(contrast(palette.color(text), palette.color(ground)), 4.5) << dark << ' ' << text;
        EXPECT_GE(
            contrast(palette.color(QPalette::Disabled, QPalette::WindowText), palette.color(QPalette::Window)), 4.5);
        EXPECT_EQ(palette.color(QPalette::Window).lightnessF() < 0.5F, dark);
    }
}

} // namespace
} // namespace ambrelle
