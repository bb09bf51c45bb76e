#include "app/DesktopPictureChoice.h"

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
             Case{u"openbox"_s, Kind::rootPixmap},
             Case{u""_s, Kind::rootPixmap},
         }) {
        EXPECT_EQ(desktopPictureKind({.desktop = each.desktop, .isX11 = true}), each.expected)
            << qPrintable(each.desktop);
        const bool needsX11 = each.expected == Kind::rootPixmap;
        EXPECT_EQ(desktopPictureKind({.desktop = each.desktop}), needsX11 ? Kind::none : each.expected);
        // One desktop started inside another.
        EXPECT_EQ(desktopPictureKind({.desktop = each.desktop, .swaySocket = u"/run/sway.sock"_s}), Kind::sway);
    }
}

TEST(DesktopPictureChoice, NothingToChooseFromStillAnswers)
{
    const std::unique_ptr<DesktopPicture> none = chooseDesktopPicture({}, QString());
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
