// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

#include <optional>

namespace ambrelle {

/// The quiet default: rounded frosted panels, white system type, one cool accent.
class GlassSkin final : public FaceRenderer {
public:
    explicit GlassSkin(std::optional<QColor> accent);

    Box plate(Canvas& canvas, const FaceContext& face) const override;
    PictogramPaint pictograms() const override;

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
};

} // namespace ambrelle
