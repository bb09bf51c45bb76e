#include "platform/x11/RasterSurface.h"

#include <QEvent>
#include <QPainter>

#include <utility>

namespace ambrelle {

RasterSurface::RasterSurface()
{
    setSurfaceType(QSurface::RasterSurface);
    QSurfaceFormat translucent = format();
    translucent.setAlphaBufferSize(8);
    setFormat(translucent);
}

void RasterSurface::update(const QRect& area)
{
    m_outdated |= area;
    requestUpdate();
}

void RasterSurface::updateAll()
{
    update(QRect({0, 0}, size()));
}

bool RasterSurface::event(QEvent* event)
{
    switch (event->type()) {
    case QEvent::UpdateRequest: flush(); return true;
    case QEvent::Paint: // the server has lost what it showed
        m_outdated = QRect({0, 0}, size());
        flush();
        return true;
    default: return QWindow::event(event);
    }
}

void RasterSurface::resizeEvent(QResizeEvent* event)
{
    QWindow::resizeEvent(event);
    updateAll();
}

void RasterSurface::flush()
{
    const QRect whole({0, 0}, size());
    if (!isExposed() || whole.isEmpty())
        return;
    if (m_store.size() != size() || m_storeRatio != devicePixelRatio()) {
        m_store.resize(size());
        m_storeRatio = devicePixelRatio();
        m_outdated = whole;
    }
    const QRegion area = std::exchange(m_outdated, QRegion()) & whole;
    if (area.isEmpty())
        return;
    m_store.beginPaint(area);
    QPainter painter(m_store.paintDevice());
    painter.setClipRegion(area);
    paint(painter, area);
    painter.end();
    m_store.endPaint();
    m_store.flush(area);
}

} // namespace ambrelle
