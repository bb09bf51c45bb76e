// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Canvas.h"
#include "drawing/SkinStyle.h"
#include "faces/Pictogram.h"
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

/// Draws the faces of one skin. Every face has a standard layout that is put together from pieces; a skin overrides the
/// plate, the pieces it draws in its own manner, and the few faces that are its own idea. The kinds that all skins
/// share are drawn from the same pieces. A face reads nothing but its arguments, so that the same call serves the
/// desktop, the previews and the tests.
///
/// A skin that overrides one of the `draw` functions says `using FaceRenderer::draw;`.
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
    /// What a value is drawn in: the accent, or the colour of warnings beyond its threshold.
    const QColor& valueColour(bool beyond) const { return beyond ? m_style.warn : m_style.accent; }

    // The frame of a face.

    /// The plate, drawn over the whole face; returns the content box.
    virtual Box plate(Canvas& canvas, const FaceContext& face) const = 0;
    /// The header line; cuts it and the gap below it from the top of the content box.
    virtual void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const;
    /// The plate of a photo; returns where the photo stands on it.
    virtual Box photoPlate(Canvas& canvas, const FaceContext& face) const;
    /// Space between the plate's edge and a photo, 0 to 8 points.
    virtual double photoMat() const { return 6; }
    /// The round corner of a photo inside the mat.
    virtual double photoCorner() const { return std::max(0.0, m_style.corner - photoMat()); }
    /// What lies over a photo: a pin, tape, a corner; nothing.
    virtual void overPhoto(Canvas&, const FaceContext&) const { }
    /// Degrees by which the whole face is turned to the right about its middle, at most 2. It is then drawn three
    /// per cent smaller.
    virtual double tilt(const FaceContext&) const { return 0; }
    /// All that the plate and what holds it cover, without shadows, before the face is turned: where no window is
    /// translucent, nothing else is seen of it. Empty: a rectangle with the style's corners.
    virtual QPainterPath silhouette(const FaceContext&) const { return {}; }
    /// Whether the clock of this skin shows seconds, and so changes every second.
    virtual bool showsSeconds() const { return false; }

    // Pieces: each keeps to its box. Fractions are 0 to 1; a colour is what the value is drawn in.

    /// How a large figure is set.
    virtual FigureStyle figure(double cap) const { return m_style.figure(cap); }
    /// The mark of a value beyond its threshold; a warning triangle in the skin's warn colour.
    virtual void warning(Canvas& canvas, const Box& box) const;
    /// The skin's dial in the largest circle of `box`; returns the box inside it.
    virtual Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const;
    /// A thin horizontal level over its track.
    virtual void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const;
    /// A load over time, 0 to 1, on its base line.
    virtual void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const;
    /// Two rates over time about one line: down above it, up below.
    virtual void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const;
    /// A rate with its arrow.
    virtual void rate(Canvas& canvas, const Box& box, bool upwards, const Units::Pair& rate, double cap) const;
    /// The parts of a whole as a bar.
    virtual void parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const;
    /// What the parts are filled with, in the bar and in its key.
    virtual QList<QBrush> partFills() const { return {m_style.accent, m_style.accent2, m_style.accent3}; }
    /// The picture of a battery with its charge, and its symbol on mains.
    virtual void charge(Canvas& canvas, const Box& box, const BatteryReading& reading) const;
    /// The picture of a sky in the largest square of the box, from `pictograms()` where the skin has no own pictures.
    virtual void pictogram(Canvas& canvas, const Box& box, Sky sky) const;
    virtual PictogramPaint pictograms() const;
    /// Marks today's cell of a month and returns how its number is set. What fills the cell sets the canvas's ground.
    virtual TextStyle todayMark(Canvas& canvas, const Box& cell, const TextStyle& day) const;
    /// What begins a row of a list, cut from the line with its gap; nothing.
    virtual void rowMark(Canvas& canvas, Box& line, qsizetype index) const;
    /// The share of a row, cut from its lower edge; a bar.
    virtual void rowLevel(Canvas& canvas, Box& row, double fraction, qsizetype index) const;
    /// What stands between a row and the next; nothing.
    virtual void separator(Canvas& canvas, const Box& row) const;
    /// The mark of an event's calendar, cut from the line with its gap; a bar.
    virtual void eventMark(Canvas& canvas, Box& line, const QColor& colour) const;
    /// The box to tick, in the largest square of the box.
    virtual void checkMark(Canvas& canvas, const Box& box, bool done) const;
    /// How a row that is done is set.
    virtual TextStyle doneRow() const { return m_style.row().coloured(m_style.soft); }
    /// One of the four sessions of a round, lit when it is done.
    virtual void sessionDot(Canvas& canvas, const Box& box, bool lit) const;
    /// One hour of a day: a bar from the lower edge of its column.
    virtual void hourBar(Canvas& canvas, const Box& column, double fraction, bool now) const;
    /// The artwork of a track, or what stands in its place.
    virtual void cover(Canvas& canvas, const Box& box, const Picture& artwork) const;
    /// A key of the player; `middle`: that to play or pause.
    virtual void key(Canvas& canvas, const Box& box, const QString& symbol, bool middle) const;

    // Faces.

    virtual void draw(Canvas& canvas, const ClockReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const CalendarReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const CpuReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const MemoryReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const DiskReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const BatteryReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const NetworkReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const DownloadsReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const;
    virtual void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const;

    /// Plate and header; returns what is left for the content.
    Box framed(Canvas& canvas, const FaceContext& face, const QString& title) const;
    Box framed(Canvas& canvas, const FaceContext& face) const;

    /// How the face is turned and made smaller by its `tilt`.
    QTransform turn(const FaceContext& face) const;
    /// Any reading: its face, or its notice under the header where there is nothing to show.
    void drawAny(Canvas& canvas, const Reading& reading, const FaceContext& face) const;

private:
    void drawUpright(Canvas& canvas, const Reading& reading, const FaceContext& face) const;

    SkinStyle m_style;
    DialFlavor m_dial;
};

/// The header every kind has unless its face says otherwise: the kind's title in the skin's case.
QString headerTitle(const SkinStyle& style, WidgetKind kind);

} // namespace ambrelle
