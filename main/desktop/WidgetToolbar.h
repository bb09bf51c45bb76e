// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QRectF>
#include <QString>

#include <optional>
#include <span>

class QPainter;

namespace ambrelle {

/// The strip of buttons above a widget: its layout, its look and which button the pointer is on. Window points, y down.
class WidgetToolbar {
public:
    enum class Button { settings, scale, pin, remove };

    struct State {
        QString scaleTitle;
        bool pinned = false;

        bool operator==(const State&) const = default;
    };

    /// An opaque one hides what lies below it.
    void setArea(const QRectF& area, bool opaque = false)
    {
        m_area = area;
        m_opaque = opaque;
    }
    const QRectF& area() const { return m_area; }
    void setState(const State& state) { m_state = state; }
    const State& state() const { return m_state; }

    std::optional<Button> buttonAt(QPointF point) const;
    QRectF buttonArea(Button button) const;
    QString buttonName(Button button) const;
    static std::span<const Button> buttons(); ///< from left to right

    /// Each is true when the toolbar looks different now. `point` is none when the pointer is elsewhere.
    bool hover(std::optional<QPointF> point);
    bool press(QPointF point);
    /// Ends a press; the button that was pressed and released, none when the pointer left it in between.
    std::optional<Button> release(QPointF point);
    bool cancelPress();

    void paint(QPainter& painter) const;

private:
    void paintButton(QPainter& painter, Button button) const;

    QRectF m_area;
    bool m_opaque = false;
    State m_state;
    std::optional<Button> m_hovered;
    std::optional<Button> m_pressed;
};

} // namespace ambrelle
