// SPDX-License-Identifier: MIT

#pragma once

#include "faces/DeviceLayer.h"
#include "faces/FaceView.h"
#include "model/WidgetConfig.h"

namespace ambrelle {

/// How a face is shown besides what it shows.
struct FaceLook {
    QSizeF size; ///< of the face, points
    double scale = 1; ///< of the face's own points
    Backdrop backdrop = Backdrop::none;
    bool border = false;
    double opacity = 1; ///< 0 to 1
    bool editing = false;

    static FaceLook of(const WidgetConfig& config, bool editing = false);

    bool operator==(const FaceLook&) const = default;
};

/// Draws one widget's face with its backdrop, border and edit mark, in points from the face's upper left corner, y
/// down.
class FacePainter {
public:
    FacePainter(FaceView view, LayerCache& layers);

    void setView(FaceView view);
    void setLook(const FaceLook& look);
    /// Gives what has to be painted for it, in points; nothing is drawn before the first reading.
    QRectF setReading(std::shared_ptr<const Reading> reading);

    const FaceView& view() const { return m_view; }
    const FaceLook& look() const { return m_look; }
    const std::shared_ptr<const Reading>& reading() const { return m_reading; }

    /// Draws a face once, at rest, all of it.
    static void paintOnce(
        QPainter& painter, const FaceView& view, const FaceLook& look, std::shared_ptr<const Reading> reading);
    /// Draws what lies in `area`. `time` is that of moving parts, 0 while they rest; between two changes a frame of
    /// motion or a second draws nothing but what moves or ticks.
    void paint(QPainter& painter, const QRectF& area, double time);

    /// What the last drawn face answers to and how it moves, in face points.
    const FaceView::Result& result() const { return m_result; }
    QStringList texts() const; ///< what can be read on the face, and what a picture on it is; draws it out of sight
    QRectF scaled(const QRectF& facePoints) const;
    QRectF reach() const; ///< everything that painting may touch, shadows included
    /// The plate with what is behind it, and the radius of its corners.
    QRectF outline() const;
    double outlineCorner() const;
    /// What is seen of it where no window is translucent, in place of the rounded outline; empty: all of that.
    QPolygonF silhouette() const;

private:
    void compose(QPainter& painter, const QRectF& area, double time);
    void drawStill(QPainter& painter);
    void drawBackdrop(QPainter& painter) const;
    void drawEditMark(QPainter& painter) const;
    QRectF movingArea() const; ///< of what moves or ticks
    QRectF tickingArea() const;

    FaceView m_view;
    LayerCache& m_layers;
    FaceLook m_look;
    std::shared_ptr<const Reading> m_reading;
    FaceView::Result m_result;
    DeviceLayer m_still; // of the moving area; empty until the first frame of motion or second
};

} // namespace ambrelle
