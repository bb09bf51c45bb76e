#pragma once

#include <QBackingStore>
#include <QWindow>

class QPainter;

namespace ambrelle {

/// A translucent window that is painted part by part, and as finely as its screen of now: the toolkit's own kind of
/// raster window keeps its number of pixels when only their size changes.
class RasterSurface : public QWindow {
    Q_OBJECT
public:
    RasterSurface();

    void update(const QRect& area); ///< asks for a paint of those points
    void updateAll();

protected:
    /// Paints what lies in `area`, which is transparent before.
    virtual void paint(QPainter& painter, const QRegion& area) = 0;
    bool event(QEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    void flush();

    QBackingStore m_store{this};
    double m_storeRatio = 0; ///< pixels per point that the store has; 0 before the first paint
    QRegion m_outdated;
};

} // namespace ambrelle
