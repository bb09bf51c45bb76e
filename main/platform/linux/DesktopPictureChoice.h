// SPDX-License-Identifier: MIT

#pragma once

#include "platform/DesktopPicture.h"

#include <QStringList>

#include <functional>
#include <memory>

namespace ambrelle {

/// What tells one desktop from another.
struct DesktopSession {
    QString desktop; ///< names from the special to the general with ":" between, as in XDG_CURRENT_DESKTOP
    QString swaySocket; ///< empty where no Sway runs

    QStringList names() const { return desktop.split(u':', Qt::SkipEmptyParts); }

    /// The one this program runs in; ask with the user's own environment.
    static DesktopSession current();
};

/// The ways to set a desktop's picture; `hosts` where no desktop is known that has one, and it is up to what shows the
/// windows.
enum class DesktopPictureKind { gnome, cinnamon, mate, xfce, plasma, sway, lxde, lxqt, hosts };

DesktopPictureKind desktopPictureKind(const DesktopSession& session);

/// Makes a desktop picture; null where there is no way to have one.
using MakeDesktopPicture = std::function<std::unique_ptr<DesktopPicture>()>;

/// The desktop picture of that session, never null. `folder` exists; a desktop that cannot be asked what it shows has
/// it noted there.
std::unique_ptr<DesktopPicture> chooseDesktopPicture(
    const DesktopSession& session, const QString& folder, const MakeDesktopPicture& hosts);

} // namespace ambrelle
