// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

namespace ambrelle {

/// The sounds the program makes: a clink of glass, and a short fanfare.
enum class AnnouncedSound { glass, hero };

/// Draws the user's attention. Nothing here is waited for, and what cannot be shown or heard is left out. Unavailable
/// once it turned out that nobody shows notifications.
class Announcer : public Port {
public:
    /// Shows a notification of the desktop. The texts are plain and without `<`, `>` and `&`, which some desktops take
    /// for markup and others do not.
    virtual void notify(const QString& title, const QString& body) = 0;
    virtual void play(AnnouncedSound sound) = 0;
};

} // namespace ambrelle
