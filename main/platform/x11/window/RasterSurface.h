// SPDX-License-Identifier: MIT

#pragma once

#include <QBackingStore>
#include <QWindow>

#include <functional>

class QPainter;

namespace ambrelle {

/// A translucent window that is painted part by part, and as finely as its screen of now: the toolkit's own kind of
/// raster window keeps its number of pixels when only their size changes. It may lose its owner at any time, in the
/// middle of an event too.
class RasterSurface : public QWindow {
    Q_OBJECT
public:
    RasterSurface();

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
    /// Paints what lies in `area`, which is transparent before.
    virtual void paint(QPainter& painter, const QRegion& area) = 0;
    /// Does what may end in retire() because of it.
    void deliver(const std::function<void()>& work);
    bool event(QEvent* event) override;
    void exposeEvent(QExposeEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    bool take(QEvent& event);
    void flush();

    QBackingStore m_store{this};
    double m_storeRatio = 0; ///< pixels per point that the store has; 0 before the first paint
    QRegion m_outdated;
    int m_delivering = 0;
    bool m_retired = false;
    bool m_appeared = false;
};

} // namespace ambrelle
