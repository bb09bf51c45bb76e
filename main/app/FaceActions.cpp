// SPDX-License-Identifier: MIT

#include "app/FaceActions.h"

#include "services/LiveServices.h"

namespace ambrelle {

void perform(const FaceAction& action, LiveServices& services)
{
    switch (action.verb) {
    case FaceAction::Verb::open: return;
    case FaceAction::Verb::previousTrack: services.player.send(PlayerCommand::previous); return;
    case FaceAction::Verb::playPause: services.player.send(PlayerCommand::playPause); return;
    case FaceAction::Verb::nextTrack: services.player.send(PlayerCommand::next); return;
    case FaceAction::Verb::toggleFocus: services.focus.toggle(); return;
    case FaceAction::Verb::completeReminder: services.reminders.complete(action.argument); return;
    }
}

} // namespace ambrelle
