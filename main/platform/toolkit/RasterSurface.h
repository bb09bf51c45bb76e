// SPDX-License-Identifier: MIT

#pragma once

#include "platform/toolkit/SurfaceCanvas.h"

#include <QList>
#include <QRect>
#include <QWindow>

#include <functional>
#include <memory>

class QPainter;

namespace ambrelle {

/// A window that is painted part by part, and as finely as its screen of now. Unlike the toolkit's own kind
/// of raster window it leaves its pixels to its canvas. It may lose its owner at any time, in the middle of an event
/// too.
class RasterSurface : public QWindow {
    Q_OBJECT
public:
    explicit RasterSurface(std::unique_ptr<SurfaceCanvas> canvas);

    /// From now on nothing is painted or handled; deletes the window, after the event that is being delivered if there
    /// is one.
    void retire();
    bool isRetired() const { return m_retired; }

    void update(const QRect& area); ///< asks for a paint of those points
    void updateAll();
    /// Of its screen. (The toolkit's own figure of a window under Wayland lags behind, and stays behind where the
    /// window was sent to its screen.)
    double pixelRatio() const;
    /// So many points more are painted as soon as another part is, which parts that lie near are joined by.
    void setPointsOfPart(qint64 points) { m_pointsOfPart = points; }
    /// Where the window is or was last sent, in the toolkit's points.
    virtual QRect place() const = 0;

Q_SIGNALS:
    void appeared(); ///< on the screen, and in the window manager's care

protected:
    /// Handles an event in an own way; false leaves it to the toolkit.
    virtual bool handle(QEvent& event) = 0;
    /// Paints what lies in `area`, where nothing but what lies below has been painted before.
    virtual void paint(QPainter& painter, const QRect& area) = 0;
    SurfaceCanvas& canvas() const { return *m_canvas; }
    /// Does what may end in retire() because of it.
    void deliver(const std::function<void()>& work);
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool take(QEvent& event);
    void flush();

    std::unique_ptr<SurfaceCanvas> m_canvas;
    qint64 m_pointsOfPart = 60'000; // no less than most widgets have
    QList<QRect> m_outdated; ///< parts that are each painted in one go
    int m_delivering = 0;
    bool m_retired = false;
    bool m_appeared = false;
};

} // namespace ambrelle
