// SPDX-License-Identifier: MIT

#include "desktop/DragHelp.h"

#include "desktop/WidgetController.h"

namespace ambrelle {

namespace {

constexpr Qt::KeyboardModifiers freeHand = Qt::ShiftModifier | Qt::ControlModifier | Qt::AltModifier;

} // namespace

DragHelp::DragHelp(WindowHost& host, const QList<WidgetController*>& widgets)
    : m_host(host)
    , m_widgets(widgets)
    , m_guides(host)
{
}

QPointF DragHelp::place(const WidgetController& dragged, const QRectF& wanted, Qt::KeyboardModifiers modifiers)
{
    AlignmentHelp::Result result{wanted.topLeft(), {}};
    if (!(modifiers & freeHand)) {
        QList<QRectF> neighbours;
        for (const WidgetController* widget : m_widgets) {
            if (widget != &dragged)
                neighbours.append(widget->widgetFrame());
        }
        result = AlignmentHelp(neighbours, m_host.screens()).align(wanted);
    }
    m_guides.show(result.guides, dragged.level(), dragged.accent());
    return result.origin;
}

} // namespace ambrelle
