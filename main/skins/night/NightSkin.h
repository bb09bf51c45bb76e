// SPDX-License-Identifier: MIT

#pragma once

#include "faces/FaceKit.h"
#include "skins/night/NightLook.h"

namespace ambrelle {

/// The family of dark skins that are told apart by their light. What they share is here: the frame of a face, graphs,
/// levels and rings in the measures of the look, and a few layouts. Each of them is a class in a file of its own, which
/// draws what lies on the plate and overrides the slots and pieces that are its own idea.
class NightSkin : public FaceRenderer {
public:
    explicit NightSkin(const NightLook& look);
    using FaceRenderer::draw;

    Box plate(Canvas& canvas, const FaceContext& face) const final;
    void header(Canvas& canvas, Box& content, const FaceContext& face, const QString& title) const final;
    double photoMat() const override { return m_look.photoMat; }

    Box progressDial(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void level(Canvas& canvas, const Box& box, double fraction, const QColor& colour) const override;
    void history(Canvas& canvas, const Box& box, const History& history, const QColor& colour) const override;
    void traffic(Canvas& canvas, const Box& box, const NetworkReading& reading) const override;
    void parts(Canvas& canvas, const Box& box, const QList<Share>& parts) const override;
    /// The three colours; ink in place of one that the accent would be taken for.
    QList<QBrush> partFills() const override;
    /// Rows tell their share in a mark of the skin's own; nothing.
    void rowLevel(Canvas&, Box&, double, qsizetype) const override { }
    void cover(Canvas& canvas, const Box& box, const Picture& artwork) const override;

    void draw(Canvas& canvas, const ProcessesReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const WeatherReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const EventsReading& reading, const FaceContext& face) const override;
    void draw(Canvas& canvas, const NowPlayingReading& reading, const FaceContext& face) const override;

protected:
    const NightLook& look() const { return m_look; }

    // Slots.

    /// What lies on the filled plate: its light and its edge. Kept until the accent or the size changes.
    virtual void panel(Canvas& layer, const FaceContext& face) const = 0;
    /// What moves on the plate; nothing.
    virtual void motion(Canvas&, const FaceContext&) const { }
    /// The header in its line.
    virtual void heading(Canvas& canvas, const Box& line, const FaceContext& face, const QString& title) const;
    /// The colours that a line in the accent runs through from its start to its end; the accent alone.
    virtual QGradientStops spectrum() const { return {{0, m_look.accent}, {1, m_look.accent}}; }
    /// The same of a ring.
    virtual QGradientStops ringSpectrum() const { return spectrum(); }
    /// What fills the area of a graph below its line, or above it where it `hangs`; a wash of its colour.
    virtual QBrush area(const Box& box, const QColor& colour, bool hangs) const;
    /// What graphs stand on; nothing.
    virtual void graphGround(Canvas&, const Box&) const { }
    /// The mark on the newest sample, `lines.bead` points to all sides of the point without its light; a bright dot.
    virtual void bead(Canvas& canvas, QPointF point, const QColor& colour) const;
    /// How the name of a row is set, and its value.
    virtual TextStyle rowName() const { return style().row(); }
    virtual TextStyle rowValue(qsizetype) const { return style().rowValue(); }
    /// The coming days beside the weather of now.
    virtual void forecast(Canvas& canvas, const Box& box, const WeatherReading& reading) const;

    // For slots and pieces.

    static constexpr double lampLight = 2.6; ///< how far the light of a lamp reaches, in its radii
    /// A colour along the way: the accent as the spectrum, any other as it is.
    QBrush along(QPointF from, QPointF to, const QColor& colour) const;
    QBrush along(const Box& box, const QColor& colour) const { return along(box.topLeft(), box.topRight(), colour); }
    /// A bright dot in a light of its colour.
    void lamp(Canvas& canvas, QPointF point, double radius, const QColor& colour) const;
    /// The light around lines of that colour; draws nothing in a look without.
    void shine(Canvas& canvas, const QPainterPath& path, const QColor& colour) const;
    /// A line of a graph with its light, and its area down or up to `base`.
    void graph(Canvas& canvas, const Box& box, const QPainterPath& line, double base, const QColor& colour) const;

private:
    NightLook m_look;
};

} // namespace ambrelle
