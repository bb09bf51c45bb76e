// SPDX-License-Identifier: MIT

#include "platform/x11/window/BackdropSurface.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScreen>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

BackdropSurface::BackdropSurface(BackdropDelegate& delegate, X11Parts& parts)
    : RasterSurface(parts)
    , m_delegate(delegate)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    // Of several backdrops that appear together the last would get the focus; it is asked for expressly instead.
    setProperty("_q_showWithoutActivating", true);
    setTitle(u"Ambrelle"_s);
}

void BackdropSurface::groundChanged()
{
    updateAll();
}

bool BackdropSurface::handle(QEvent& event)
{
    if (event.type() != QEvent::Close)
        return false;
    event.ignore();
    m_delegate.closeRequested();
    return true;
}

void BackdropSurface::paint(QPainter& painter, const QRect&)
{
    painter.setRenderHint(QPainter::Antialiasing);
    m_delegate.paint(painter, QSizeF(size()));
}

void BackdropSurface::shade(QPainter& painter, const QPoint& origin) const
{
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    painter.translate(QPointF(nativeCorner() - origin) / devicePixelRatio());
    m_delegate.paint(painter, QSizeF(size()));
    painter.restore();
}

QPoint BackdropSurface::nativeCorner() const
{
    // A screen keeps its native place under scaling, and the backdrop starts in its corner.
    return screen()->geometry().topLeft();
}

void BackdropSurface::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton)
        m_pressed = true;
}

/// Only with the release, so that no half of a click reaches the window below.
void BackdropSurface::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && std::exchange(m_pressed, false))
        m_delegate.clicked();
}

void BackdropSurface::keyPressEvent(QKeyEvent* event)
{
    m_delegate.keyPressed(static_cast<Qt::Key>(event->key()));
}

} // namespace ambrelle
