// SPDX-License-Identifier: MIT

#include "support/WaitUntil.h"
#include "window/CardPage.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QScrollBar>
#include <QTextDocument>
#include <QToolTip>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

using CardInputTest = CardViewTest;

TEST_F(CardInputTest, TheKeyboardGoesEverywhere)
{
    const auto at = [this] { return view->currentIndex().row(); };
    EXPECT_EQ(at(), 1) << "Tab finds the first card, not the heading";
    for (const auto& [pressed, expected] : QList<std::pair<int, int>>{{Qt::Key_Down, 3}, {Qt::Key_Right, 4},
             {Qt::Key_End, 25}, {Qt::Key_Home, 1}, {Qt::Key_PageDown, 7}, {Qt::Key_Up, 3}, {Qt::Key_Left, 1}}) {
        key(pressed);
        if (pressed == Qt::Key_PageDown)
            EXPECT_GT(at(), 1);
        else
            EXPECT_EQ(at(), expected) << pressed;
        if (pressed == Qt::Key_PageDown)
            view->choose(row(7));
        EXPECT_TRUE(
            view->viewport()->rect().contains(view->partRect(view->currentIndex(), CardPart::picture).toRect()));
    }
    EXPECT_EQ(view->verticalScrollBar()->value(), 0) << "with the first card its heading is seen";
    view->setLayoutDirection(Qt::RightToLeft);
    key(Qt::Key_Left);
    EXPECT_EQ(at(), 3);
    for (const QChar letter : u"card 25"_s)
        key(0, Qt::NoModifier, letter);
    EXPECT_EQ(at(), 25);
}

TEST_F(CardInputTest, KeysDoWhatClicksDo)
{
    key(Qt::Key_Return);
    key(Qt::Key_Space);
    key(Qt::Key_Enter, Qt::KeypadModifier);
    key(Qt::Key_Return, Qt::ControlModifier);
    key(Qt::Key_F10, Qt::ShiftModifier);
    key(Qt::Key_Delete);
    QContextMenuEvent menu(QContextMenuEvent::Keyboard, {}, {});
    QCoreApplication::sendEvent(view->viewport(), &menu);
    const QStringList all{u"activated Card 1"_s, u"activated Card 1"_s, u"activated Card 1"_s, u"primary Card 1"_s,
        u"menu Card 1"_s, u"remove Card 1"_s, u"menu Card 1"_s};
    EXPECT_EQ(heard, all);
    rows.cards[1].usable = false;
    heard.clear();
    key(Qt::Key_Return);
    key(Qt::Key_Return, Qt::ControlModifier);
    key(Qt::Key_Delete); // what is of no use can still be taken away
    EXPECT_EQ(heard, QStringList{u"remove Card 1"_s});
}

TEST_F(CardInputTest, AClickCountsWhereItWasPressed)
{
    click(middle(4, CardPart::picture));
    EXPECT_EQ(view->currentIndex(), row(4));
    click(middle(3, CardPart::title));
    click(middle(3, CardPart::primary));
    click(middle(3, CardPart::menu));
    click(view->visualRect(row(2)).center()); // a heading
    click(view->partRect(row(3), CardPart::picture).topRight() + QPointF(10, 50)); // between two cards
    mouse(QEvent::MouseButtonPress, middle(4, CardPart::primary));
    mouse(QEvent::MouseButtonRelease, middle(4, CardPart::picture)); // thought better of
    mouse(QEvent::MouseButtonPress, middle(4, CardPart::picture));
    mouse(QEvent::MouseButtonRelease, middle(5, CardPart::picture));
    const QStringList all{u"activated Card 4"_s, u"activated Card 3"_s, u"primary Card 3"_s, u"menu Card 3"_s};
    EXPECT_EQ(heard, all);
    QContextMenuEvent menu(QContextMenuEvent::Mouse, middle(5, CardPart::picture).toPoint(), {7, 8});
    QCoreApplication::sendEvent(view->viewport(), &menu);
    EXPECT_EQ(heard.last(), u"menu Card 5"_s);
    EXPECT_EQ(view->currentIndex(), row(5));
}

TEST_F(CardInputTest, ACardIsPulledOutInsteadOfClicked)
{
    const auto pull = [this] {
        const QPointF start = middle(3, CardPart::picture);
        mouse(QEvent::MouseButtonPress, start);
        mouse(QEvent::MouseMove, start + QPointF(3, 2));
        EXPECT_FALSE(heard.contains(u"drag Card 3"_s));
        mouse(QEvent::MouseMove, start + QPointF(4, 2));
        mouse(QEvent::MouseButtonRelease, start + QPointF(4, 2));
    };
    pull();
    EXPECT_EQ(heard, QStringList{u"activated Card 3"_s}) << "not where cards stay";
    heard.clear();
    view->setPullsCards(true);
    pull();
    EXPECT_EQ(heard, QStringList{u"drag Card 3"_s});
}

TEST_F(CardInputTest, ANameIsEditedInPlace)
{
    struct Case {
        const char16_t* typed;
        int end;
        const char16_t* name;
    };
    for (const Case& c : {Case{u"  Evening Desk ", Qt::Key_Return, u"Evening Desk"},
             {u"   ", Qt::Key_Return, u"Evening Desk"}, {u"Other", Qt::Key_Escape, u"Evening Desk"}}) {
        key(Qt::Key_F2);
        ASSERT_TRUE(editor());
        EXPECT_EQ(editor()->selectedText(), rows.cards[1].title);
        EXPECT_EQ(editor()->height(), 24);
        EXPECT_TRUE(editor()->geometry().contains(view->partRect(row(1), CardPart::title).toRect().center()));
        editor()->setText(QString::fromUtf16(c.typed));
        QKeyEvent end(QEvent::KeyPress, c.end, Qt::NoModifier);
        QCoreApplication::sendEvent(editor(), &end);
        EXPECT_TRUE(waitUntil([this] { return !editor(); }));
        EXPECT_EQ(rows.cards[1].title, QString::fromUtf16(c.name));
    }
    EXPECT_EQ(heard, QStringList()) << "Enter ended the editing and nothing else";
    rows.cards[1].renames = false;
    key(Qt::Key_F2);
    EXPECT_FALSE(editor());
}

TEST_F(CardInputTest, AToolTipSaysWhatIsCutAndIsNoMarkup)
{
    const auto tip = [this](CardPart part) {
        QToolTip::hideText();
        const QPoint at = middle(1, part).toPoint();
        QHelpEvent event(QEvent::ToolTip, at, view->viewport()->mapToGlobal(at));
        QCoreApplication::sendEvent(view->viewport(), &event);
        QTextDocument shown;
        shown.setHtml(QToolTip::text());
        return shown.toPlainText();
    };
    EXPECT_EQ(tip(CardPart::title), QString());
    EXPECT_EQ(tip(CardPart::menu), u"More"_s);
    rows.cards[1].title = u"<b>Work</b> & a name that is a great deal wider than its card"_s;
    EXPECT_EQ(tip(CardPart::title), rows.cards[1].title);
    rows.cards[1].state = Card::State::failed;
    EXPECT_EQ(tip(CardPart::picture), u"No preview"_s);
}

TEST_F(CardInputTest, AWheelScrollsByNotchesAndATouchpadByItsPixels)
{
    const auto turn = [this](int angle, int pixels) {
        QWheelEvent event({100, 100}, view->mapToGlobal(QPointF(100, 100)), {0, pixels}, {0, angle}, Qt::NoButton,
            Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(view->viewport(), &event);
        return view->verticalScrollBar()->value();
    };
    EXPECT_EQ(turn(-120, 0), 96);
    EXPECT_EQ(turn(-120, -7), 103);
    EXPECT_EQ(turn(-5, 0), 107);
    EXPECT_EQ(turn(1200, 0), 0);
    AppLook::shared().apply({});
    turn(-120, 0);
    turn(-120, 0);
    EXPECT_TRUE(waitUntil([this] { return view->verticalScrollBar()->value() == 192; }))
        << "two notches at once add up";
}

} // namespace
} // namespace ambrelle
