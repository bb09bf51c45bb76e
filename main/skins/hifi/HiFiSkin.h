// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

#include <optional>

namespace ambrelle {

/// A valve-age receiver: walnut and champagne metal, smoked glass, glowing digits, needles and reels that move.
class HiFiSkin final : public FaceRenderer {
public:
    explicit HiFiSkin(std::optional<QColor> accent);

    Box plate(Canvas& canvas, const FaceContext& face) const override;
    void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const override;
    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override;
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override;
    double photoMat() const override { return 8; }
    double photoCorner() const override { return 3; }

    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;

private:
    void progress(Canvas& canvas, const Box& box, const NowPlayingReading& reading) const;
};

} // namespace ambrelle
