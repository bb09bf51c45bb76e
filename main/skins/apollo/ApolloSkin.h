// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceRenderer.h"
#include "skins/apollo/ApolloStyle.h"

#include <optional>

namespace ambrelle {

/// The control room of the moon flights: consoles of sage metal, green digits, paper of recorders and teletypes.
class ApolloSkin final : public FaceRenderer {
public:
    explicit ApolloSkin(const std::optional<QColor>& accent);

    Box plate(Canvas& canvas, const FaceContext& face) const override;
    void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const override;
    double photoMat() const override { return apollo::rim + 3; }
    double photoCorner() const override { return apollo::faceRadius; }
    void overPhoto(Canvas& canvas, const FaceContext& face) const override;

    FigureStyle figure(double cap) const override;
    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const override;
    void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const override;
    void parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const override;
    void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const override;
    void pictogram(Canvas& canvas, const Box& box, Sky sky) const override;
    TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const override;
    void separator(Canvas& canvas, const Box& row) const override;
    void checkMark(Canvas& canvas, const Box& box, bool done) const override;
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
    void draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;
};

} // namespace ambrelle
