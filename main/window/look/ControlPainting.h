// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>
#include <QPen>
#include <QStyle>

class QPainter;
class QStyleOption;
class QStyleOptionComboBox;
class QStyleOptionSlider;
class QStyleOptionSpinBox;

namespace ambrelle {

/// What lies behind the text of a control.
struct ControlPlate {
    const QStyleOption& option;
    const QWidget* widget = nullptr;
    QColor fill; ///< invalid: nothing until the pointer is over it
    QColor ink; ///< what is mixed into it under the pointer and while pressed
    bool hasEdge = true;
    bool followsPointer = true;
};

void drawPlate(QPainter& painter, const ControlPlate& plate);
void paintSymbol(QPainter& painter, const QRectF& area, const QString& name, const QColor& ink);
/// The line within a picture's round edge, by which a pale one is told from the ground. `hover`: from 0 to 1.
QPen pictureEdge(double pixelRatio, double hover = 0);
void paintPictureEdge(QPainter& painter, const QRectF& area, double corner, double hover = 0);

void drawSwitch(QPainter& painter, const QStyleOption& option, const QWidget* widget);
void drawSlider(QPainter& painter, const QStyle& style, const QStyleOptionSlider& option, const QWidget* widget);
void drawComboBox(QPainter& painter, const QStyle& style, const QStyleOptionComboBox& option, const QWidget* widget);
void drawSpinBox(QPainter& painter, const QStyle& style, const QStyleOptionSpinBox& option, const QWidget* widget);
void drawScrollBar(QPainter& painter, const QStyle& style, const QStyleOptionSlider& option, const QWidget* widget);

QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part);
QRect spinBoxPart(const QStyleOptionSpinBox& box, QStyle::SubControl part);

namespace controls {
constexpr int switchWidth = 38;
constexpr int switchHeight = 22;
constexpr int handleSize = 16; // of a slider
constexpr int scrollExtent = 11;
} // namespace controls

} // namespace ambrelle
