// SPDX-License-Identifier: MIT

#include "platform/linux/DesktopPictureChoice.h"

#include "platform/recording/RecordingDesktopPicture.h"

#include <QCoreApplication>

#include <gtest/gtest.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

TEST(DesktopPictureChoice, FollowsTheNamesOfTheDesktop)
{
    using Kind = DesktopPictureKind;
    struct Case {
        QString desktop;
        Kind expected;
    };
    for (const Case& each : {
             Case{u"GNOME"_s, Kind::gnome},
             Case{u"ubuntu:GNOME"_s, Kind::gnome},
             Case{u"Budgie:GNOME"_s, Kind::gnome},
             Case{u"Pantheon"_s, Kind::gnome},
             Case{u"X-Cinnamon"_s, Kind::cinnamon},
             Case{u"mate"_s, Kind::mate},
             Case{u"XFCE"_s, Kind::xfce},
             Case{u"KDE"_s, Kind::plasma},
             Case{u"LXDE"_s, Kind::lxde},
             Case{u"LXQt"_s, Kind::lxqt},
             Case{u"openbox"_s, Kind::hosts},
             Case{u""_s, Kind::hosts},
         }) {
        EXPECT_EQ(desktopPictureKind({.desktop = each.desktop}), each.expected) << qPrintable(each.desktop);
        // One desktop started inside another.
        EXPECT_EQ(desktopPictureKind({.desktop = each.desktop, .swaySocket = u"/run/sway.sock"_s}), Kind::sway);
    }
}

TEST(DesktopPictureChoice, TheHostsOwnStandsInForDesktopsWithout)
{
    DesktopPicture* made = nullptr;
    const auto make = [&made] {
        auto picture = std::make_unique<RecordingDesktopPicture>();
        made = picture.get();
        return picture;
    };
    const auto own = chooseDesktopPicture({.desktop = u"openbox"_s}, QString(), make);
    EXPECT_EQ(own.get(), made);
    made = nullptr;
    const auto desktops = chooseDesktopPicture({.desktop = u"XFCE"_s}, QString(), make);
    ASSERT_TRUE(desktops);
    EXPECT_FALSE(made) << "the desktop would paint over it";
}

TEST(DesktopPictureChoice, NothingToChooseFromStillAnswers)
{
    const std::unique_ptr<DesktopPicture> none = chooseDesktopPicture({}, QString(), [] { return nullptr; });
    EXPECT_FALSE(none->isAvailable());
    EXPECT_FALSE(none->whyNot().isEmpty());
    QString error;
    none->set({}, [&error](const QString& sentence) { error = sentence; });
    EXPECT_TRUE(error.isEmpty()) << "answered before the call was over";
    QCoreApplication::processEvents();
    EXPECT_EQ(error, none->whyNot());
}

} // namespace
} // namespace ambrelle
