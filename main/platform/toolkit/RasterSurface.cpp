// SPDX-License-Identifier: MIT

#include "platform/toolkit/RasterSurface.h"

#include <QPainter>
#include <QPaintEvent>
#include <QScreen>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

qint64 areaOf(const QRect& rect)
{
    return static_cast<qint64>(rect.width()) * rect.height();
}

/// Of the points around both that belong to neither.
qint64 wastedBy(const QRect& one, const QRect& other)
{
    return areaOf(one | other) - areaOf(one) - areaOf(other);
}

} // namespace

RasterSurface::RasterSurface(std::unique_ptr<SurfaceCanvas> canvas)
    : m_canvas(std::move(canvas))
{
    setSurfaceType(QSurface::RasterSurface);
    QSurfaceFormat pixels = format();
    pixels.setAlphaBufferSize(m_canvas->isTranslucent() ? 8 : 0);
    setFormat(pixels);
}

double RasterSurface::pixelRatio() const
{
    return screen() ? screen()->devicePixelRatio() : 1;
}

void RasterSurface::update(const QRect& area)
{
    if (area.isEmpty())
        return;
    QRect part = area;
    const auto near = [&](const QRect& other) { return wastedBy(part, other) < m_pointsOfPart; };
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
    QList<QRect> parts;
    for (const QRect& part : std::exchange(m_outdated, {})) {
        if (const QRect visible = part & whole; !visible.isEmpty())
            parts.append(visible);
    }
    if (parts.isEmpty() || m_retired)
        return;
    m_canvas->paint(*this, parts, [this](QPainter& painter, const QRect& area) {
        paint(painter, area);
        return !m_retired;
    });
}

} // namespace ambrelle
