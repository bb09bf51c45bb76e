// SPDX-License-Identifier: MIT

#include "app/Program.h"
#include "app/UserFolders.h"
#include "support/WaitUntil.h"

namespace ambrelle {
namespace {

using namespace std::chrono_literals;

/// A start with the user's wish that skins follow the desktop, which answers bit by bit.
struct FollowingStart {
    enum class Kind { first, later, laterOnADesktopThatForgot };

    Kind kind;
    Skin skin; ///< of everything
    std::optional<bool> dark; ///< none: nothing tells it
    int answersBefore; ///< of the desktop, before it tells whether it is dark
};

class FollowedAppearance : public StartUp {
protected:
    /// Every skin that is stored or shown in the end, which is when there are no others than `expected` any more.
    static QStringList outcome(const FollowingStart& start, Skin expected)
    {
        UserDefaults store = UserDefaults::temporary();
        Program program(store);
        RecordingMachine& machine = program.machine;
        ScreenInfo screen = machine.windows.screens().first();
        screen.pixelRatio = 0.1; // a small wallpaper is painted at once
        machine.windows.setScreens({screen});
        machine.appearance.setUnknown();
        machine.desktopPicture.isDeferred = true;
        program.settings.followAppearance.set(true);
        program.settings.defaultSkin.set(start.skin);
        if (start.kind != FollowingStart::Kind::first) {
            program.settings.setHasLaunchedBefore(true);
            store.setData(u"widgets.v2"_s, WidgetConfig::encodeList({{WidgetKind::clock, start.skin}}));
            const QString file = UserFolders::wallpapers() + u'/' + Wallpaper::fileName(start.skin, {144, 90});
            store.set(u"desktopPicture.current"_s, file);
            if (start.kind == FollowingStart::Kind::later)
                machine.desktopPicture.shown[screen.connector] = file;
        }
        program.delegate.start();
        for (int i = 0; i < start.answersBefore; ++i) {
            waitUntil([&] { return machine.desktopPicture.waiting() > 0; }, glance);
            machine.desktopPicture.answer();
        }
        if (start.dark)
            machine.appearance.setDark(*start.dark);
        machine.clock.advance(1s);
        const auto isSettled = [&] {
            machine.desktopPicture.answer();
            const QStringList now = skins(program);
            return now.count(rawValue(expected)) == now.size();
        };
        waitUntil(isSettled);
        waitUntil([&] { return !isSettled(); }, glance);
        return skins(program);
    }

private:
    static constexpr int glance = 100; // milliseconds

    static QStringList skins(const Program& program)
    {
        QStringList names{rawValue(program.settings.defaultSkin())};
        const QString connector = program.machine.windows.screens().first().connector;
        const auto wallpaper = Wallpaper::skinOf(program.machine.desktopPicture.shown.value(connector));
        names += wallpaper ? rawValue(*wallpaper) : u"no wallpaper"_s;
        const auto widgets = WidgetConfig::decodeList(program.defaults.data(u"widgets.v2"_s).value_or("[]"));
        for (const WidgetConfig& widget : widgets.value())
            names += rawValue(widget.skin);
        return names;
    }
};

TEST_F(FollowedAppearance, GivesTheRightMemberOfEachPairWhateverIsKnownFirst)
{
    using enum FollowingStart::Kind;
    for (const FollowingStart::Kind kind : {first, later, laterOnADesktopThatForgot}) {
        for (const Skin skin : {Skin::paper, Skin::slate}) {
            for (const std::optional<bool> dark : {std::optional(false), std::optional(true), std::optional<bool>()}) {
                for (int answers = 0; answers < (dark ? 5 : 1); ++answers) {
                    const Skin expected = dark && isLight(skin) == *dark ? appearancePartner(skin).value() : skin;
                    const QStringList skins = outcome({kind, skin, dark, answers}, expected);
                    EXPECT_GE(skins.size(), 3) << "there is no widget";
                    EXPECT_EQ(skins.count(rawValue(expected)), skins.size())
                        << "kind " << static_cast<int>(kind) << ", dark " << dark.value_or(false) << ", after "
                        << answers << " answers: " << qPrintable(skins.join(u' ')) << " instead of "
                        << qPrintable(rawValue(expected));
                }
            }
        }
    }
}

} // namespace
} // namespace ambrelle
