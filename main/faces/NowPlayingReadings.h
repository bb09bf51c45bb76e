#pragma once

#include "faces/Readings.h"

#include <QDateTime>

namespace ambrelle {

class NowPlayingService;

/// What a player widget shows at that moment. While a track plays, `elapsed` goes on by itself; it and `progress` move
/// once a second.
NowPlayingReading nowPlayingReading(const NowPlayingService& service, const QDateTime& now);

} // namespace ambrelle
