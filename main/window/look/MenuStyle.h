// SPDX-License-Identifier: MIT

#pragma once

#include <QProxyStyle>

class QStyleOptionMenuItem;

namespace ambrelle {

/// How the program's menus look: airy lines with columns for check marks and symbols, the chosen one on a rounded plate
/// in the accent colour, light or dark as the palette says.
class MenuStyle final : public QProxyStyle {
public:
    static QStyle* shared();

    int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
    QSize sizeFromContents(
        ContentsType type, const QStyleOption* option, const QSize& size, const QWidget* widget) const override;
    void drawControl(
        ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;
    void drawPrimitive(
        PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const override;

private:
    explicit MenuStyle(QObject* parent);
};

} // namespace ambrelle
