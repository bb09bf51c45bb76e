// SPDX-License-Identifier: MIT

#pragma once

#include <QPalette>
#include <QProxyStyle>

namespace ambrelle {

/// How the controls of the program's own windows look: flat, with round corners and a ring around what has the focus,
/// in the colours of the palette. Everything else is the toolkit's plain style.
class WindowStyle final : public QProxyStyle {
    Q_OBJECT
public:
    WindowStyle();

    static void apply(); ///< to all windows, once and for all

    static QColor edge(const QPalette& palette); ///< lines around and between things
    static QColor track(const QPalette& palette); ///< the ground of what slides
    static void drawRing(QPainter& painter, const QRectF& around, double corner, const QPalette& palette);

    static constexpr double corner = 7; ///< of controls, points
    static constexpr int controlHeight = 28;

    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
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
};

} // namespace ambrelle
