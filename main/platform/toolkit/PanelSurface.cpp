// SPDX-License-Identifier: MIT

#include "platform/toolkit/PanelSurface.h"

#include "platform/toolkit/PanelAccess.h"
#include "platform/toolkit/PixelGrid.h"
#include "platform/toolkit/ScreenList.h"

#include <QMouseEvent>
#include <QPainter>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

PanelSurface::PanelSurface(PanelDelegate& delegate, const ScreenList& screens, std::unique_ptr<SurfaceCanvas> canvas)
    : RasterSurface(std::move(canvas))
    , m_delegate(delegate)
    , m_screens(screens)
    , m_pixelRatio(pixelRatio())
{
    setFlags(Qt::Window | Qt::FramelessWindowHint | Qt::WindowDoesNotAcceptFocus | Qt::NoDropShadowWindowHint);
    // The toolkit's own name for mapping a window with user time 0, which keeps the focus where it is.
    setProperty("_q_showWithoutActivating", true);
    setTitle(u"Ambrelle"_s);
    connect(this, &QWindow::screenChanged, this, &PanelSurface::checkPixelRatio);
}

PanelSurface::~PanelSurface()
{
    if (m_access)
        QAccessible::deleteAccessibleInterface(QAccessible::uniqueId(m_access));
}

void PanelSurface::moveTo(const QRect& geometry)
{
    m_place = geometry.topLeft();
    if (geometry != this->geometry())
        setGeometry(geometry);
}

void PanelSurface::repaint(const QRectF& area)
{
    const QRect wanted = PixelGrid(m_pixelRatio).covering(area) & QRect({0, 0}, size());
    if (!wanted.isEmpty())
        update(wanted);
}

void PanelSurface::groundChanged()
{
    updateAll();
    if (!isRetired())
        m_delegate.appearanceChanged();
}

void PanelSurface::groundShaded()
{
    updateAll();
}

void PanelSurface::namesChanged()
{
    if (m_access)
        m_access->tellNewNames();
}

void PanelSurface::pressButton(qsizetype index)
{
    if (!isRetired())
        deliver([&] { m_delegate.pressButton(index); });
}

QAccessibleInterface* PanelSurface::accessibleRoot() const
{
    if (isRetired() || m_delegate.accessibleName().isEmpty())
        return nullptr;
    return QAccessible::queryAccessibleInterface(const_cast<PanelSurface*>(this));
}

bool PanelSurface::handle(QEvent& event)
{
    switch (event.type()) {
    case QEvent::Enter: m_delegate.pointerEntered(); return true;
    case QEvent::Leave: m_delegate.pointerLeft(); return true;
    case QEvent::Close: event.ignore(); return true; // a task bar may ask; panels go when their widget goes
    default: return false;
    }
}

void PanelSurface::paint(QPainter& painter, const QRect& area)
{
    checkPixelRatio();
    painter.setRenderHint(QPainter::Antialiasing);
    m_delegate.paint(painter, area);
}

void PanelSurface::moveEvent(QMoveEvent* event)
{
    RasterSurface::moveEvent(event);
    m_place = event->pos();
    if (canvas().showsGround())
        updateAll();
}

void PanelSurface::mousePressEvent(QMouseEvent* event)
{
    Q_EMIT pressed();
    setHeld(true);
    m_delegate.pointerPressed(pointerEvent(*event));
}

void PanelSurface::mouseMoveEvent(QMouseEvent* event)
{
    PointerEvent moved = pointerEvent(*event);
    for (const Qt::MouseButton held : {Qt::MiddleButton, Qt::RightButton, Qt::LeftButton}) {
        if (event->buttons().testFlag(held))
            moved.button = held;
    }
    setHeld(event->buttons() != Qt::NoButton);
    m_delegate.pointerMoved(moved);
}

void PanelSurface::mouseReleaseEvent(QMouseEvent* event)
{
    m_delegate.pointerReleased(pointerEvent(*event));
    setHeld(event->buttons() != Qt::NoButton);
}

void PanelSurface::setHeld(bool held)
{
    if (std::exchange(m_held, held) && !held && !isRetired())
        Q_EMIT released();
}

void PanelSurface::letGo()
{
    if (!m_held || isRetired())
        return;
    deliver([this] {
        m_delegate.pointerMoved({m_pointer - QPointF(m_place), m_screens.space().turned(m_pointer)});
        setHeld(false);
    });
}

void PanelSurface::checkPixelRatio()
{
    if (m_pixelRatio == pixelRatio())
        return;
    m_pixelRatio = pixelRatio();
    // Painting may have found it out, and must not be asked to change the window meanwhile.
    QMetaObject::invokeMethod(
        this,
        [this] {
            Q_EMIT pixelRatioChanged();
            groundChanged();
        },
        Qt::QueuedConnection);
}

PointerEvent PanelSurface::pointerEvent(const QMouseEvent& event)
{
    m_pointer = event.globalPosition();
    return {event.position(), m_screens.space().turned(event.globalPosition()), event.button(), event.modifiers()};
}

} // namespace ambrelle
