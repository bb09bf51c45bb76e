// SPDX-License-Identifier: MIT

#include "platform/linux/DesktopPictureChoice.h"

#include "platform/headless/HeadlessDesktop.h"
#include "platform/linux/picture/GSettingsPicture.h"
#include "platform/linux/picture/PcmanfmPicture.h"
#include "platform/linux/picture/PlasmaPicture.h"
#include "platform/linux/picture/SwayPicture.h"
#include "platform/linux/picture/XfconfPicture.h"

#include <QFileInfo>
#include <QHash>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QHash<QString, DesktopPictureKind> desktops{
    {u"gnome"_s, DesktopPictureKind::gnome},
    {u"gnome-classic"_s, DesktopPictureKind::gnome},
    {u"gnome-flashback"_s, DesktopPictureKind::gnome},
    {u"unity"_s, DesktopPictureKind::gnome},
    {u"budgie"_s, DesktopPictureKind::gnome},
    {u"pantheon"_s, DesktopPictureKind::gnome},
    {u"x-cinnamon"_s, DesktopPictureKind::cinnamon},
    {u"cinnamon"_s, DesktopPictureKind::cinnamon},
    {u"mate"_s, DesktopPictureKind::mate},
    {u"xfce"_s, DesktopPictureKind::xfce},
    {u"kde"_s, DesktopPictureKind::plasma},
    {u"lxde"_s, DesktopPictureKind::lxde},
    {u"lxqt"_s, DesktopPictureKind::lxqt},
};

} // namespace

DesktopSession DesktopSession::current()
{
    const QString socket = qEnvironmentVariable("SWAYSOCK");
    return {
        .desktop = qEnvironmentVariable("XDG_CURRENT_DESKTOP"),
        // The variable may outlive its Sway.
        .swaySocket = QFileInfo::exists(socket) ? socket : QString(),
    };
}

DesktopPictureKind desktopPictureKind(const DesktopSession& session)
{
    if (!session.swaySocket.isEmpty())
        return DesktopPictureKind::sway;
    for (const QString& name : session.desktop.split(u':')) {
        const auto known = desktops.find(name.trimmed().toLower());
        if (known != desktops.end())
            return *known;
    }
    return DesktopPictureKind::hosts;
}

std::unique_ptr<DesktopPicture> chooseDesktopPicture(
    const DesktopSession& session, const QString& folder, const MakeDesktopPicture& hosts)
{
    switch (desktopPictureKind(session)) {
    case DesktopPictureKind::gnome: return std::make_unique<GSettingsPicture>(GSettingsPicture::Family::gnome);
    case DesktopPictureKind::cinnamon: return std::make_unique<GSettingsPicture>(GSettingsPicture::Family::cinnamon);
    case DesktopPictureKind::mate: return std::make_unique<GSettingsPicture>(GSettingsPicture::Family::mate);
    case DesktopPictureKind::xfce: return std::make_unique<XfconfPicture>();
    case DesktopPictureKind::plasma: return std::make_unique<PlasmaPicture>();
    case DesktopPictureKind::sway:
        return std::make_unique<SwayPicture>(folder + u"/desktop-picture.json"_s, session.swaySocket);
    case DesktopPictureKind::lxde: return std::make_unique<PcmanfmPicture>(PcmanfmPicture::Family::lxde);
    case DesktopPictureKind::lxqt: return std::make_unique<PcmanfmPicture>(PcmanfmPicture::Family::lxqt);
    case DesktopPictureKind::hosts: break;
    }
    if (auto picture = hosts())
        return picture;
    return std::make_unique<HeadlessDesktopPicture>();
}

} // namespace ambrelle
