// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

#include <QColor>

namespace ambrelle {

/// Thin lines on the desktop that show what a dragged widget is in line with. The pointer passes through them.
class DragGuides {
public:
    explicit DragGuides(WindowHost& host);
    ~DragGuides();
    Q_DISABLE_COPY_MOVE(DragGuides)

    /// Shows these lines (global points) and no others, at the level and in the accent of the dragged widget.
    void show(const QList<QRectF>& lines, WindowLevel level, const QColor& accent);
    void clear(); ///< no window is left

private:
    class Line;

    WindowHost& m_host;
    std::vector<std::unique_ptr<Line>> m_lines; // kept hidden while fewer are needed
};

} // namespace ambrelle
