// SPDX-License-Identifier: MIT

#pragma once

#include "platform/x11/window/X11Parts.h"

#include <QList>
#include <QRect>
#include <QWindow>

#include <functional>

class QPainter;

namespace ambrelle {

class PixelGrid;

/// A translucent window that is painted part by part, and as finely as its screen of now, over a copy of the desktop
/// picture where nothing composites. Unlike the toolkit's own kind of raster window it keeps no copy of its pixels. It
/// may lose its owner at any time, in the middle of an event too.
class RasterSurface : public QWindow {
    Q_OBJECT
public:
    explicit RasterSurface(X11Parts& parts);

    /// From now on nothing is painted or handled; deletes the window, after the event that is being delivered if there
    /// is one.
    void retire();
    bool isRetired() const { return m_retired; }

    void update(const QRect& area); ///< asks for a paint of those points
    void updateAll();

Q_SIGNALS:
    void appeared(); ///< on the screen, and in the window manager's care

protected:
    /// Handles an event in an own way; false leaves it to the toolkit.
    virtual bool handle(QEvent& event) = 0;
    /// Paints what lies in `area`, where nothing but the desktop picture has been painted before.
    virtual void paint(QPainter& painter, const QRect& area) = 0;
    /// Where the window lies on the root window, in its pixels.
    virtual QPoint nativeCorner() const = 0;
    /// Does what may end in retire() because of it.
    void deliver(const std::function<void()>& work);
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool take(QEvent& event);
    void flush();
    void flushArea(const QRect& area);
    void flushPart(const PixelGrid& grid, const QRect& area);

    X11Parts& m_parts;
    QList<QRect> m_outdated; ///< parts that are each painted in one go
    int m_delivering = 0;
    bool m_retired = false;
    bool m_appeared = false;
};

} // namespace ambrelle
