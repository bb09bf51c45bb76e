// SPDX-License-Identifier: MIT

#include "window/cards/CardLayout.h"
#include "window/cards/CardCursor.h"
#include "window/cards/CardMotion.h"

#include <QStringListModel>

#include <gtest/gtest.h>

#include <cmath>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

CardSurroundings room(int width, double pixelRatio = 1, double textScale = 1)
{
    return {.width = width, .scrollBar = 11, .pixelRatio = pixelRatio, .textScale = textScale};
}

TEST(CardLayoutTest, HasAsManyColumnsAsFit)
{
    struct Case {
        int width;
        double textScale;
        int columns;
        double card;
    };
    for (const Case& c : {Case{720, 1, 2, 330}, {800, 1, 3, 240}, {1120, 1, 4, 253}, {1648, 1, 6, 250},
             {3000, 1, 6, 250}, {800, 1.5, 2, 370}, {818, 1.5, 2, 379}, {200, 1, 1, 160}}) {
        const CardLayout layout = CardLayout::of({}, room(c.width, 1, c.textScale));
        EXPECT_EQ(layout.columns, c.columns) << c.width << " at " << c.textScale;
        EXPECT_EQ(layout.picture.width(), c.card) << c.width << " at " << c.textScale;
    }
    EXPECT_EQ(CardLayout::of({.leastWidth = 220}, room(752)).columns, 3) << "a gallery wants less";
    EXPECT_EQ(CardLayout::of({}, room(3000)).margin, 700) << "more than 1600 is left free at both sides";
}

TEST(CardLayoutTest, CellsFitTheViewAndPicturesThePixels)
{
    for (int width = 720; width <= 3000; ++width) {
        for (const double scale : {1.0, 1.1, 1.25, 1.5}) {
            for (const double ratio : {1.0, 1.25, 1.5, 2.0}) {
                const CardLayout layout = CardLayout::of({}, room(width, ratio, scale));
                const std::string at =
                    std::to_string(width) + " " + std::to_string(scale) + " " + std::to_string(ratio);
                const int viewport = width - 11 - layout.inset - layout.farInset;
                const int cells = layout.columns * layout.cell.width();
                ASSERT_LT(cells, viewport) << at; // or the list breaks the line before the last one
                ASSERT_LE(viewport - cells, 2 * layout.columns + 1) << at;
                ASSERT_LE(layout.picture.width() + CardLayout::gap, layout.cell.width()) << at;
                ASSERT_NEAR(layout.picture.width() * ratio, layout.pictureDevicePixels.width(), 1e-9) << at;
                ASSERT_NEAR(layout.picture.height(), layout.picture.width() * 0.625, 1 / ratio) << at;
                if (layout.columns > 1) {
                    ASSERT_GE(layout.picture.width(), 236 * scale - 2) << at;
                }
                // The last card ends as far from the edge as the first one begins, or a little earlier.
                const double end = layout.inset + CardLayout::cellLead + (layout.columns - 1.0) * layout.cell.width()
                    + layout.picture.width();
                ASSERT_NEAR(end, width - layout.margin, 2 * layout.columns + 1) << at;
            }
        }
    }
}

TEST(CardLayoutTest, EveryPartIsFoundWhereItLies)
{
    const CardLayout layout = CardLayout::of({}, room(1120));
    const QRectF cell(100, 300, layout.cell.width(), layout.cell.height());
    const CardExtents extents{.title = 60, .symbol = true, .dots = 9, .pill = 70, .menu = true, .primary = 40};
    for (const bool mirrored : {false, true}) {
        const CardParts parts = layout.parts(cell, extents, mirrored);
        EXPECT_EQ(parts.partAt(parts.picture.center()), CardPart::picture);
        EXPECT_EQ(parts.partAt(parts.pill.center()), CardPart::picture);
        EXPECT_EQ(parts.partAt(parts.menu.center()), CardPart::menu);
        EXPECT_EQ(parts.partAt(parts.primary.center()), CardPart::primary);
        EXPECT_EQ(parts.partAt(parts.title.center()), CardPart::title);
        EXPECT_EQ(parts.partAt(parts.caption.center()), CardPart::title);
        EXPECT_EQ(parts.partAt(parts.symbol.center()), CardPart::symbol);
        EXPECT_EQ(parts.partAt(parts.dots.center()), CardPart::dots);
        EXPECT_EQ(parts.partAt(cell.topLeft() + QPointF(1, 1)), CardPart::none);
        EXPECT_EQ(parts.partAt(cell.bottomRight() - QPointF(20, 5)), CardPart::none);
        for (const QRectF& part : {parts.title, parts.symbol, parts.dots, parts.caption, parts.pill, parts.menu})
            EXPECT_TRUE(cell.contains(part));
        EXPECT_TRUE(parts.picture.contains(parts.primary));
        EXPECT_EQ(parts.title.left() < parts.dots.left(), !mirrored);
        EXPECT_EQ(parts.menu.left() < parts.primary.left(), !mirrored);
        EXPECT_EQ(parts.dots.width(), 5 * 8 + 4 * 4) << "no more than five";
        EXPECT_GE(parts.menu.width(), 28) << "large enough to hit";
    }
    const CardParts bare = layout.parts(cell, {.title = 1000}, false);
    EXPECT_LE(bare.title.right(), bare.picture.right());
    EXPECT_TRUE(bare.menu.isEmpty() && bare.primary.isEmpty() && bare.pill.isEmpty() && bare.dots.isEmpty());
    const CardParts narrow = layout.parts(cell, {.title = 1000, .symbol = true, .dots = 5, .primary = -1}, false);
    EXPECT_LT(narrow.symbol.right(), narrow.dots.left());
    EXPECT_EQ(narrow.primary.width(), narrow.primary.height()) << "a circle";
}

/// Headings with these numbers of cards below them.
QList<bool> sections(const QList<int>& sizes)
{
    QList<bool> rows;
    for (const int size : sizes) {
        rows.append(true);
        rows.append(QList<bool>(size, false));
    }
    return rows;
}

TEST(CardCursorTest, GoesFromCardToCard)
{
    using enum CardMove;
    // Row 0 a heading; 1 heading and card 2; 3 and cards 4 to 8; 9 and cards 10 to 26. In lines of four:
    // 2 | 4 5 6 7 | 8 | 10 11 12 13 | 14 … 17 | 18 … 21 | 22 … 25 | 26
    const QList<bool> rows = sections({0, 1, 5, 17});
    struct Case {
        int from;
        CardMove move;
        int to;
    };
    for (const Case& c :
        {Case{-1, next, 2}, {-1, up, 2}, {-1, last, 26}, {0, down, 2}, {12, first, 2}, {12, last, 26}, {2, previous, 2},
            {2, next, 4}, {4, previous, 2}, {8, next, 10}, {10, previous, 8}, {26, next, 26}, {2, up, 2}, {2, down, 4},
            {6, up, 2}, {6, down, 8}, {8, down, 10}, {12, up, 8}, {13, down, 17}, {24, down, 26}, {26, down, 26},
            {26, up, 22}, {13, pageDown, 21}, {25, pageDown, 26}, {17, pageUp, 8}, {5, pageUp, 2}, {99, next, 2}})
        EXPECT_EQ(movedCard(rows, 4, c.from, c.move, 2), c.to) << c.from << " by " << static_cast<int>(c.move);
    EXPECT_EQ(movedCard(rows, 1, 4, down, 0), 5);
    EXPECT_EQ(movedCard(rows, 1, 4, pageDown, 0), 5) << "a window lower than a card goes on all the same";
    for (const CardMove move : {previous, next, up, down, first, last, pageUp, pageDown}) {
        EXPECT_EQ(movedCard({}, 4, -1, move, 2), -1);
        EXPECT_EQ(movedCard(sections({0, 0}), 4, 0, move, 2), -1);
        EXPECT_EQ(movedCard(sections({1}), 4, 1, move, 2), 1);
    }
    EXPECT_EQ(movedCard(QList<bool>(9, false), 4, 8, up, 2), 4) << "without a heading";
}

TEST(CardMotionTest, HoverFollowsThePointerAndEnds)
{
    QStringListModel rows({u"a"_s, u"b"_s});
    const QModelIndex a = rows.index(0);
    const QModelIndex b = rows.index(1);
    CardMotion motion(120, 250);
    motion.hover(a, 1000);
    motion.advance(1060);
    const double half = motion.hovering(a);
    EXPECT_GT(half, 0);
    EXPECT_LT(half, 1);
    motion.hover(b, 1060); // goes back from where it was
    EXPECT_EQ(motion.hovering(a), half);
    const QList<QModelIndex> both{a, b};
    EXPECT_EQ(motion.advance(1180), both);
    EXPECT_EQ(motion.hovering(a), 0);
    EXPECT_EQ(motion.hovering(b), 1);
    EXPECT_FALSE(motion.isMoving());
    rows.removeRows(1, 1);
    motion.hover(a, 2000);
    motion.advance(2120);
    EXPECT_FALSE(motion.isMoving());

    CardMotion still(0, 0);
    still.hover(a, 0);
    still.advance(0);
    EXPECT_EQ(still.hovering(a), 1);
    EXPECT_FALSE(still.isMoving());
}

TEST(CardMotionTest, OnlyAPictureThatWasMissingFadesIn)
{
    QStringListModel rows({u"a"_s, u"b"_s});
    const QModelIndex a = rows.index(0);
    const QModelIndex b = rows.index(1);
    CardMotion motion(120, 250);
    motion.arrive(a, 0);
    EXPECT_EQ(motion.arrived(a), 1);
    EXPECT_FALSE(motion.isMoving());
    motion.await(b);
    motion.await(b);
    motion.arrive(b, 100);
    motion.arrive(b, 200); // painted again meanwhile
    EXPECT_EQ(motion.arrived(b), 0);
    motion.advance(225);
    EXPECT_GT(motion.arrived(b), 0.5);
    motion.advance(350);
    EXPECT_EQ(motion.arrived(b), 1);
    EXPECT_FALSE(motion.isMoving());
}

} // namespace
} // namespace ambrelle
