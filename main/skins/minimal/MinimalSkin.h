// SPDX-License-Identifier: MIT

#pragma once

#include "skins/minimal/MinimalHand.h"

namespace ambrelle {

/// The family of plain skins: one layout, drawn by the hand of its look's plate treatment.
class MinimalSkin final : public FaceRenderer {
public:
    explicit MinimalSkin(const MinimalLook& look);
    Q_DISABLE_COPY_MOVE(MinimalSkin)

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

    bool showsSeconds() const override { return m_look.seconds; }
    double photoMat() const override { return m_look.photoMat; }
    void warning(Canvas& canvas, const Box& box) const override;
    Box progressDial(Canvas& canvas, const Box& box, double fraction) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;

private:
    /// The large figure, with a warning beside it when it is high; cuts its band and the gap below.
    void hero(Canvas& canvas, Box& content, const QString& value, const QString& unit, bool high) const;
    QColor loadColour(bool high) const { return high ? m_look.warn : m_look.accent; }

    MinimalLook m_look;
    std::unique_ptr<const MinimalHand> m_hand;
};

} // namespace ambrelle
