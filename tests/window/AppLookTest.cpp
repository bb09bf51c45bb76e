// SPDX-License-Identifier: MIT

#include "window/look/AppLook.h"
#include "drawing/Colours.h"
#include "window/look/SymbolIcon.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

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
        EXPECT_EQ(mark.pixelColor(row, row), AppLook::mark);
    }
    for (const QRgb panel : {0xffffffff, 0xffe0e0e0, 0xff2b2b2b, 0xff000000}) {
        for (const QColor& ink : {AppLook::mark, AppLook::menuSymbol})
            EXPECT_GE(contrast(ink, QColor(panel)), 3) << qPrintable(ink.name()) << " on " << std::hex << panel;
    }
}

TEST(AppLook, EveryTextIsLegible)
{
    for (const LookWishes wishes : {LookWishes{}, LookWishes{.dark = true}, LookWishes{.highContrast = true},
             LookWishes{.dark = true, .highContrast = true}}) {
        const AppColours c = AppLook::colours(wishes);
        for (const auto& [text, grounds] : std::initializer_list<std::pair<QColor, QList<QColor>>>{
                 {c.text, {c.ground, c.surface, c.button, c.field}}, {c.text, {c.chosenSegment, c.track}},
                 {c.soft, {c.ground, c.surface, c.track}}, {c.faint, {c.ground, c.surface}},
                 {c.accent, {c.ground, c.surface}}, {c.onAccent, {c.accent}}, {c.danger, {c.ground, c.surface}},
                 {c.onDanger, {c.danger}}, {c.barText, {c.bar}}, {c.barLink, {c.bar}}}) {
            for (const QColor& ground : grounds)
                EXPECT_GE(contrast(text, ground), 4.5)
                    << wishes.dark << wishes.highContrast << ' ' << qPrintable(text.name() + u" on "_s + ground.name());
        }
        const QPalette palette = AppLook::palette(wishes);
        for (const auto& [text, ground] : {std::pair{QPalette::WindowText, QPalette::Window},
                 std::pair{QPalette::Text, QPalette::Base}, std::pair{QPalette::ButtonText, QPalette::Button},
                 std::pair{QPalette::HighlightedText, QPalette::Highlight}})
            EXPECT_GE(contrast(palette.color(text), palette.color(ground)), 4.5) << wishes.dark << ' ' << text;
        EXPECT_GE(
            contrast(palette.color(QPalette::Disabled, QPalette::WindowText), palette.color(QPalette::Window)), 4.5);
        EXPECT_EQ(palette.color(QPalette::Window).lightnessF() < 0.5F, wishes.dark);
    }
}

} // namespace
} // namespace ambrelle
