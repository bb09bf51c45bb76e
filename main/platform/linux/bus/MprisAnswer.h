// SPDX-License-Identifier: MIT

#pragma once

#include "platform/PlayerSource.h"

#include <QVariantMap>

namespace ambrelle {

/// What a player on the session bus tells about itself.
struct MprisAnswer {
    std::optional<PlayerTrack> track{}; ///< none: it plays nothing
    double rate = 1; ///< seconds of the track in a second

    bool operator==(const MprisAnswer&) const = default;
};

/// Reads the properties of the interface org.mpris.MediaPlayer2.Player, whatever is missing or of a wrong type; texts
/// are cut to what a face has room for. A track without a title goes by the name of its file, one without either by the
/// player's `name`.
MprisAnswer mprisAnswer(const QVariantMap& properties, const QString& name);

/// The dictionary of names and values in something that came over the bus; empty if it is something else.
QVariantMap busDictionary(const QVariant& value);

} // namespace ambrelle
