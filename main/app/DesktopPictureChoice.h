#pragma once

#include "platform/DesktopPicture.h"

#include <memory>

namespace ambrelle {

/// What tells one desktop from another.
struct DesktopSession {
    QString desktop; ///< names from the special to the general with ":" between, as in XDG_CURRENT_DESKTOP
    QString swaySocket; ///< empty where no Sway runs
    bool isX11 = false; ///< the root window of an X server is what the user sees behind everything

    /// The one this program runs in; ask with the user's own environment, after the application object exists.
    static DesktopSession current();
};

/// The ways to set a desktop's picture.
enum class DesktopPictureKind { gnome, cinnamon, mate, xfce, plasma, sway, lxde, lxqt, rootPixmap, none };

DesktopPictureKind desktopPictureKind(const DesktopSession& session);

/// The desktop picture of that session. `folder` exists; a desktop that cannot be asked what it shows has it noted
/// there.
std::unique_ptr<DesktopPicture> chooseDesktopPicture(const DesktopSession& session, const QString& folder);

} // namespace ambrelle
