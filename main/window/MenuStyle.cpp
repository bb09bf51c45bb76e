#include "window/MenuStyle.h"

#include "drawing/Colours.h"
#include "drawing/Symbols.h"

#include <QApplication>
#include <QPainter>
#include <QStyleOption>

namespace ambrelle {

namespace {

constexpr double lineStrength = 0.25; // between ground and text
constexpr double markSize = 16;
constexpr float plateStrength = 0.35F;
constexpr double plateCorner = 4;

void drawLine(QPainter& painter, const QStyleOption& option)
{
    const QPalette& colours = option.palette;
    painter.setPen(blended(colours.color(QPalette::Window), colours.color(QPalette::WindowText), lineStrength));
    painter.drawRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5));
}

void drawMark(QPainter& painter, const QStyleOption& option)
{
    if (!option.state.testFlag(QStyle::State_On))
        return;
    painter.translate(QRectF(option.rect).center() - QPointF(markSize, markSize) / 2);
    painter.scale(markSize, markSize);
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    painter.fillPath(symbolPath(QStringLiteral("checkmark")),
        option.palette.color(chosen ? QPalette::HighlightedText : QPalette::WindowText));
}

void drawPlate(QPainter& painter, const QStyleOption& option)
{
    QColor accent = option.palette.color(QPalette::Highlight);
    painter.setPen(accent);
    accent.setAlphaF(plateStrength);
    painter.setBrush(accent);
    painter.drawRoundedRect(QRectF(option.rect).adjusted(0.5, 0.5, -0.5, -0.5), plateCorner, plateCorner);
}

} // namespace

MenuStyle::MenuStyle(QObject* parent)
    : QProxyStyle(QStringLiteral("fusion"))
{
    setParent(parent);
}

QStyle* MenuStyle::shared()
{
    static auto* style = new MenuStyle(qApp);
    return style;
}

void MenuStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    switch (element) {
    case PE_PanelMenu:
        QProxyStyle::drawPrimitive(element, option, painter, widget);
        drawLine(*painter, *option);
        break;
    case PE_IndicatorCheckBox: drawMark(*painter, *option); break;
    case PE_PanelButtonCommand: drawPlate(*painter, *option); break;
    default: QProxyStyle::drawPrimitive(element, option, painter, widget);
    }
    painter->restore();
}

} // namespace ambrelle
