// SPDX-License-Identifier: MIT

#include "support/WaitUntil.h"
#include "window/CardPage.h"
#include "window/cards/CardPainter.h"
#include "window/cards/CardShadow.h"

#include <QAccessible>
#include <QLabel>
#include <QPainter>
#include <QPaintEvent>
#include <QScrollBar>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

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

    const qsizetype seen = pictures.wanted;
    view->hide();
    EXPECT_EQ(pictures.wanted, 0) << "of a page that is not shown";
    view->show();
    settle();
    EXPECT_EQ(pictures.wanted, seen);
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

TEST_F(CardViewTest, TheKeptLineIsThatOfAPen)
{
    for (const double ratio : {1.0, 1.5, 2.0}) {
        const QRectF area(QPointF(12, 6), QSizeF(252, 158));
        const QPen pen(QColor(0, 0, 0, 60), 1 / ratio);
        QImage kept((QSizeF(280, 180) * ratio).toSize(), QImage::Format_RGB32);
        kept.fill(0xffd0a040);
        kept.setDevicePixelRatio(ratio);
        QImage drawn = kept;
        {
            QPainter painter(&kept);
            drawCardLine(painter, area, CardLayout::corner, pen, ratio);
            QPainter other(&drawn);
            other.setRenderHint(QPainter::Antialiasing);
            other.setPen(pen);
            const double half = pen.widthF() / 2;
            const double corner = CardLayout::corner - half;
            other.drawRoundedRect(area.adjusted(half, half, -half, -half), corner, corner);
        }
        int most = 0;
        int marked = 0;
        int differing = 0;
        for (int y = 0; y < kept.height(); ++y) {
            for (int x = 0; x < kept.width(); ++x) {
                const int difference = std::abs(qGreen(kept.pixel(x, y)) - qGreen(drawn.pixel(x, y)));
                most = std::max(most, difference);
                differing += difference > 3;
                marked += kept.pixel(x, y) != 0xffd0a040;
            }
        }
        // A pen draws twice where a corner begins.
        EXPECT_LE(most, 10) << ratio;
        EXPECT_LE(differing, 40) << ratio;
        EXPECT_GT(marked, 700 * ratio);
    }
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

TEST_F(CardViewTest, APageMayEndInAnyOrder)
{
    for (const bool raised : {false, true}) {
        auto* other = new QWidget(&page);
        auto* grid = new CardView(other);
        grid->setModel(&rows);
        grid->setHeader(new QLabel(u"Welcome"_s));
        other->resize(800, 400);
        other->show();
        settle();
        if (raised)
            grid->raise(); // its header is now deleted before it
        delete other;
    }
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

TEST_F(CardViewTest, OnlyTheChosenCardIsPaintedWhenTheWindowComesToTheFront)
{
    struct Painted final : QObject {
        QRegion region;
        bool eventFilter(QObject*, QEvent* event) override
        {
            if (event->type() == QEvent::Paint)
                region += static_cast<QPaintEvent*>(event)->region();
            return false;
        }
    } painted;
    const auto activate = [&](QEvent::Type type) {
        QCoreApplication::processEvents();
        painted.region = {};
        QEvent event(type);
        QCoreApplication::sendEvent(view->viewport(), &event);
        QCoreApplication::processEvents();
        return painted.region;
    };
    view->viewport()->installEventFilter(&painted);
    view->choose(row(4));
    for (const QEvent::Type type : {QEvent::WindowDeactivate, QEvent::WindowActivate})
        EXPECT_EQ(activate(type), QRegion(view->visualRect(row(4))));
    view->selectionModel()->clear();
    EXPECT_EQ(activate(QEvent::WindowDeactivate), QRegion());
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
