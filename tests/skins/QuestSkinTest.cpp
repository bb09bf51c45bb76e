// SPDX-License-Identifier: MIT

#include "skins/DrawnFace.h"
#include "skins/quest/SkySprites.h"
#include "skins/SkinRegistry.h"

#include <QPainter>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

TEST(QuestSkin, SkiesAndTheirFramesDiffer)
{
    QList<QImage> seen;
    for (int value = 0; value < static_cast<int>(Sky::unknown); ++value) {
        const Sprite& sprite = quest::skySprite(static_cast<Sky>(value));
        for (int frame = 0; frame < 2; ++frame) {
            QImage picture(16, 16, QImage::Format_RGB32);
            picture.fill(Qt::black);
            QPainter painter(&picture);
            Canvas canvas(painter, {});
            sprite.draw(canvas, {0, 0, 16, 16}, 1, frame);
            EXPECT_FALSE(seen.contains(picture)) << value << ", frame " << frame;
            seen.append(picture);
        }
    }
}

TEST(QuestSkin, MovesOnlyWhatHappens)
{
    const auto movingParts = [](WidgetKind kind, const Reading& reading) {
        return drawnFace(view(Skin::quest, kind), reading).moving.size();
    };
    BatteryReading battery{.percent = 40, .level = 0.4};
    EXPECT_EQ(movingParts(WidgetKind::battery, battery), 0) << "no heart blinks without the charger";
    battery.charging = true;
    EXPECT_EQ(movingParts(WidgetKind::battery, battery), 1);
    battery.level = 1;
    EXPECT_EQ(movingParts(WidgetKind::battery, battery), 0) << "there is no next heart";
    NowPlayingReading player{.title = u"x"_s, .playing = true};
    EXPECT_EQ(movingParts(WidgetKind::nowPlaying, player), 1);
    player.playing = false;
    EXPECT_EQ(movingParts(WidgetKind::nowPlaying, player), 0) << "the note rests with the music";
}

} // namespace ambrelle
