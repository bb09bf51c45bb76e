// SPDX-License-Identifier: MIT

#pragma once

#include "platform/WindowHost.h"

#include <QColor>
#include <QPainter>

#include <functional>

namespace ambrelle::test {

inline constexpr QRgb faceColour = 0xFFE04020;
inline constexpr double margin = 20; ///< of the face in its window, points

/// A face of one colour in the middle of its window, and a record of what it heard.
class PlainFace : public PanelDelegate {
public:
    void paint(QPainter& painter, const QRectF& area) override
    {
        painted.append(area);
        painter.fillRect(face, colour);
    }
    void pointerPressed(const PointerEvent& event) override { pressed.append(event); }
    void pointerMoved(const PointerEvent& event) override { moved.append(event); }
    void pointerReleased(const PointerEvent& event) override
    {
        released.append(event);
        if (onRelease)
            onRelease();
    }
    void pointerEntered() override { inside = true; }
    void pointerLeft() override { inside = false; }
    void appearanceChanged() override { ++changes; }

    QRectF face;
    QColor colour = QColor::fromRgb(faceColour);
    QList<QRectF> painted;
    QList<PointerEvent> pressed;
    QList<PointerEvent> moved;
    QList<PointerEvent> released;
    bool inside = false;
    int changes = 0;
    std::function<void()> onRelease;
};

} // namespace ambrelle::test
