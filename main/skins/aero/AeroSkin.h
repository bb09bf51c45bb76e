// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"

namespace ambrelle {

/// Polished aqua glass under a summer sky: gloss over everything, gel bars, bubbles. It keeps its own colours.
class AeroSkin final : public FaceRenderer {
public:
    AeroSkin();

    Box plate(Canvas& canvas, const FaceContext& face) const override;
    void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const override;
    void overPhoto(Canvas& canvas, const FaceContext& face) const override;
    bool showsSeconds() const override { return true; }

    FigureStyle figure(double cap) const override;
    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const override;
    void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const override;
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
    void draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;
};

} // namespace ambrelle
