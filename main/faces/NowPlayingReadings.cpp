// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/Wording.h"
#include "model/WidgetKind.h"
#include "services/NowPlayingService.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

constexpr double longestTrack = 100 * 3600; // seconds; endless streams tell absurd lengths

Notice nothingPlaying(const NowPlayingService& service)
{
    return {symbol(WidgetKind::nowPlaying), service.isAvailable() ? Wording::tr("Nothing playing") : service.whyNot()};
}

/// Whole seconds into the track.
double elapsedAt(const NowPlaying& track, double duration, const QDateTime& now)
{
    constexpr double millisecond = 0.001;
    double elapsed = track.position;
    // A clock that was set back must not run the track backwards.
    if (track.isPlaying)
        elapsed += std::max(0.0, static_cast<double>(track.sampledAt.msecsTo(now)) * millisecond);
    return std::floor(std::clamp(elapsed, 0.0, duration > 0 ? duration : longestTrack));
}

} // namespace

NowPlayingReading nowPlayingReading(const NowPlayingService& service, const QDateTime& now)
{
    const std::optional<NowPlaying>& track = service.track();
    if (!track)
        return {.notice = nothingPlaying(service)};
    const double duration = track->duration > 0 && track->duration <= longestTrack ? track->duration : 0;
    const double elapsed = elapsedAt(*track, duration, now);
    return {.title = track->title,
        .artist = track->artist,
        .progress = duration > 0 ? elapsed / duration : 0,
        .elapsed = Units::clock(elapsed),
        .total = duration > 0 ? Units::clock(duration) : QString(),
        .playing = track->isPlaying,
        .artwork = {service.artwork()}};
}

} // namespace ambrelle
