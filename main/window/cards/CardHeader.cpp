// SPDX-License-Identifier: MIT

#include "window/cards/CardHeader.h"

#include <QAbstractScrollArea>
#include <QCoreApplication>
#include <QEvent>
#include <QWheelEvent>

#include <algorithm>

namespace ambrelle {

CardHeader::CardHeader(QWidget* view)
    : QWidget(view->parentWidget() ? view->parentWidget() : view)
    , m_view(view)
{
    hide();
    view->installEventFilter(this);
}

CardHeader::~CardHeader()
{
    if (m_contents)
        m_contents->disconnect(this); // they end with the base, when there is nobody left to tell
}

void CardHeader::setContents(QWidget* contents)
{
    if (contents == m_contents)
        return;
    delete m_contents;
    m_contents = contents;
    if (contents) {
        const bool hidden = contents->testAttribute(Qt::WA_WState_ExplicitShowHide) && contents->isHidden();
        contents->setParent(this);
        contents->setVisible(!hidden);
        contents->installEventFilter(this);
        connect(contents, &QObject::destroyed, this, &CardHeader::resized);
    }
    Q_EMIT resized();
}

int CardHeader::heightFor(int width) const
{
    if (!m_contents || m_contents->isHidden())
        return 0;
    const int wanted =
        m_contents->hasHeightForWidth() ? m_contents->heightForWidth(width) : m_contents->sizeHint().height();
    return std::clamp(wanted, m_contents->minimumHeight(), m_contents->maximumHeight()) + gapBelow;
}

void CardHeader::place(int left, int top, int width, int floor, int scrolled)
{
    const int height = heightFor(width) - (m_contents && !m_contents->isHidden() ? gapBelow : 0);
    const int seen = std::min(height - scrolled, floor);
    if (height <= 0 || seen <= 0 || !m_view->isVisibleTo(parentWidget())) {
        hide();
        return;
    }
    const QPoint corner = m_view->parentWidget() == parentWidget() ? m_view->pos() : QPoint();
    setGeometry(QRect(corner + QPoint(left, top), QSize(width, seen)));
    m_contents->setGeometry(0, -scrolled, width, height);
    show();
    raise();
}

bool CardHeader::eventFilter(QObject* watched, QEvent* event)
{
    switch (event->type()) {
    case QEvent::ParentChange:
        if (watched == m_view && m_view->parentWidget())
            setParent(m_view->parentWidget());
        [[fallthrough]];
    case QEvent::Move:
        if (watched == m_contents)
            break;
        [[fallthrough]];
    case QEvent::ShowToParent:
    case QEvent::HideToParent:
    case QEvent::LayoutRequest: Q_EMIT resized(); break;
    default: break;
    }
    return false;
}

void CardHeader::wheelEvent(QWheelEvent* event)
{
    if (auto* area = qobject_cast<QAbstractScrollArea*>(m_view))
        QCoreApplication::sendEvent(area->viewport(), event);
}

} // namespace ambrelle
