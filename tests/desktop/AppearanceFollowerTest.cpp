// SPDX-License-Identifier: MIT

#include "desktop/AppearanceFollower.h"
#include "desktop/Desk.h"
#include "support/WaitUntil.h"

namespace ambrelle {
namespace {

using namespace std::chrono_literals;
using enum WidgetKind;

struct AppearanceFollowerTest : DeskTest {
    RecordingAppearance& appearance = desk.appearance;
    DesktopWallpaper& wallpaper = desk.wallpaper;
    AppearanceFollower follower{appearance, desk.settings, desk.manager, wallpaper, desk.clock};
};

TEST_F(AppearanceFollowerTest, IsFollowedWithPairedSkinsOnly)
{
    const ScreenInfo main = desk.host.screens().first();
    desk.show({main, rightScreen});
    desk.settings.defaultSkin.set(Skin::lumen);
    desk.add(cpu, {100, 100}, Skin::paper);
    desk.add(cpu, {400, 100}, Skin::glass);
    follower.start();
    const auto skins = [&] {
        QStringList names;
        for (const WidgetConfig& config : desk.stored())
            names.append(rawValue(config.skin));
        return names.join(u' ') + u" / "_s + rawValue(desk.settings.defaultSkin());
    };
    appearance.setDark(true);
    desk.clock.advance(1s);
    EXPECT_EQ(skins(), u"paper glass / lumen") << "not asked for";
    desk.settings.followAppearance.set(true);
    EXPECT_EQ(skins(), u"mono glass / slate");
    appearance.setDark(false);
    desk.clock.advance(299ms);
    EXPECT_EQ(skins(), u"mono glass / slate");
    desk.clock.advance(1ms);
    EXPECT_EQ(skins(), u"paper glass / lumen");
    desk.settings.defaultSkin.set(Skin::slate);
    appearance.setContrast(true);
    desk.clock.advance(1s);
    EXPECT_EQ(skins(), u"paper glass / slate") << "it is as light as before";
    appearance.setDark(true);
    desk.clock.advance(1s);
    desk.manager.applyPreset(Skin::field, true, main);
    EXPECT_EQ(desk.settings.defaultSkin(), Skin::fieldDark);
    EXPECT_EQ(desk.stored().first().skin, Skin::fieldDark) << "a layout is followed too";
    ASSERT_TRUE(waitUntil([this] { return wallpaper.wantedSkin() == wallpaper.currentSkin(); }));
    ASSERT_EQ(desk.picture.sets.size(), 1) << "a picture was made for nothing";
    EXPECT_EQ(wallpaper.currentSkin(), Skin::fieldDark);
    EXPECT_EQ(desk.picture.sets.first().size(), 1) << "the layout was for one screen";
}

TEST_F(AppearanceFollowerTest, IsFollowedByTheWallpaperToo)
{
    const auto becomes = [this](
                             Skin skin) { return waitUntil([this, skin] { return wallpaper.currentSkin() == skin; }); };
    wallpaper.apply(Skin::lumen);
    ASSERT_TRUE(becomes(Skin::lumen));
    desk.settings.followAppearance.set(true);
    appearance.setDark(true);
    follower.start();
    EXPECT_TRUE(becomes(Skin::slate));
    wallpaper.apply(Skin::aero);
    ASSERT_TRUE(becomes(Skin::aero));
    follower.sync();
    EXPECT_EQ(desk.picture.sets.size(), 3) << "a skin without a partner stays";
}

} // namespace
} // namespace ambrelle
