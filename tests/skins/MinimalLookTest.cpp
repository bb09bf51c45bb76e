// SPDX-License-Identifier: MIT

#include "skins/minimal/MinimalLook.h"

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

/// The look without what light and dark may change.
MinimalLook measuresOf(Skin skin)
{
    MinimalLook look = MinimalLook::original(skin);
    look.skin = Skin::polar;
    for (QColor MinimalLook::*colour :
        {&MinimalLook::ink, &MinimalLook::soft, &MinimalLook::faint, &MinimalLook::accent, &MinimalLook::accent2,
            &MinimalLook::accent3, &MinimalLook::panelFill, &MinimalLook::up, &MinimalLook::down, &MinimalLook::warn,
            &MinimalLook::border, &MinimalLook::shadow, &MinimalLook::cloud, &MinimalLook::key})
        look.*colour = QColor();
    look.wash = look.tint = look.coverWash = look.plateBorder = 0;
    return look;
}

TEST(MinimalLook, ChangingBetweenLightAndDarkMovesNothing)
{
    EXPECT_EQ(measuresOf(Skin::slate), measuresOf(Skin::lumen));
    EXPECT_EQ(measuresOf(Skin::field), measuresOf(Skin::fieldDark));
    EXPECT_NE(measuresOf(Skin::slate), measuresOf(Skin::field));
}

TEST(MinimalLook, AnAccentReplacesTheAccentOnly)
{
    const QColor coral(255, 115, 102);
    for (const Skin skin : {Skin::polar, Skin::mono, Skin::slate, Skin::lumen, Skin::field, Skin::fieldDark}) {
        MinimalLook expected = MinimalLook::original(skin);
        EXPECT_EQ(expected.skin, skin);
        expected.accent = coral;
        EXPECT_EQ(MinimalLook::original(skin).accented(coral), expected);
        EXPECT_EQ(expected.style().accent, coral);
    }
}

} // namespace
} // namespace ambrelle
