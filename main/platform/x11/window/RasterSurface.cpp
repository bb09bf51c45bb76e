// SPDX-License-Identifier: MIT

#include "platform/x11/window/RasterSurface.h"

#include "platform/x11/window/PixelGrid.h"

#include <QPainter>
#include <QPaintEvent>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

// Painted at once: what a panel needs at twice the usual pixel ratio. Meanwhile this program and the server hold as
// many.
constexpr int mostPixels = 1 << 19;

// Points whose painting costs about as much as one painting more.
constexpr qint64 pointsOfPart = 60'000; // no less than most widgets have

qint64 areaOf(const QRect& rect)
{
    return static_cast<qint64>(rect.width()) * rect.height();
}

/// Whether both are painted sooner in one go than one after the other.
bool belongTogether(const QRect& one, const QRect& other)
{
    return areaOf(one | other) - areaOf(one) - areaOf(other) < pointsOfPart;
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
    if (area.isEmpty())
        return;
    QRect part = area;
    const auto near = [&part](const QRect& other) { return belongTogether(part, other); };
    for (auto other = std::ranges::find_if(m_outdated, near); other != m_outdated.end();
         other = std::ranges::find_if(m_outdated, near)) {
        part |= *other;
        m_outdated.erase(other);
    }
    m_outdated.append(part);
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
    case QEvent::Paint: // the server has lost what it showed there
        for (const QRect& part : static_cast<QPaintEvent&>(event).region())
            update(part);
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
    for (const QRect& part : std::exchange(m_outdated, {})) {
        if (!m_retired)
            flushArea(part & whole);
    }
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
    const QRect part = grid.pixels(area);
    QImage image = m_parts.compositor.isActive()
        ? m_parts.buffer.blank(part.size())
        : m_parts.picture.ground(m_parts.buffer, part.translated(nativeCorner()));
    if (image.isNull())
        return;
    image.setDevicePixelRatio(devicePixelRatio());
    QPainter painter(&image);
    painter.translate(-grid.points(part).topLeft());
    painter.setClipRect(grid.points(part));
    paint(painter, area);
    painter.end();
    m_parts.buffer.show(image, part.topLeft(), static_cast<xcb_window_t>(winId()));
}

} // namespace ambrelle
