// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

namespace ambrelle {

/// How the controls of the program's own windows look: flat, with round corners, in the colours of `AppLook`, and a
/// ring around what the keyboard moved the focus to. Everything else is the toolkit's plain style.
class WindowStyle final : public QProxyStyle {
    Q_OBJECT
public:
    WindowStyle();

    static void apply(); ///< to all windows, once and for all

    /// As what has the focus is marked; `around` is inside the line.
    static void drawRing(QPainter& painter, const QRectF& around, double corner, const QColor& colour);

    static constexpr double corner = 8; ///< of controls, points
    static constexpr int controlHeight = 30; ///< at least
    static constexpr int verticalPadding = 6; ///< above and below the text of a control

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
        const QWidget* widget) const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const override;
    QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
    QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
        const QWidget* widget) const override;
    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    int styleHint(
        StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returnData) const override;
    QIcon standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const override;

private:
    void drawFocusFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const;
};

} // namespace ambrelle
