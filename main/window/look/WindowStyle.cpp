// SPDX-License-Identifier: MIT

#include "window/look/WindowStyle.h"

#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/look/FocusRing.h"
#include "window/look/SymbolIcon.h"

#include <QAbstractButton>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QFocusFrame>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int entryMargin = 7; // left and right of the text in a field
constexpr int leastHit = 28; // of what can be clicked
constexpr int rowHeight = 26; // of lists
constexpr int smallSymbol = 16; // in fields and drop-downs
constexpr int boxMargin = 4; // the same in a box, beside the toolkit's own

/// Whether it draws the mark of the focus itself, or has the ring around it.
bool marksItself(const QWidget* widget)
{
    return qobject_cast<const QAbstractButton*>(widget) || qobject_cast<const QComboBox*>(widget);
}

} // namespace

WindowStyle::WindowStyle()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
{
}

void WindowStyle::apply()
{
    if (qobject_cast<WindowStyle*>(QApplication::style()))
        return;
    QApplication::setStyle(new WindowStyle);
    FocusRing::shared();
}

void WindowStyle::drawRing(QPainter& painter, const QRectF& around, double corner, const QColor& colour)
{
    const double width = AppLook::shared().ringWidth();
    const double outset = width / 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(colour, width));
    painter.drawRoundedRect(around.adjusted(-outset, -outset, outset, outset), corner + outset, corner + outset);
}

void WindowStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    const AppColours& colours = AppLook::shared().colours();
    switch (element) {
    case PE_PanelButtonCommand: drawPlate(*painter, {*option, widget, colours.button, colours.text}); return;
    case PE_PanelButtonTool: drawPlate(*painter, {*option, widget, {}, colours.text, false}); return;
    case PE_PanelLineEdit: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (!frame || frame->lineWidth <= 0)
            return; // inside another control, which draws the plate
        QStyleOptionFrame plate(*frame);
        plate.state &= ~State_Sunken;
        drawPlate(*painter,
            {.option = plate, .widget = widget, .fill = colours.field, .ink = colours.text, .followsPointer = false});
        return;
    }
    case PE_PanelTipLabel:
        painter->setPen(QPen(colours.edge, 1));
        painter->setBrush(colours.surface);
        painter->drawRect(QRectF(option->rect).adjusted(0.5, 0.5, -0.5, -0.5));
        return;
    case PE_IndicatorCheckBox: drawSwitch(*painter, *option, widget); return;
    case PE_FrameFocusRect:
        if (!marksItself(widget))
            break;
        return;
    default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void WindowStyle::drawControl(
    ControlElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    if (element == CE_FocusFrame)
        drawFocusFrame(*option, *painter, widget);
    else
        QProxyStyle::drawControl(element, option, painter, widget);
}

void WindowStyle::drawFocusFrame(const QStyleOption& option, QPainter& painter, const QWidget* widget) const
{
    const auto* frame = qobject_cast<const QFocusFrame*>(widget);
    const QWidget* control = frame ? frame->widget() : nullptr;
    if (!control)
        return;
    const int reach = FocusRing::reach();
    QRectF around = QRectF(option.rect).adjusted(reach, reach, -reach, -reach);
    double round = corner;
    if (const auto* box = qobject_cast<const QCheckBox*>(control)) {
        QStyleOptionButton button;
        button.initFrom(box);
        QRectF track(0, 0, controls::switchWidth, controls::switchHeight);
        track.moveCenter(QRectF(subElementRect(SE_CheckBoxIndicator, &button, box)).center() + around.topLeft());
        around = track;
        round = track.height() / 2;
    }
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    const double gap = reach - AppLook::shared().ringWidth();
    drawRing(painter, around.adjusted(-gap, -gap, gap, gap), round + gap, option.palette.color(QPalette::Highlight));
    painter.restore();
}

void WindowStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        control == CC_Slider && slider && slider->orientation == Qt::Horizontal)
        drawSlider(*painter, *this, *slider, widget);
    else if (slider && control == CC_ScrollBar)
        drawScrollBar(*painter, *this, *slider, widget);
    else if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option); control == CC_ComboBox && box)
        drawComboBox(*painter, *this, *box, widget);
    else if (const auto* number = qstyleoption_cast<const QStyleOptionSpinBox*>(option);
             control == CC_SpinBox && number)
        drawSpinBox(*painter, *this, *number, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QSize WindowStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_ComboBox)
        size.rwidth() += 2 * boxMargin;
    if (type == CT_ComboBox || type == CT_LineEdit || type == CT_PushButton || type == CT_SpinBox)
        size.setHeight(std::max(option->fontMetrics.height() + 2 * verticalPadding, controlHeight));
    else if (type == CT_CheckBox)
        size.setHeight(std::max(size.height(), leastHit));
    else if (type == CT_ItemViewItem)
        size.setHeight(std::max(size.height(), rowHeight));
    return size;
}

QRect WindowStyle::subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const
{
    const QRect rect = QProxyStyle::subElementRect(element, option, widget);
    const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (element == SE_LineEditContents && frame && frame->lineWidth > 0)
        return rect.adjusted(entryMargin, 0, -entryMargin, 0);
    if (element == SE_CheckBoxClickRect) {
        const int reach = (leastHit - controls::switchHeight) / 2;
        return rect.united(proxy()->subElementRect(SE_CheckBoxIndicator, option, widget))
            .adjusted(-reach, -reach, reach, reach);
    }
    return rect;
}

QRect WindowStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option); bar && control == CC_ScrollBar)
        return scrollBarPart(*bar, part);
    if (const auto* box = qstyleoption_cast<const QStyleOptionSpinBox*>(option); box && control == CC_SpinBox)
        return spinBoxPart(*box, part);
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    const bool mirrored = option->direction == Qt::RightToLeft;
    if (control == CC_ComboBox && part == SC_ComboBoxEditField)
        return rect.translated(mirrored ? -boxMargin : boxMargin, 0);
    if (control == CC_ComboBox && part == SC_ComboBoxArrow)
        return rect.translated(mirrored ? boxMargin : -boxMargin, 0);
    return rect;
}

int WindowStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth: return controls::switchWidth;
    case PM_IndicatorHeight: return controls::switchHeight;
    case PM_SliderThickness:
    case PM_SliderControlThickness: return controls::handleSize + 2; // the ring's edge is soft
    case PM_SliderLength: return controls::handleSize;
    case PM_ScrollBarExtent: return controls::scrollExtent;
    case PM_FocusFrameHMargin:
    case PM_FocusFrameVMargin: return FocusRing::reach();
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical: return 0;
    case PM_ToolTipLabelFrameWidth: return boxMargin;
    case PM_SmallIconSize:
    case PM_LineEditIconSize: return AppLook::shared().scaled(smallSymbol);
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int WindowStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_FocusFrame_AboveWidget: return 1; // not clipped by what has the control in it
    case SH_FocusFrame_Mask: return 0;
    case SH_ToolTipLabel_Opacity: return 255;
    case SH_ComboBox_Popup: return 0; // a list below the field, which scrolls
    case SH_Slider_AbsoluteSetButtons: return Qt::LeftButton;
    case SH_EtchDisabledText:
    case SH_ComboBox_AllowWheelScrolling: return 0;
    default: return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

QIcon WindowStyle::standardIcon(StandardPixmap icon, const QStyleOption* option, const QWidget* widget) const
{
    if (icon == SP_LineEditClearButton)
        return symbolIcon(u"xmark.circle.fill"_s);
    return QProxyStyle::standardIcon(icon, option, widget);
}

} // namespace ambrelle
