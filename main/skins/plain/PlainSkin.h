// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

#include <optional>

namespace ambrelle {

struct PlainPalette;

/// Draws a skin from nothing but its palette, typefaces and measures: one plain layout for each kind.
class PlainSkin final : public FaceRenderer {
public:
    PlainSkin(const PlainPalette& palette, std::optional<QColor> accent);

    Box plate(Canvas& canvas, const FaceContext& face) const override;

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
    QList<QBrush> partFills() const;
    void weatherDays(Canvas& canvas, const Box& box, const WeatherReading& reading) const;

    QColor m_plate;
    QColor m_accent2;
    QColor m_accent3;
};

} // namespace ambrelle
