// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

namespace ambrelle {

/// A one-bit desktop: windows with striped title bars, pixel type, black, white and dither. It takes no other accent.
class ClassicSkin final : public FaceRenderer {
public:
    ClassicSkin();

    Box plate(Canvas& canvas, const FaceContext& face) const override;
    void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const override;

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

    Box photoPlate(Canvas& canvas, const FaceContext& face) const override;
    void warning(Canvas& canvas, const Box& box) const override;
    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override;
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
};

} // namespace ambrelle
