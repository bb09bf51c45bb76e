// SPDX-License-Identifier: MIT

#include "platform/toolkit/BackdropSurface.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

BackdropSurface::BackdropSurface(BackdropDelegate& delegate, std::unique_ptr<SurfaceCanvas> canvas)
    : RasterSurface(std::move(canvas))
    , m_delegate(delegate)
{
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint);
    // Of several backdrops that appear together the last would get the focus; it is asked for expressly instead.
    setProperty("_q_showWithoutActivating", true);
    setTitle(u"Ambrelle"_s);
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
    paintOn(painter);
}

void BackdropSurface::paintOn(QPainter& painter) const
{
    painter.setRenderHint(QPainter::Antialiasing);
    m_delegate.paint(painter, QSizeF(size()));
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
