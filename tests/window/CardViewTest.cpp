// SPDX-License-Identifier: MIT

#include "window/cards/CardView.h"
#include "support/WaitUntil.h"
#include "window/cards/CardDelegate.h"
#include "window/cards/CardPainter.h"
#include "window/look/AppLook.h"

#include <QAbstractListModel>
#include <QAccessible>
#include <QContextMenuEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QScrollBar>
#include <QSet>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

struct CardRows final : QAbstractListModel {
    QList<Card> cards;

    int rowCount(const QModelIndex& parent = {}) const override
    {
        return parent.isValid() ? 0 : static_cast<int>(cards.size());
    }
    QVariant data(const QModelIndex& index, int role) const override { return cardData(cards[index.row()], role); }
    Qt::ItemFlags flags(const QModelIndex& index) const override { return cardFlags(cards[index.row()]); }
    bool setData(const QModelIndex& index, const QVariant& value, int role) override
    {
        cards[index.row()].title = value.toString();
        Q_EMIT dataChanged(index, index, {role});
        return true;
    }
};

struct AskedPictures final : CardPictures {
    QSet<QString> asked;
    QSet<QString> there;
    QSize size;

    QPixmap picture(const QModelIndex& index, QSize devicePixels) override
    {
        const QString key = cardAt(index).picture;
        asked.insert(key);
        size = devicePixels;
        if (!there.contains(key))
            return {};
        return stripes(devicePixels);
    }
    /// Single columns of pixels, which any scaling or shift would blur.
    static QPixmap stripes(QSize devicePixels)
    {
        QImage image(devicePixels, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                image.setPixel(x, y, x % 2 ? 0xffff0000 : 0xff0000ff);
        }
        return QPixmap::fromImage(image);
    }
};

struct CardViewTest : ::testing::Test {
    CardRows rows;
    AskedPictures pictures;
    QWidget page;
    CardView* view = new CardView;
    QStringList heard; ///< signals with the titles of their cards

    CardViewTest()
    {
        AppLook::shared().apply({.reducesMotion = true});
        for (const int size : {1, 5, 17}) {
            Card heading;
            heading.isHeading = true;
            heading.title = u"Section"_s;
            heading.caption = u"%1 themes"_s.arg(size);
            rows.cards.append(heading);
            for (int number = 0; number < size; ++number) {
                Card card;
                card.title = u"Card %1"_s.arg(rows.cards.size());
                card.picture = card.title;
                card.description = u"A light, editorial front page. Light."_s;
                card.primary = u"Apply"_s;
                card.renames = true;
                rows.cards.append(card);
            }
        }
        auto* column = new QVBoxLayout(&page);
        column->setContentsMargins({});
        column->addWidget(view);
        view->setModel(&rows);
        view->setPictures(&pictures);
        hear("activated", &CardView::activated);
        hear("primary", &CardView::primaryPressed);
        hear("remove", &CardView::removeRequested);
        hear("menu", &CardView::menuRequested);
        hear("drag", &CardView::dragBegan);
        page.resize(1120, 500);
        page.show();
        page.activateWindow();
        view->setFocus(Qt::TabFocusReason);
        settle();
    }
    ~CardViewTest() override { AppLook::shared().apply({}); }

    template <typename Signal> void hear(const char* what, Signal signal)
    {
        QObject::connect(view, signal, view, [this, what](const QModelIndex& index) {
            heard.append(QString::fromLatin1(what) + u' ' + cardAt(index).title);
        });
    }
    void settle() const
    {
        for (int round = 0; round < 5; ++round)
            QCoreApplication::processEvents();
        view->grab();
    }
    QModelIndex row(int number) const { return rows.index(number); }
    void key(int key, Qt::KeyboardModifiers held = Qt::NoModifier, const QString& text = {}) const
    {
        QKeyEvent event(QEvent::KeyPress, key, held, text);
        QCoreApplication::sendEvent(view, &event);
    }
    void mouse(QEvent::Type type, const QPointF& at, Qt::MouseButton button = Qt::LeftButton) const
    {
        const bool moves = type == QEvent::MouseMove;
        QMouseEvent event(type, at, view->viewport()->mapToGlobal(at), moves ? Qt::NoButton : button,
            type == QEvent::MouseButtonRelease ? Qt::NoButton : button, Qt::NoModifier);
        QCoreApplication::sendEvent(view->viewport(), &event);
    }
    void click(const QPointF& at) const
    {
        mouse(QEvent::MouseButtonPress, at);
        mouse(QEvent::MouseButtonRelease, at);
    }
    QPointF middle(int number, CardPart part) const { return view->partRect(row(number), part).center(); }
    QLineEdit* editor() const { return view->viewport()->findChild<QLineEdit*>(); }
    static QSet<QString> titles(int from, int to)
    {
        QSet<QString> all;
        for (int number = from; number <= to; ++number)
            all.insert(u"Card %1"_s.arg(number));
        return all;
    }
};

TEST_F(CardViewTest, LinesAreBrokenAsTheArithmeticSays)
{
    for (const int width : {720, 800, 1120, 2000}) {
        for (const Qt::LayoutDirection direction : {Qt::LeftToRight, Qt::RightToLeft}) {
            page.setLayoutDirection(direction);
            page.resize(width, 500);
            settle();
            const CardLayout& layout = view->layoutOfCards();
            const QRect first = view->visualRect(row(9)); // of seventeen
            const QRect last = view->visualRect(row(8 + layout.columns));
            const QRect below = view->visualRect(row(9 + layout.columns));
            EXPECT_EQ(first.top(), last.top()) << width;
            EXPECT_EQ(first.left(), below.left()) << width;
            EXPECT_EQ(below.top() - first.top(), layout.cell.height()) << width;
            const QRectF picture = view->partRect(row(9), CardPart::picture);
            const double left = view->viewport()->mapTo(view, picture.topLeft()).x();
            const double beside = direction == Qt::LeftToRight ? left : view->width() - left - picture.width();
            EXPECT_EQ(beside, layout.margin) << width;
        }
    }
}

TEST_F(CardViewTest, AsksForWhatIsSeenAndTheLineBelow)
{
    // 500 high: the lines of cards 1, 3 to 6; below is card 7.
    EXPECT_EQ(pictures.asked, titles(1, 1) + titles(3, 7));
    EXPECT_EQ(pictures.size, view->layoutOfCards().pictureDevicePixels);
    pictures.asked.clear();
    view->verticalScrollBar()->setValue(view->verticalScrollBar()->maximum());
    settle();
    EXPECT_TRUE(pictures.asked.contains(u"Card 25"_s));
    EXPECT_FALSE(pictures.asked.contains(u"Card 7"_s));
}

TEST_F(CardViewTest, APictureIsPaintedPixelByPixel)
{
    for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0}) {
        const CardLayout layout = CardLayout::of({}, {.width = 1120, .scrollBar = 11, .pixelRatio = ratio});
        const QRectF cell(QPointF(7, 3), QSizeF(layout.cell)); // not on whole pixels
        QImage shot((QSizeF(300, 300) * ratio).toSize(), QImage::Format_RGB32);
        shot.setDevicePixelRatio(ratio);
        CardSight sight;
        sight.picture = AskedPictures::stripes(layout.pictureDevicePixels);
        QPainter painter(&shot);
        CardPainter(painter, layout, CardFonts::current(), false)
            .card(Card{.picture = u"key"_s}, layout.parts(cell, {}, false), sight);
        painter.end();
        const QPointF corner = layout.pictureIn(cell).topLeft() * ratio;
        const QPoint inside(qRound(corner.x()) + 20, qRound(corner.y()) + 60);
        for (int x = 0; x < 100; ++x)
            ASSERT_EQ(shot.pixel(inside + QPoint(x, 0)), x % 2 ? 0xffff0000 : 0xff0000ff) << x << " at " << ratio;
    }
}

TEST_F(CardViewTest, TheKeyboardGoesEverywhere)
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

TEST_F(CardViewTest, KeysDoWhatClicksDo)
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

TEST_F(CardViewTest, AClickCountsWhereItWasPressed)
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

TEST_F(CardViewTest, ACardIsPulledOutInsteadOfClicked)
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

TEST_F(CardViewTest, ANameIsEditedInPlace)
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

TEST_F(CardViewTest, AWheelScrollsByNotchesAndATouchpadByItsPixels)
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

TEST_F(CardViewTest, AHeaderScrollsWithTheCards)
{
    const int before = view->visualRect(row(1)).top();
    auto* banner = new QLabel(u"Welcome"_s);
    banner->setFixedHeight(90);
    view->setHeader(banner);
    settle();
    EXPECT_EQ(view->visualRect(row(1)).top(), before + 104);
    EXPECT_EQ(banner->mapTo(&page, QPoint()).y(), view->y());
    EXPECT_EQ(banner->mapTo(&page, QPoint()).x(), view->layoutOfCards().margin);
    view->verticalScrollBar()->setValue(40);
    EXPECT_EQ(banner->mapTo(&page, QPoint()).y(), view->y() - 40);
    EXPECT_TRUE(banner->visibleRegion().boundingRect().top() >= 40) << "nothing over the tool bar";
    view->verticalScrollBar()->setValue(300);
    EXPECT_FALSE(banner->isVisible());
    view->verticalScrollBar()->setValue(0);
    EXPECT_TRUE(banner->isVisible());
    banner->hide();
    settle();
    EXPECT_EQ(view->visualRect(row(1)).top(), before);
    banner->show();
    settle();
    delete banner;
    settle();
    EXPECT_EQ(view->visualRect(row(1)).top(), before);
}

TEST_F(CardViewTest, RestsWhileNothingChanges)
{
    struct Repaints final : QObject {
        int count = 0;
        bool eventFilter(QObject*, QEvent* event) override
        {
            count += event->type() == QEvent::Paint || event->type() == QEvent::Timer;
            return false;
        }
    } repaints;
    view->viewport()->installEventFilter(&repaints);
    view->installEventFilter(&repaints);
    AppLook::shared().apply({});
    mouse(QEvent::MouseMove, middle(3, CardPart::picture), Qt::NoButton); // badges come
    pictures.there = titles(1, 25);
    Q_EMIT pictures.arrived(u"Card 3"_s);
    EXPECT_FALSE(waitUntil([] { return false; }, 700));
    EXPECT_GT(repaints.count, 2);
    repaints.count = 0;
    EXPECT_FALSE(waitUntil([] { return false; }, 500));
    EXPECT_EQ(repaints.count, 0);

    rows.cards[3].state = Card::State::working; // its ring turns, until it is done
    Q_EMIT rows.dataChanged(row(3), row(3));
    EXPECT_TRUE(waitUntil([&] { return repaints.count > 6; }));
    rows.cards[3].state = Card::State::idle;
    Q_EMIT rows.dataChanged(row(3), row(3));
    waitUntil([] { return false; }, 200);
    repaints.count = 0;
    EXPECT_FALSE(waitUntil([] { return false; }, 500));
    EXPECT_EQ(repaints.count, 0);
}

TEST_F(CardViewTest, AssistiveTechnologyFindsAListOfNames)
{
    view->setAccessibleName(u"Themes"_s);
    QAccessibleInterface* list = QAccessible::queryAccessibleInterface(view);
    ASSERT_TRUE(list);
    EXPECT_EQ(list->role(), QAccessible::List);
    ASSERT_EQ(list->childCount(), rows.rowCount());
    EXPECT_EQ(list->child(2)->text(QAccessible::Name), u"Section, 5 themes"_s);
    EXPECT_FALSE(list->child(2)->state().selectable);
    EXPECT_EQ(list->child(3)->text(QAccessible::Name), u"Card 3"_s);
    EXPECT_EQ(list->child(3)->text(QAccessible::Description), u"A light, editorial front page. Light."_s);
    EXPECT_TRUE(list->child(3)->state().selectable);
}

} // namespace
} // namespace ambrelle
