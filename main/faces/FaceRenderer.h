// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Readings.h"
#include "model/Skin.h"
#include "model/WidgetKind.h"

namespace ambrelle {

/// What a face is told besides its reading.
struct FaceContext {
    WidgetKind kind = WidgetKind::clock;
    SizeClass size = SizeClass::small;
    Box bounds; ///< of the face: 170 x 170 or 350 x 170 points

    bool medium() const { return size == SizeClass::medium; }
};

/// Draws the faces of one skin. One pure function per kind; the kinds that all skins share are drawn from the style
/// record and the skin's plate. A face reads nothing but its arguments, so that the same call serves the desktop, the
/// previews and the tests.
class FaceRenderer {
public:
    FaceRenderer(SkinStyle style, DialFlavor dial)
        : m_style(std::move(style))
        , m_dial(dial)
    {
    }
    virtual ~FaceRenderer() = default;

    const SkinStyle& style() const { return m_style; }
    DialFlavor dial() const { return m_dial; }

    /// The plate, drawn over the whole face; returns the content box.
    virtual Box plate(Canvas& canvas, const FaceContext& face) const = 0;
    /// The header line; cuts it and the gap below it from the top of the content box.
    virtual void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const;

    virtual void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const = 0;
    virtual void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const = 0;

    /// Whether the clock of this skin shows seconds, and so changes every second.
    virtual bool showsSeconds() const { return false; }
    /// Space between the plate's edge and a photo, 0 to 8 points.
    virtual double photoMat() const { return 6; }
    /// The plate of a photo; returns where the photo stands on it.
    virtual Box photoPlate(Canvas& canvas, const FaceContext& face) const;
    /// The round corner of a photo inside the mat.
    virtual double photoCorner() const { return std::max(0.0, m_style.corner - photoMat()); }
    /// The mark of a value beyond its threshold; a warning triangle in the skin's warn colour.
    virtual void warning(Canvas& canvas, const Box& box) const;
    /// The skin's dial in the largest circle of `box`, filled to `fraction` (0 to 1); returns the box inside it.
    virtual Box progressDial(Canvas& canvas, const Box& box, double fraction) const;
    /// A thin horizontal level in `colour` over its track, filled to `fraction` (0 to 1).
    virtual void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const;

    /// Plate and header; returns what is left for the content.
    Box framed(Canvas& canvas, const FaceContext& face, const QString& title) const;
    Box framed(Canvas& canvas, const FaceContext& face) const;

    /// Any reading: its face, or its notice under the header where there is nothing to show.
    void drawAny(Canvas& canvas, const Reading& reading, const FaceContext& face) const;

private:
    SkinStyle m_style;
    DialFlavor m_dial;
};

/// The header every kind has unless its face says otherwise: the kind's title in the skin's case.
QString headerTitle(const SkinStyle& style, WidgetKind kind);

} // namespace ambrelle
