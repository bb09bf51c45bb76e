// SPDX-License-Identifier: MIT

#pragma once

#include "model/WidgetKind.h"

#include <QStringList>

namespace ambrelle {

class NowPlayingService;
class ProgramLauncher;

/// What a click on a widget opens: the program or settings panel of this desktop that fits what the widget shows.
class WidgetActions {
public:
    /// `desktops` are the names of the running one, from the special to the general.
    WidgetActions(ProgramLauncher& launcher, NowPlayingService& player, QStringList desktops);

    /// Whether a click can open anything at all.
    static bool hasAction(WidgetKind kind);
    /// Opens it. Gives one sentence when nothing that fits is installed; empty when it was opened or a click opens
    /// nothing anyway.
    QString open(WidgetKind kind) const;

private:
    bool openPlayer() const;

    ProgramLauncher& m_launcher;
    NowPlayingService& m_player;
    QStringList m_desktops;
};

} // namespace ambrelle
