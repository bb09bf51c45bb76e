// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Box.h"
#include "drawing/CanvasRecord.h"
#include "drawing/FaceAction.h"
#include "drawing/Finish.h"
#include "drawing/Motion.h"
#include "drawing/Text.h"

#include <QPainter>

#include <functional>

namespace ambrelle {

class LayerCache;

/// The kit that faces draw with: text that fits its box, figures, symbols, shapes, still layers, moving parts and the
/// areas that answer a click. Everything is in face points at scale 1, y down; the painter does the scaling.
///
/// Text is placed by the middle of its capitals, never of its line box: a row of texts in boxes of one centre line
/// stands level whatever the fonts.
class Canvas {
public:
    /// A face is drawn in two passes: what stands still, then what moves, so that a frame of motion repaints nothing
    /// else.
    enum class Pass { still, moving };

    struct Setup {
        Pass pass = Pass::still;
        double time = 0; ///< of moving parts, seconds since 2001-01-01 00:00 UTC
        LayerCache* layers = nullptr; ///< none: still layers are drawn each time
        QString layerKey{}; ///< what tells this face's layers from other faces'
        CanvasRecord* record = nullptr;
        QColor ground = Qt::white; ///< opaque, for the record
        Finish finish = Finish::smooth;
    };

    struct HitArea {
        QRectF area;
        FaceAction action;
    };

    struct MovingArea {
        QRectF area;
        Motion motion;
    };

    Canvas(QPainter& painter, const Setup& setup);

    /// One line, elided to the box; returns its width.
    double text(const Box& box, const QString& text, const TextStyle& style);
    /// Up to `style.lines` lines from the top of the box (or about its middle); returns their height.
    double paragraph(
        const Box& box, const QString& text, const TextStyle& style, Qt::Alignment vertical = Qt::AlignTop);
    /// A figure with its unit, capitals about the middle of the box; returns its width.
    double figure(const Box& box, const QString& value, const QString& unit, const FigureStyle& style);
    /// Fills a figure's outline placed with its baseline's start at `pen`, and notes it as text.
    void figure(const Box& box, const FigurePath& path, QPointF pen, const QBrush& fill, const QString& value);
    /// A named symbol in a centred square of `size` points.
    void symbol(const Box& box, const QString& name, double size, const QBrush& fill);

    void fill(const QPainterPath& path, const QBrush& brush);
    void fill(const Box& box, const QBrush& brush, double radius = 0);
    void disc(QPointF centre, double radius, const QBrush& brush);
    void stroke(const QPainterPath& path, const QPen& pen);
    void frame(const Box& box, const QPen& pen, double radius = 0); ///< the line stays inside the box
    void line(QPointF from, QPointF to, const QPen& pen);
    /// A horizontal rule through the middle of the box.
    void rule(const Box& box, const QBrush& brush, double thickness);
    /// Any other ornament; not recorded. The painter is in face points and is restored afterwards.
    void paint(const std::function<void(QPainter&)>& draw);

    /// A layer that never changes at one size: drawn once and kept.
    void still(const QString& name, const QRectF& area, const std::function<void(Canvas&)>& draw);
    /// A part that moves, above everything still. `draw` gets the time; at time 0 the face must look complete.
    void moving(const QRectF& area, const Motion& motion, const std::function<void(Canvas&, double time)>& draw);

    void hit(const QRectF& area, const FaceAction& action);
    /// The opaque colour that the following texts stand on.
    void setGround(const QColor& colour) { m_setup.ground = colour; }
    const QColor& ground() const { return m_setup.ground; }
    Finish finish() const { return m_setup.finish; }

    const QList<HitArea>& hits() const { return m_hits; }
    const QList<MovingArea>& movingAreas() const { return m_moving; }

private:
    bool muted() const { return m_setup.pass == Pass::moving && !m_inMotion; }
    bool smooth() const { return m_setup.finish == Finish::smooth; }
    double baseline(const Box& box, const TextStyle& style) const;
    QPointF snapped(QPointF point, const Typeface& face) const;
    void glyphs(QPointF origin, const ShapedText& shaped, const QColor& colour);
    void line(const Box& box, const QString& shown, const TextStyle& style, bool cut);
    void note(CanvasMark mark) const;

    QPainter& m_painter;
    Setup m_setup;
    bool m_inMotion = false;
    QList<HitArea> m_hits;
    QList<MovingArea> m_moving;
};

} // namespace ambrelle
