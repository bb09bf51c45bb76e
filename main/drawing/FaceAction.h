// SPDX-License-Identifier: MIT

#pragma once

#include <QString>

namespace ambrelle {

/// What a click on a part of a face asks for; it travels back from the panel to the services as a value.
struct FaceAction {
    enum class Verb {
        open, ///< what the kind opens
        previousTrack,
        playPause,
        nextTrack,
        toggleFocus,
        completeReminder, ///< `argument`: the reminder's identifier
    };

    Verb verb = Verb::open;
    QString argument{};

    bool operator==(const FaceAction&) const = default;
};

} // namespace ambrelle
