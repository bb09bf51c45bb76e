// SPDX-License-Identifier: MIT

#include "support/WaitUntil.h"
#include "window/look/ActionMenu.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/FocusRing.h"
#include "window/look/Progress.h"
#include "window/look/Segments.h"
#include "window/look/TextLabel.h"
#include "window/look/Transitions.h"

#include <QAccessible>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPointer>
#include <QSpinBox>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

void clickAt(QWidget& widget, const QPoint& point)
{
    for (const QEvent::Type type : {QEvent::MouseButtonPress, QEvent::MouseButtonRelease}) {
        QMouseEvent event(type, QPointF(point), widget.mapToGlobal(QPointF(point)), Qt::LeftButton,
            type == QEvent::MouseButtonPress ? Qt::LeftButton : Qt::NoButton, {});
        QCoreApplication::sendEvent(&widget, &event);
    }
}

TEST(Segments, FoldCountsThenWordsAndNeverTheChosenOne)
{
    for (const double scale : {1.0, 1.5}) {
        AppLook::shared().apply({.textScale = scale});
        Segments tabs(QList<Segments::Item>{
            {u"Concept"_s, u"sparkles"_s, 17}, {u"Minimal"_s, u"circle"_s, 7}, {u"My Themes"_s, u"star.fill"_s, 2}});
        tabs.setChosen(1);
        tabs.setAccessibleName(u"Section"_s);
        tabs.show();
        const QList<Segment*> all = tabs.findChildren<Segment*>();
        for (int width = tabs.sizeHint().width(); width >= tabs.minimumSizeHint().width(); --width) {
            tabs.resize(width, tabs.sizeHint().height());
            EXPECT_TRUE(all[1]->toolTip().isEmpty()) << "the chosen one lost its word at " << width;
            EXPECT_EQ(all[0]->toolTip().isEmpty(), all[2]->toolTip().isEmpty());
            for (int index = 0; index < 3; ++index) {
                ASSERT_TRUE(tabs.rect().contains(all[index]->geometry())) << width;
                ASSERT_TRUE(index == 0 || all[index - 1]->geometry().right() < all[index]->geometry().left());
            }
        }
        EXPECT_EQ(all[0]->toolTip(), u"Concept"_s) << "a symbol without its word";
        const int narrow = tabs.minimumSizeHint().width();
        all[2]->click();
        EXPECT_TRUE(all[2]->toolTip().isEmpty());
        EXPECT_EQ(all[1]->toolTip(), u"Minimal"_s);
        EXPECT_NE(tabs.minimumSizeHint().width(), narrow);
        EXPECT_EQ(QAccessible::queryAccessibleInterface(all[0])->text(QAccessible::Name), u"Section: Concept"_s);
    }
    AppLook::shared().apply({});
}

TEST(WindowStyle, EveryControlIsLargeEnoughToHit)
{
    for (const double scale : {1.0, 1.5}) {
        AppLook::shared().apply({.textScale = scale});
        const QFontMetrics text(AppLook::shared().font(TextRole::body));
        QLineEdit field;
        QComboBox box;
        box.addItem(u"On Desktop"_s);
        QSpinBox number;
        Button button(u"Save"_s);
        Segments segments(QStringList{u"Show"_s, u"Hide"_s});
        for (const QWidget* control : std::initializer_list<QWidget*>{&field, &box, &number, &button, &segments}) {
            EXPECT_GE(control->sizeHint().height(), 30) << control->metaObject()->className();
            EXPECT_GE(control->sizeHint().height(), text.height() + 6) << control->metaObject()->className();
        }
        EXPECT_GE(box.sizeHint().width(), text.horizontalAdvance(u"On Desktop"_s) + 30) << "its text is cut";
        QCheckBox toggle;
        toggle.resize(toggle.sizeHint());
        EXPECT_GE(toggle.height(), 28);
        clickAt(toggle, QPoint(toggle.width() / 2, 1));
        EXPECT_TRUE(toggle.isChecked()) << "only its middle can be hit";
    }
    AppLook::shared().apply({});
}

TEST(Button, AmpersandsAreTextAndEnterPresses)
{
    Button button(u"Edit & Move Widgets"_s);
    EXPECT_TRUE(button.shortcut().isEmpty());
    EXPECT_EQ(QAccessible::queryAccessibleInterface(&button)->text(QAccessible::Name), u"Edit & Move Widgets"_s);
    int pressed = 0;
    QObject::connect(&button, &Button::clicked, &button, [&] { ++pressed; });
    QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
    QCoreApplication::sendEvent(&button, &enter);
    EXPECT_EQ(pressed, 1);
}

TEST(FocusRing, ComesWithKeysAndGoesWithAClick)
{
    AppLook::shared().apply({.reducesMotion = true});
    QWidget window;
    auto* row = new QHBoxLayout(&window);
    auto* first = new Button(u"One"_s);
    auto* second = new Button(u"Two"_s);
    row->addWidget(first);
    row->addWidget(second);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(waitUntil([&] { return window.isActiveWindow(); }));
    const auto frame = [&]() -> QWidget* {
        auto* found = window.findChild<QFocusFrame*>();
        return found && found->isVisible() ? found : nullptr;
    };
    clickAt(*first, {3, 3});
    first->setFocus(Qt::MouseFocusReason);
    EXPECT_FALSE(frame());
    second->setFocus(Qt::TabFocusReason);
    ASSERT_TRUE(frame());
    EXPECT_EQ(frame()->geometry(), second->geometry().adjusted(-3, -3, 3, 3));
    const QColor ring = window.grab().toImage().pixelColor(second->geometry().center().x(), second->y() - 2);
    EXPECT_EQ(ring, AppLook::shared().colours().accent);
    clickAt(*second, {3, 3});
    EXPECT_FALSE(frame());
    QKeyEvent arrow(QEvent::KeyPress, Qt::Key_Right, Qt::NoModifier);
    QCoreApplication::sendEvent(second, &arrow);
    EXPECT_TRUE(FocusRing::shared().isShown());
    AppLook::shared().apply({});
}

TEST(TextLabel, StandsWhereOneBeginsToReadWhateverItsLetters)
{
    QWidget window;
    window.setLayoutDirection(Qt::RightToLeft);
    auto* path = new TextLabel(TextRole::body, u"~/Pictures"_s, &window);
    auto* count = new TextLabel(TextRole::body, u"12"_s, &window);
    count->setAlignment(Qt::AlignTrailing);
    EXPECT_EQ(path->alignment(), Qt::AlignRight | Qt::AlignVCenter | Qt::AlignAbsolute);
    EXPECT_EQ(count->alignment(), Qt::AlignLeft | Qt::AlignAbsolute);
    window.setLayoutDirection(Qt::LeftToRight);
    EXPECT_EQ(path->alignment(), Qt::AlignLeft | Qt::AlignVCenter | Qt::AlignAbsolute);
}

TEST(Transitions, PartsOfAWidgetMoveByThemselves)
{
    QWidget strip;
    strip.show();
    EXPECT_EQ(transition(&strip, MovingPart::hover, 0, 0), 0);
    EXPECT_EQ(transition(&strip, MovingPart::hover, 1, 1), 1) << "it begins where it is";
    EXPECT_LT(transition(&strip, MovingPart::hover, 1, 0), 1) << "no fade";
    EXPECT_GT(transition(&strip, MovingPart::hover, 0, 1), 0) << "no fade";
    EXPECT_TRUE(waitUntil([&] {
        return transition(&strip, MovingPart::hover, 1, 0) == 1 && transition(&strip, MovingPart::hover, 0, 1) == 0;
    }));
}

TEST(Progress, StandsStillWhereMotionIsNotWished)
{
    for (const bool still : {false, true}) {
        AppLook::shared().apply({.reducesMotion = still});
        Progress ring(Progress::Shape::ring, u"Painting Neon"_s);
        ring.show();
        EXPECT_EQ(ring.isTurning(), !still);
        ring.hide();
        EXPECT_FALSE(ring.isTurning()) << "turns where nobody sees it";
        QAccessibleInterface* told = QAccessible::queryAccessibleInterface(&ring);
        EXPECT_EQ(told->role(), QAccessible::ProgressBar);
        EXPECT_EQ(told->text(QAccessible::Name), u"Painting Neon"_s);
    }
    AppLook::shared().apply({});
}

TEST(ActionMenu, IsFilledOnceForEachOpening)
{
    int fillings = 0;
    const auto items = [&fillings] { return QList<ActionItem>{{.title = u"Line %1"_s.arg(++fillings)}}; };
    ActionMenu menu(items);
    const QPoint place(300, 200);
    for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
        const bool mirrored = direction == Qt::RightToLeft;
        menu.setLayoutDirection(direction);
        menu.openAt(place);
        const QRect start = menu.geometry();
        EXPECT_EQ(mirrored ? start.topRight() + QPoint(1, 0) : start.topLeft(), place);
        menu.close();
        menu.openAt(place, ActionMenu::Corner::bottomEnd);
        const QRect end = menu.geometry();
        EXPECT_EQ(mirrored ? end.bottomLeft() + QPoint(0, 1) : end.bottomRight() + QPoint(1, 1), place);
        menu.close();
    }
    EXPECT_EQ(fillings, 4);
    fillings = 1;
    menu.popup({});
    EXPECT_EQ(menu.actions().first()->text(), u"Line 2"_s) << "it tells how things stood";
    menu.close();

    QWidget page;
    ActionMenu::openFor(page, {}, items);
    EXPECT_EQ(fillings, 3);
    QPointer<ActionMenu> own = page.findChild<ActionMenu*>();
    ASSERT_TRUE(own && own->isVisible());
    own->close();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    EXPECT_FALSE(own);
}

} // namespace
} // namespace ambrelle
