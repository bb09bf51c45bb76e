// SPDX-License-Identifier: MIT

#include "platform/LoginItem.h"
#include "window/frame/SheetCard.h"
#include "window/frame/SheetHost.h"
#include "window/frame/Sheets.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"

#include <QAccessible>
#include <QApplication>
#include <QComboBox>
#include <QLayout>
#include <QLineEdit>
#include <QMouseEvent>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

struct SheetTest : testing::Test {
    SheetQueue queue;
    QList<SheetAnswer> answers;
    QWidget window;
    QLineEdit below{&window};
    SheetHost host{queue, window};

    SheetTest()
    {
        AppLook::shared().apply({.reducesMotion = true});
        window.resize(800, 600);
        window.show();
        window.activateWindow();
        below.setFocus();
    }
    ~SheetTest() override { AppLook::shared().apply({}); }

    void ask(const SheetContent& content)
    {
        queue.ask(content, [this](const SheetAnswer& answer) { answers.append(answer); });
    }
    /// To what has the focus, first as the shortcuts of the window are asked for.
    void press(int key, Qt::KeyboardModifiers modifiers = {}) const
    {
        for (const QEvent::Type type : {QEvent::ShortcutOverride, QEvent::KeyPress, QEvent::KeyRelease}) {
            QKeyEvent event(type, key, modifiers);
            if (QWidget* receiver = window.focusWidget())
                QCoreApplication::sendEvent(receiver, &event);
        }
    }
    void clickScrim()
    {
        QMouseEvent event(QEvent::MouseButtonPress, QPointF(5, 5), host.mapToGlobal(QPointF(5, 5)), Qt::LeftButton,
            Qt::LeftButton, {});
        QCoreApplication::sendEvent(&host, &event);
    }
    QString focused() const
    {
        const auto* button = qobject_cast<Button*>(window.focusWidget());
        return button ? button->title() : window.focusWidget() ? window.focusWidget()->accessibleName() : QString();
    }
};

TEST_F(SheetTest, EnterAcceptsButLeavesWhereSomethingIsTakenAway)
{
    struct Case {
        SheetContent content;
        int key;
        QString button;
    };
    for (const Case& row : {Case{sheets::applyTheme(u"Neon"_s, false), Qt::Key_Return, sheets::accept},
             Case{sheets::applyTheme(u"Neon"_s, false), Qt::Key_Escape, {}},
             Case{sheets::save(u"Desk"_s, {}), Qt::Key_Enter, sheets::accept},
             Case{sheets::removeTheme(u"Old"_s), Qt::Key_Return, {}},
             Case{sheets::removeAll(3, u"U2720Q"_s), Qt::Key_Return, {}}, Case{sheets::reset(), Qt::Key_Return, {}},
             Case{sheets::importFailed(u"a.ambrelle"_s), Qt::Key_Return, sheets::accept},
             Case{sheets::importFailed(u"a.ambrelle"_s), Qt::Key_Escape, {}}}) {
        SCOPED_TRACE(row.content.title.toStdString());
        answers.clear();
        ask(row.content);
        ASSERT_TRUE(host.card());
        press(row.key);
        ASSERT_EQ(answers.size(), 1);
        EXPECT_EQ(answers.first().button, row.button);
        EXPECT_FALSE(host.card() || host.isVisible());
        EXPECT_EQ(window.focusWidget(), &below) << "the focus is not given back";
    }
}

TEST_F(SheetTest, TheFocusStaysInsideAndShortcutsOfTheWindowRest)
{
    ask(sheets::save(u"Glass Desktop"_s, {u"A (main)"_s, u"B"_s}));
    EXPECT_EQ(host.card()->findChild<QLineEdit*>()->selectedText(), u"Glass Desktop"_s);
    QStringList visited;
    for (int step = 0; step < 5; ++step) {
        visited.append(focused());
        press(Qt::Key_Tab);
    }
    EXPECT_EQ(visited, (QStringList{u"Name"_s, u"Screen"_s, u"Cancel"_s, u"Save"_s, u"Name"_s}));
    press(Qt::Key_Backtab, Qt::ShiftModifier);
    EXPECT_EQ(focused(), u"Name"_s);
    QKeyEvent override(QEvent::ShortcutOverride, Qt::Key_2, Qt::ControlModifier);
    override.ignore();
    QCoreApplication::sendEvent(window.focusWidget(), &override);
    EXPECT_TRUE(override.isAccepted()) << "the tab below would change";
    QKeyEvent hiding(QEvent::ShortcutOverride, Qt::Key_W, Qt::ControlModifier);
    hiding.ignore();
    QCoreApplication::sendEvent(window.focusWidget(), &hiding);
    EXPECT_FALSE(hiding.isAccepted());
}

TEST_F(SheetTest, ANameNeedsMoreThanSpacesAndIsNotLostByAClick)
{
    ask(sheets::save(u"Desk"_s, {u"A (main)"_s, u"B"_s}));
    auto* field = host.card()->findChild<QLineEdit*>();
    field->setText(u"   "_s);
    press(Qt::Key_Return);
    EXPECT_TRUE(answers.isEmpty()) << "saved without a name";
    clickScrim();
    EXPECT_TRUE(answers.isEmpty()) << "what was typed is lost";
    field->setText(u"  Evening Desk "_s);
    host.card()->findChild<QComboBox*>()->setCurrentIndex(1);
    press(Qt::Key_Return);
    EXPECT_EQ(answers, (QList{SheetAnswer{sheets::accept, u"Evening Desk"_s, 1}}));
    ask(sheets::save(QString(100, u'x'), {u"A"_s}));
    EXPECT_EQ(host.card()->findChildren<QComboBox*>().size(), 0) << "a choice of one";
    EXPECT_EQ(host.card()->findChild<QLineEdit*>()->text().size(), 60);
    host.card()->findChild<QLineEdit*>()->setText(u"Desk"_s);
    queue.leave();
    ask(sheets::reset());
    clickScrim();
    EXPECT_EQ(answers.size(), 3) << "the click beside it cancels";
}

TEST_F(SheetTest, OthersWaitAndHidingLeavesAllButUnseenFailures)
{
    ask(sheets::reset());
    ask(sheets::importFailed(u"a"_s));
    ask(sheets::removeTheme(u"b"_s));
    EXPECT_EQ(host.card()->accessibleName(), u"Reset all settings?"_s);
    window.hide();
    EXPECT_EQ(answers, (QList<SheetAnswer>{{}, {}}));
    ASSERT_TRUE(queue.current());
    window.show();
    EXPECT_EQ(host.card()->accessibleName(), u"Couldn't open “a”"_s);
    // An answer may ask again.
    answers.clear();
    queue.leave();
    queue.ask(sheets::reset(), [this](const SheetAnswer&) { ask(sheets::removeAll(2, {})); });
    press(Qt::Key_Escape);
    EXPECT_EQ(host.card()->accessibleName(), u"Remove all 2 widgets?"_s);
}

TEST_F(SheetTest, FitsLowAndNarrowWindowsWithLargeText)
{
    for (const double scale : {1.0, 1.5}) {
        AppLook::shared().apply({.reducesMotion = true, .textScale = scale});
        for (const QSize size : {QSize(1120, 760), QSize(720, 480), QSize(400, 240)}) {
            for (const SheetContent& content :
                {sheets::applyTheme(u"Neon"_s, true), sheets::save(u"Desk"_s, {u"A"_s, u"B"_s})}) {
                window.resize(size);
                ask(content);
                const QRect card = host.card()->geometry().marginsRemoved(QMargins(18, 18, 18, 18));
                EXPECT_LE(card.width(), size.width() - 40);
                EXPECT_LE(card.height(), size.height() - 40);
                host.card()->layout()->activate();
                QRect before;
                for (const Button* button : host.card()->findChildren<Button*>()) {
                    const QRect place(button->mapTo(&host, QPoint()), button->size());
                    EXPECT_TRUE(card.contains(place)) << qPrintable(button->title()) << scale << ' ' << size.width();
                    EXPECT_GE(place.width(), button->sizeHint().width()) << qPrintable(button->title());
                    EXPECT_FALSE(place.intersects(before));
                    before = place;
                }
                queue.leave();
            }
        }
    }
}

TEST_F(SheetTest, TellsAssistiveTechnologyWhatItAsks)
{
    ask(sheets::loginRefused(LoginItem::refusal() + u": the folder cannot be written to"_s));
    QAccessibleInterface* dialog = QAccessible::queryAccessibleInterface(host.card());
    ASSERT_TRUE(dialog);
    EXPECT_EQ(dialog->role(), QAccessible::Dialog);
    EXPECT_EQ(dialog->text(QAccessible::Name), LoginItem::refusal());
    EXPECT_EQ(dialog->text(QAccessible::Description), u"the folder cannot be written to"_s);
    EXPECT_EQ(focused(), u"OK"_s);
}

} // namespace
} // namespace ambrelle
