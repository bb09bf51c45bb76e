#include "platform/x11/BackdropSurface.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace ambrelle {

BackdropSurface::BackdropSurface(BackdropDelegate& delegate, X11Parts& parts)
    : m_delegate(&delegate)
    , m_ground(parts)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    // Of several backdrops that appear together the last would get the focus; it is asked for expressly instead.
    setProperty("_q_showWithoutActivating", true);
    setTitle(QStringLiteral("Ambrelle"));
}

void BackdropSurface::retire()
{
    m_delegate = nullptr;
    if (m_delivering == 0) {
        delete this;
        return;
    }
    hide();
    deleteLater();
}

void BackdropSurface::groundChanged()
{
    m_ground.forget();
    updateAll();
}

bool BackdropSurface::event(QEvent* event)
{
    // Once retired, also the event that deletes this object comes by.
    if (!m_delegate)
        return RasterSurface::event(event);
    ++m_delivering;
    bool handled = true;
    if (event->type() == QEvent::Close) {
        event->ignore();
        m_delegate->closeRequested();
    } else {
        handled = RasterSurface::event(event);
    }
    --m_delivering;
    return handled;
}

void BackdropSurface::exposeEvent(QExposeEvent* event)
{
    RasterSurface::exposeEvent(event);
    if (isExposed() && !m_appeared)
        Q_EMIT appeared();
    m_appeared = isExposed();
}

void BackdropSurface::paint(QPainter& painter, const QRegion&)
{
    if (!m_delegate)
        return;
    m_ground.draw(painter, nativePlace(), devicePixelRatio());
    painter.setRenderHint(QPainter::Antialiasing);
    m_delegate->paint(painter, QSizeF(size()));
}

QRect BackdropSurface::nativePlace() const
{
    // A screen keeps its native place under scaling, and the backdrop starts in its corner.
    return {screen()->geometry().topLeft(), (QSizeF(size()) * devicePixelRatio()).toSize()};
}

void BackdropSurface::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = true;
}

/// Only with the release, so that no half of a click reaches the window below.
void BackdropSurface::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(m_pressed, false) && m_delegate)
        m_delegate->clicked();
}

void BackdropSurface::keyPressEvent(QKeyEvent* event)
{
    if (m_delegate)
        m_delegate->keyPressed(static_cast<Qt::Key>(event->key()));
}

} // namespace ambrelle
