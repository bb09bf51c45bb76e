// SPDX-License-Identifier: MIT

#include "services/NowPlayingService.h"

#include "foundation/Wording.h"
#include "services/PictureDecoder.h"

#include <QtConcurrentRun>

#include <algorithm>
#include <chrono>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

constexpr auto pollPeriod = 2s;
constexpr auto settlingTime = 50ms;

NowPlaying trackShown(const QString& app, const PlayerTrack& track, const QDateTime& now)
{
    NowPlaying playing{.app = app,
        .title = track.title,
        .artist = track.artist,
        .duration = track.duration,
        .position = track.position,
        .isPlaying = track.isPlaying,
        .sampledAt = now};
    if (track.picture.startsWith("http"_L1))
        playing.artworkURL = track.picture;
    return playing;
}

/// Whether anybody could see a difference: while a track pauses, the moment at which that was heard shows nowhere.
bool looksDifferent(const std::optional<NowPlaying>& before, std::optional<NowPlaying> after)
{
    if (before && after && !before->isPlaying)
        after->sampledAt = before->sampledAt;
    return before != after;
}

} // namespace

NowPlayingService::NowPlayingService(PlayerSource& source, HttpClient& http, Clock& clock)
    : m_source(source)
    , m_http(http)
    , m_clock(clock)
{
}

void NowPlayingService::start()
{
    if (std::exchange(m_started, true))
        return;
    connect(&m_source, &PlayerSource::changed, this, &NowPlayingService::sourceChanged);
    m_source.start();
    setTimers();
    poll();
}

void NowPlayingService::setShown(bool shown)
{
    if (std::exchange(m_shown, shown) == shown || !m_started)
        return;
    setTimers();
    if (shown)
        sourceChanged(); // of what happened meanwhile nothing was asked
}

/// Asks in a moment: players tell one change in several pieces, and some tell the same over and over. Answers that are
/// on their way may be old already.
void NowPlayingService::sourceChanged()
{
    if (!m_shown || m_settling)
        return;
    m_settling = m_clock.after(settlingTime, [this] {
        m_settling.reset();
        if (m_pollInFlight)
            sourceChanged();
        else
            poll();
    });
}

void NowPlayingService::poll()
{
    if (m_pollInFlight)
        return;
    const QList<Player> players = m_source.players();
    if (players.isEmpty()) {
        publish({});
        return;
    }
    m_pollInFlight = true;
    ask({.players = players});
}

void NowPlayingService::ask(Pass pass)
{
    if (pass.next == pass.players.size()) {
        publish(pass.paused);
        return;
    }
    const QString player = pass.players.at(pass.next).id;
    m_source.query(player, this, [this, pass = std::move(pass)](const std::optional<PlayerTrack>& track) mutable {
        hear(std::move(pass), track);
    });
}

void NowPlayingService::hear(Pass pass, const std::optional<PlayerTrack>& track)
{
    const Player& player = pass.players.at(pass.next++);
    if (track && (track->isPlaying || !pass.paused.track)) {
        const Found found{
            .player = player.id, .track = trackShown(player.name, *track, m_clock.now()), .picture = track->picture};
        if (track->isPlaying) {
            publish(found);
            return;
        }
        pass.paused = found;
    }
    ask(std::move(pass));
}

void NowPlayingService::publish(const Found& found)
{
    m_pollInFlight = false;
    const bool differs = looksDifferent(m_track, found.track);
    m_track = found.track;
    m_player = found.player;
    const bool lostArtwork = updateArtwork(found);
    setTimers();
    if (differs || lostArtwork)
        Q_EMIT changed();
}

/// While the position runs on by itself, it is enough to correct it every minute and when the clock was set.
void NowPlayingService::setTimers()
{
    const bool asks = isToBeAsked();
    const bool reckons = m_started && m_shown && !asks && m_track && m_track->isPlaying;
    if (!asks)
        m_timer.reset();
    else if (!m_timer)
        m_timer = m_clock.every(pollPeriod, [this] { poll(); });
    if (!reckons)
        m_correction.reset();
    else if (!m_correction)
        m_correction = m_clock.everyMinute([this] { poll(); });
}

/// Whether only asking regularly shows what a player does.
bool NowPlayingService::isToBeAsked() const
{
    if (!m_started || !m_shown)
        return false;
    return !m_source.notifies() || (m_track && m_track->isPlaying && !m_source.keepsTime(m_player));
}

std::optional<Player> NowPlayingService::player() const
{
    const QList<Player> players = m_source.players();
    const auto found = std::ranges::find(players, m_player, &Player::id);
    return !m_track || found == players.end() ? std::nullopt : std::optional(*found);
}

void NowPlayingService::send(PlayerCommand command)
{
    if (m_track && !m_player.isEmpty())
        m_source.command(m_player, command);
}

/// Loads the artwork of another track, or of one whose player tells another address now. The one before stays until
/// then; whether it was removed.
bool NowPlayingService::updateArtwork(const Found& found)
{
    if (!found.track) {
        m_artworkFor.reset();
        return !std::exchange(m_artwork, {}).isNull();
    }
    const ArtworkKey key{found.track->identity(), found.picture};
    if (m_artworkFor == key)
        return false;
    m_artworkFor = key;
    if (found.track->artworkURL) {
        m_http.getPublic(QUrl(*found.track->artworkURL), mostArtworkBytes, this,
            [this, key](const HttpAnswer& answer) { decodeArtwork(key, answer.body); });
    } else {
        m_source.artwork(
            found.player, mostArtworkBytes, this, [this, key](const QByteArray& bytes) { decodeArtwork(key, bytes); });
    }
    return false;
}

void NowPlayingService::decodeArtwork(const ArtworkKey& key, const QByteArray& bytes)
{
    if (m_artworkFor != key)
        return;
    if (bytes.isEmpty() || bytes.size() > mostArtworkBytes) {
        publishArtwork(key, {});
        return;
    }
    QtConcurrent::run([bytes] {
        return PictureDecoder::decode(bytes, artworkSize);
    }).then(this, [this, key](const QImage& image) { publishArtwork(key, image); });
}

void NowPlayingService::publishArtwork(const ArtworkKey& key, const QImage& image)
{
    if (m_artworkFor != key || (image.isNull() && m_artwork.isNull()))
        return;
    m_artwork = image;
    Q_EMIT changed();
}

void NowPlayingService::loadPreviewData(const QImage& artwork)
{
    m_track = NowPlaying{.app = u"Music"_s,
        .title = Wording::tr("Northern Lights"),
        .artist = Wording::tr("The Harbour Lamps"),
        .duration = 221,
        .position = 84,
        .isPlaying = true,
        .sampledAt = m_clock.now()};
    m_player.clear();
    m_artwork = artwork;
    m_artworkFor = ArtworkKey{m_track->identity(), {}};
    Q_EMIT changed();
}

} // namespace ambrelle
