// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Clock.h"
#include "platform/HttpClient.h"
#include "platform/PlayerSource.h"

#include <QDateTime>
#include <QImage>
#include <QSize>

#include <optional>

namespace ambrelle {

/// What a player plays, or holds in pause.
struct NowPlaying {
    QString app{}; ///< name of the player
    QString title{};
    QString artist{};
    double duration = 0; ///< seconds, 0 while unknown
    double position = 0; ///< seconds into the track at `sampledAt`
    bool isPlaying = false;
    QDateTime sampledAt{}; ///< when the player's answer was read
    std::optional<QString> artworkURL{}; ///< only where the player tells one of the web; fetched if it is public

    bool operator==(const NowPlaying&) const = default;
    /// The same as long as the same track is on, whatever its position.
    QString identity() const { return app + u'|' + title + u'|' + artist; }
};

/// Tells what the media players play, with the artwork, and passes commands to the one that is shown.
class NowPlayingService : public QObject {
    Q_OBJECT
public:
    static constexpr QSize artworkSize{384, 384}; ///< pixels the artwork covers at most: 122 points at three a point
    static constexpr qint64 mostArtworkBytes = 16LL * 1024 * 1024; ///< of a picture file

    NowPlayingService(PlayerSource& source, HttpClient& http, Clock& clock);

    /// Looks at once, and from now on whenever something changes. Later calls do nothing.
    void start();
    /// Whether anybody looks at the track; in the beginning it counts as shown. While nobody does, no player is asked.
    void setShown(bool shown);
    /// Asks the running players what they play, unless that goes on already.
    void poll();
    /// Passes the command to the player of the track that is shown, if there is one.
    void send(PlayerCommand command);
    /// A fixed track with that artwork, for pictures.
    void loadPreviewData(const QImage& artwork);

    const std::optional<NowPlaying>& track() const { return m_track; }
    /// The player of that track, while it runs.
    std::optional<Player> player() const;
    const QImage& artwork() const { return m_artwork; } ///< null when there is none
    /// False where no player can be asked at all.
    bool isAvailable() const { return m_source.isAvailable(); }
    QString whyNot() const { return m_source.whyNot(); } ///< one sentence, empty while available

Q_SIGNALS:
    void changed(); ///< the track, its state or position, or the artwork is another

private:
    /// What one player answered.
    struct Found {
        QString player{}; ///< none: nobody has a track
        std::optional<NowPlaying> track{};
        QString picture{}; ///< address of any kind, as the player tells it
    };
    /// One round through the running players.
    struct Pass {
        QList<Player> players;
        qsizetype next = 0;
        Found paused{}; ///< first player that has a track but does not play it
    };
    /// What an artwork belongs to. Players may tell the address of a picture some time after the track.
    struct ArtworkKey {
        QString identity;
        QString picture;

        bool operator==(const ArtworkKey&) const = default;
    };

    void sourceChanged();
    void ask(Pass pass);
    void hear(Pass pass, const std::optional<PlayerTrack>& track);
    void publish(const Found& found);
    void setTimers();
    bool isToBeAsked() const;
    bool updateArtwork(const Found& found);
    void decodeArtwork(const ArtworkKey& key, const QByteArray& bytes);
    void publishArtwork(const ArtworkKey& key, const QImage& image);

    PlayerSource& m_source;
    HttpClient& m_http;
    Clock& m_clock;

    std::optional<NowPlaying> m_track;
    QString m_player; // of the track, as the source calls it
    QImage m_artwork;
    std::optional<ArtworkKey> m_artworkFor; // loaded or loading

    bool m_started = false;
    bool m_shown = true;
    bool m_pollInFlight = false;
    Ticket m_settling;
    Ticket m_timer;
    Ticket m_correction;
};

} // namespace ambrelle
