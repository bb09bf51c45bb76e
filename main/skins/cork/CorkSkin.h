// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

#include <optional>

namespace ambrelle {

/// A notice board: sticky notes, index cards and instant photos, each hung a little askew and written on by hand.
class CorkSkin final : public FaceRenderer {
public:
    explicit CorkSkin(const std::optional<QColor>& accent);

    Box plate(Canvas& canvas, const FaceContext& face) const override;
    void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const override;
    Box photoPlate(Canvas& canvas, const FaceContext& face) const override;
    double photoCorner() const override { return 1; }
    double tilt(const FaceContext& face) const override;
    QPainterPath silhouette(const FaceContext& face) const override;

    FigureStyle figure(double cap) const override;
    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const override;
    void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const override;
    void rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const override;
    void parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const override;
    void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const override;
    void pictogram(Canvas& canvas, const Box& box, Sky sky) const override;
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override;
    void rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const override;
    void eventMark(Canvas& canvas, Box& line, const QColor& colour) const override;
    void checkMark(Canvas& canvas, const Box& box, bool done) const override;
    TextStyle doneRow() const override { return style().row().coloured(style().soft).struckThrough(); }
    void sessionDot(Canvas& canvas, const Box& box, bool lit) const override;
    void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const override;
    void cover(Canvas& canvas, const Box& box, const Picture& artwork) const override;
    void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const override;

    using FaceRenderer::draw;
    void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;
};

} // namespace ambrelle
