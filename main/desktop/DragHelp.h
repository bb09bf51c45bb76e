// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/DragGuides.h"
#include "placement/AlignmentHelp.h"

namespace ambrelle {

class WidgetController;

/// Helps to put a dragged widget in line with the others, and shows the guides for it.
class DragHelp {
public:
    /// `widgets` are all those on the desktop, whichever there are at the time.
    DragHelp(WindowHost& host, const QList<WidgetController*>& widgets);

    /// The origin for a widget dragged to `wanted` (global points). A modifier key held down switches the help off.
    QPointF place(const WidgetController& dragged, const QRectF& wanted, Qt::KeyboardModifiers modifiers);
    void ended() { m_guides.clear(); }

private:
    WindowHost& m_host;
    const QList<WidgetController*>& m_widgets;
    DragGuides m_guides;
};

} // namespace ambrelle
