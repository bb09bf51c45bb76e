// SPDX-License-Identifier: MIT

#pragma once

#include <QPointF>

#include <optional>

namespace ambrelle {

/// Tells a drag from a click. Points, in any coordinates that do not move with what is dragged.
class DragGesture {
public:
    static constexpr double threshold = 3; ///< distance from the press up to which a press is still a click

    enum class Outcome { none, click, drag };
    struct Step {
        QPointF by; ///< from the press
        bool began = false; ///< the press has just become a drag: a click under the pointer is called off
    };

    void press(QPointF pointer);
    /// Nothing while no button is held or the press is still a click.
    std::optional<Step> move(QPointF pointer);
    Outcome release();
    void cancel() { *this = {}; }

    bool isPressed() const { return m_start.has_value(); }
    bool isDragging() const { return m_dragging; }

private:
    std::optional<QPointF> m_start;
    bool m_dragging = false;
};

} // namespace ambrelle
