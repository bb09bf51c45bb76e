// SPDX-License-Identifier: MIT

#pragma once

#include "drawing/Box.h"
#include "drawing/CanvasRecord.h"
#include "drawing/FaceAction.h"
#include "drawing/Figure.h"
#include "drawing/Finish.h"
#include "drawing/LayerKey.h"
#include "drawing/Motion.h"
#include "drawing/StrokeManner.h"
#include "drawing/Text.h"

#include <QPainter>

#include <functional>
#include <optional>

namespace ambrelle {

class LayerCache;

/// The kit that faces draw with: text that fits its box, figures, symbols, shapes, still layers, moving parts and the
/// areas that answer a click. Everything is in face points at scale 1, y down; the painter does the scaling.
///
/// Text is placed by the middle of its capitals, never of its line box: a row of texts in boxes of one centre line
/// stands level whatever the fonts.
class Canvas {
public:
    /// A face is drawn in two passes: what stands still, then what moves or ticks, so that a frame of motion repaints
    /// nothing else. Texts and figures return their widths in both, so that a layout is the same.
    enum class Pass { still, moving };

    struct Setup {
        Pass pass = Pass::still;
        double time = 0; ///< of moving parts, seconds since 2001-01-01 00:00 UTC
        LayerCache* layers = nullptr; ///< none: still layers are drawn each time
        QString layerKey{}; ///< what tells this face's layers from other faces'
        CanvasRecord* record = nullptr;
        QColor ground = Qt::white; ///< opaque, for the record
        Finish finish = Finish::smooth;
        StrokeManner manner = StrokeManner::plain;
    };

    struct HitArea {
        QRectF area;
        FaceAction action;
    };

    struct MovingArea {
        QRectF area;
        Motion motion;

        bool operator==(const MovingArea&) const = default;
    };

    Canvas(QPainter& painter, const Setup& setup);
    Q_DISABLE_COPY_MOVE(Canvas)

    /// One line, elided to the box; returns its width.
    double text(const Box& box, const QString& text, const TextStyle& style);
    /// Up to `style.lines` lines from the top of the box (or about its middle); returns their height.
    double paragraph(
        const Box& box, const QString& text, const TextStyle& style, Qt::Alignment vertical = Qt::AlignTop);
    /// A figure with its unit, capitals about the middle of the box; returns its width.
    double figure(const Box& box, const QString& value, const QString& unit, const FigureStyle& style);
    /// A named symbol in a centred square of `size` points.
    void symbol(const Box& box, const QString& name, double size, const QBrush& fill);
    /// The height of the baseline of a line of text in the box: for underlines, leaders and what stands beside it.
    static double baseline(const Box& box, const TextStyle& style);

    /// Lines are drawn in the skin's manner: with a pen, in chalk, with a marker or a brush.
    void stroke(const QPainterPath& path, const QPen& pen);
    void frame(const Box& box, const QPen& pen, double radius = 0); ///< the line stays inside the box
    void line(QPointF from, QPointF to, const QPen& pen);
    /// A horizontal rule through the middle of the box.
    void rule(const Box& box, const QBrush& brush, double thickness);
    /// Light around a line or an outline, without the line itself; a ninth of the cost of stroking it.
    void lightAround(const QPainterPath& path, const InkGlow& glow);
    void fill(const QPainterPath& path, const QBrush& brush);
    void fill(const Box& box, const QBrush& brush, double radius = 0);
    void disc(QPointF centre, double radius, const QBrush& brush);
    /// Any other ornament; not recorded. The painter is in face points and is restored afterwards.
    void paint(const std::function<void(QPainter&)>& draw);

    /// Moves, turns or scales all that `draw` does with this canvas, its hit areas, moving areas and layers included;
    /// what was turned answers to a click and moves in the upright rectangle around it. A layer is kept for each angle:
    /// what turns on and on had better be no layer. A crisp finish moves by whole points only.
    void mapped(const QTransform& change, const std::function<void()>& draw);
    /// Turns all that `draw` does clockwise.
    void turned(QPointF centre, double degrees, const std::function<void()>& draw);
    /// Cuts all that `draw` does to the shape, with a smooth edge; hit areas and moving areas are cut to its bounds. In
    /// a crisp finish the edge runs between pixels. A whole face costs a tenth of a millisecond: in what stands still
    /// for long put it into a still layer.
    void within(const QPainterPath& shape, const std::function<void()>& draw);

    /// A layer that never changes as long as `values` and the size of a point stay the same: drawn once and kept.
    /// `values` are numbers, texts, colours, boxes, pictures: all that `draw` uses and that may change while the skin
    /// stays the same. Layers of one name, size and values are taken for the same wherever they stand in the face.
    template <typename... Values>
    void still(
        const QString& name, const QRectF& area, const std::function<void(Canvas&)>& draw, const Values&... values)
    {
        LayerKey key(name);
        (key.add(values), ...);
        stillLayer(key.text(), area, draw);
    }
    /// A part that moves, above everything still. `draw` gets the time; at time 0 the face must look complete.
    void moving(const QRectF& area, const Motion& motion, const std::function<void(Canvas&, double time)>& draw);
    /// The part of a clock that changes with the second of its reading, above everything still. Nothing else on the
    /// face may depend on the second: between two minutes only this part is painted.
    void ticking(const QRectF& area, const std::function<void(Canvas&)>& draw);

    void hit(const QRectF& area, const FaceAction& action);
    /// The opaque colour that the following texts stand on; see `GroundScope`.
    void setGround(const QColor& colour) { m_setup.ground = colour; }
    const QColor& ground() const { return m_setup.ground; }
    Finish finish() const { return m_setup.finish; }
    StrokeManner manner() const { return smooth() ? m_setup.manner : StrokeManner::plain; }

    const QList<HitArea>& hits() const { return m_hits; }
    const QList<MovingArea>& movingAreas() const { return m_moving; }
    const QList<QRectF>& tickingAreas() const { return m_ticking; }

private:
    /// A shape that cuts, in the coordinates of when it was given.
    struct Cut {
        QPainterPath shape;
        QTransform change;
    };

    bool muted() const { return m_setup.pass == Pass::moving && !m_inMotion; }
    bool smooth() const { return m_setup.finish == Finish::smooth; }
    QPointF snapped(QPointF point, const Typeface& face) const;
    void glyphs(QPointF origin, const ShapedText& shaped, const QColor& colour);
    void line(const Box& box, const QString& shown, const TextStyle& style, bool cut);
    void digits(const QPainterPath& path, const Typeface& face, double size, const QBrush& fill);
    void keptDigits(const QString& value, const FigurePath& path, QPointF pen, const FigureStyle& style);
    void underFigure(const QString& value, const FigurePath& path, QPointF pen, const FigureStyle& style);
    void light(const QPainterPath& outline, const InkGlow& glow, LayerKey key);
    void note(CanvasMark mark) const;

    void stillLayer(const QString& key, const QRectF& area, const std::function<void(Canvas&)>& draw);
    /// Cuts what `draw` does inside `area`, in the coordinates of now.
    void cutTo(const QList<Cut>& cuts, const QRectF& area, const std::function<void()>& draw);
    void cutTo(const QPainterPath& shape, const QRectF& area, const std::function<void()>& draw);
    /// The upright rectangle in face points that `area` takes, cut to the shapes that hold now.
    QRectF reach(const QRectF& area) const;
    /// Draws in the second pass, cut to the shapes that hold now.
    void drawApart(const QRectF& area, const std::function<void()>& draw);

    QPainter* m_painter; ///< that of a layer while something is cut
    Setup m_setup;
    bool m_inMotion = false;
    QTransform m_change; ///< from the coordinates of now to those of the face
    std::optional<QRectF> m_room; ///< bounds of what is cut, in the face's coordinates
    QList<Cut> m_pending; ///< shapes around moving parts that have not been met yet
    QList<HitArea> m_hits;
    QList<MovingArea> m_moving;
    QList<QRectF> m_ticking;
};

/// What the following texts stand on, for as long as this lives.
class GroundScope {
public:
    GroundScope(Canvas& canvas, const QColor& ground)
        : m_canvas(canvas)
        , m_before(canvas.ground())
    {
        canvas.setGround(ground);
    }
    ~GroundScope() { m_canvas.setGround(m_before); }
    Q_DISABLE_COPY_MOVE(GroundScope)

private:
    Canvas& m_canvas;
    QColor m_before;
};

/// The outline of a box with round corners; a larger radius than fits makes a capsule.
QPainterPath roundedPath(const QRectF& box, double radius);

} // namespace ambrelle
