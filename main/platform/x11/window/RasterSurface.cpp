// SPDX-License-Identifier: MIT

#include "platform/x11/window/RasterSurface.h"

#include "platform/x11/window/PixelGrid.h"

#include <QEvent>
#include <QPainter>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

// Painted at once: what a panel needs at twice the usual pixel ratio. Meanwhile this program and the server hold as
// many.
constexpr int mostPixels = 1 << 19;

// Pixels whose painting costs about as much as one painting more.
constexpr qint64 pixelsOfPart = 40'000;

/// What to paint in one go: all that is outdated, or by itself what lies far apart.
QList<QRect> partsOf(const QRegion& outdated, double pixelRatio)
{
    const auto pixels = [pixelRatio](const QRect& area) {
        return static_cast<qint64>(static_cast<double>(area.width()) * area.height() * pixelRatio * pixelRatio);
    };
    const QRect whole = outdated.boundingRect();
    qint64 spared = pixels(whole);
    for (const QRect& each : outdated)
        spared -= pixels(each);
    if (spared <= pixelsOfPart * (outdated.rectCount() - 1))
        return {whole};
    return {outdated.begin(), outdated.end()};
}

} // namespace

RasterSurface::RasterSurface(X11Parts& parts)
    : m_parts(parts)
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

void RasterSurface::retire()
{
    m_retired = true;
    if (m_delivering == 0) {
        delete this;
        return;
    }
    hide();
    deleteLater();
}

void RasterSurface::deliver(const std::function<void()>& work)
{
    ++m_delivering;
    work();
    --m_delivering;
}

bool RasterSurface::event(QEvent* event)
{
    // Only the event that deletes this object still counts.
    if (m_retired)
        return event->type() == QEvent::DeferredDelete && QWindow::event(event);
    bool taken = false;
    deliver([&] { taken = handle(*event) || take(*event); });
    return taken;
}

bool RasterSurface::take(QEvent& event)
{
    switch (event.type()) {
    case QEvent::UpdateRequest: flush(); return true;
    case QEvent::Paint: // the server has lost what it showed
        m_outdated = QRect({0, 0}, size());
        flush();
        return true;
    default: return QWindow::event(&event);
    }
}

void RasterSurface::exposeEvent(QExposeEvent* event)
{
    QWindow::exposeEvent(event);
    if (isExposed() && !m_appeared)
        Q_EMIT appeared();
    m_appeared = isExposed();
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
    for (const QRect& area : partsOf(std::exchange(m_outdated, QRegion()) & whole, devicePixelRatio()))
        flushArea(area);
}

void RasterSurface::flushArea(const QRect& area)
{
    if (area.isEmpty())
        return;
    const PixelGrid grid(devicePixelRatio());
    const double pixelsOfRow = area.width() * devicePixelRatio() * devicePixelRatio();
    const int rows = std::max(1, static_cast<int>(mostPixels / pixelsOfRow) / grid.step()) * grid.step();
    for (int top = area.top(); top <= area.bottom() && !m_retired; top += rows)
        flushPart(grid, QRect(area.left(), top, area.width(), rows) & area);
}

void RasterSurface::flushPart(const PixelGrid& grid, const QRect& area)
{
    const QSize window = grid.pixels(QRect({0, 0}, size())).size();
    const QRect part = grid.pixels(area);
    QImage image = m_parts.compositor.isActive() ? m_parts.buffer.blank(window, part)
                                                 : m_parts.picture.ground(m_parts.buffer, nativeCorner(), window, part);
    if (image.isNull())
        return;
    image.setDevicePixelRatio(devicePixelRatio());
    QPainter painter(&image);
    painter.setClipRect(grid.points(part));
    paint(painter, area);
    painter.end();
    m_parts.buffer.show(image, part, static_cast<xcb_window_t>(winId()));
}

} // namespace ambrelle
