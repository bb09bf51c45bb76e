// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

#include <optional>

namespace ambrelle {

/// A poster of the twenties: a cream sheet, black type in small letters, one red, one blue and one yellow shape.
class BauhausSkin final : public FaceRenderer {
public:
    explicit BauhausSkin(const std::optional<QColor>& accent);

    Box plate(Canvas& canvas, const FaceContext& face) const override;
    Box photoPlate(Canvas& canvas, const FaceContext& face) const override;
    void overPhoto(Canvas& canvas, const FaceContext& face) const override;
    double photoMat() const override { return 0; }

    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const override;
    void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const override;
    void rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const override;
    void parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const override;
    void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const override;
    void pictogram(Canvas& canvas, const Box& box, Sky sky) const override;
    void rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const override;
    void separator(Canvas& canvas, const Box& row) const override;
    void eventMark(Canvas& canvas, Box& line, const QColor& colour) const override;
    void checkMark(Canvas& canvas, const Box& box, bool done) const override;
    TextStyle doneRow() const override;
    void sessionDot(Canvas& canvas, const Box& box, bool lit) const override;
    void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const override;
    void cover(Canvas& canvas, const Box& box, const Picture& artwork) const override;
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override;

    using FaceRenderer::draw;
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
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;

private:
    /// The bar at the left edge, and what is cut by the upper edge and the lower right corner.
    const QColor& barColour(WidgetKind kind) const;
    void shapes(Canvas& canvas, const FaceContext& face) const;
    /// The whole room between the insets, for faces that keep clear of the quarter circle themselves.
    Box room(Canvas& canvas, const FaceContext& face) const;
};

} // namespace ambrelle
