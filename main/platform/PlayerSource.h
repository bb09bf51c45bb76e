// SPDX-License-Identifier: MIT

#pragma once

#include "platform/Port.h"

#include <QByteArray>
#include <QList>

#include <functional>
#include <optional>

namespace ambrelle {

enum class PlayerCommand { playPause, next, previous, raise /* its window comes forward */ };

/// A media player that runs.
struct Player {
    QString id; ///< tells it from all others
    QString name; ///< what people call it
    bool canRaise = false; ///< it obeys PlayerCommand::raise
    QString program{}; ///< name for ProgramLauncher; empty while unknown

    bool operator==(const Player&) const = default;
};

/// What a player plays, or holds in pause.
struct PlayerTrack {
    bool isPlaying = false;
    QString title{};
    QString artist{};
    double duration = 0; ///< seconds, 0 while unknown
    double position = 0; ///< seconds into the track
    QString picture{}; ///< address of any kind; empty where the player tells none

    bool operator==(const PlayerTrack&) const = default;
};

/// The media players that run now. Asking never starts one. changed() tells that a player appeared, vanished, or plays
/// something else or otherwise than before.
class PlayerSource : public Port {
public:
    using Answered = std::function<void(const std::optional<PlayerTrack>& track)>;
    using Delivered = std::function<void(const QByteArray& picture)>;

    /// Begins to look for players; before that there are none. Later calls do nothing.
    virtual void start() = 0;
    /// In the order in which they are to be asked.
    virtual QList<Player> players() const = 0;

    /// Whether changed() tells all but the passing of time; otherwise only asking again finds out.
    virtual bool notifies() const = 0;
    /// Whether the position moves on by one second a second while the player plays, so that it can be reckoned.
    virtual bool keepsTime(const QString& player) const = 0;

    /// Asks what the player plays; no track when it plays nothing or does not answer. All answers come later on this
    /// thread, unless `context` is gone by then.
    virtual void query(const QString& player, QObject* context, Answered answered) = 0;
    /// Gets the picture of the player's track where the player itself hands it out: the bytes of a picture file, none
    /// if there is none or it has more than `mostBytes`.
    virtual void artwork(const QString& player, qint64 mostBytes, QObject* context, Delivered delivered) = 0;
    /// Tells the player; nobody hears whether it obeys.
    virtual void command(const QString& player, PlayerCommand command) = 0;
};

} // namespace ambrelle
