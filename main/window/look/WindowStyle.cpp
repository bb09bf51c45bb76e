// SPDX-License-Identifier: MIT

#include "window/look/WindowStyle.h"

#include "drawing/Colours.h"
#include "drawing/Symbols.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDateTimeEdit>
#include <QPainter>
#include <QStyleFactory>
#include <QStyleOption>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double ringWidth = 2;
constexpr int verticalPadding = 4;
constexpr int arrowSize = 16;
constexpr int switchWidth = 36;
constexpr int switchHeight = 20;
constexpr double switchRing = 3; // from the edge to what lies inside
constexpr int entryMargin = 7; // left and right of the text in a field
constexpr int rowHeight = 26; // of lists
constexpr int scrollExtent = 11;
constexpr double scrollInset = 2.5;
constexpr int leastHandle = 28;
constexpr int boxMargin = 4; // the same in a box, beside the toolkit's own
constexpr double grooveHeight = 4;
constexpr int handleSize = 16;

/// Inside the pixels of `area`, so that a line of one point is sharp.
QRectF sharp(const QRectF& area)
{
    return area.adjusted(0.5, 0.5, -0.5, -0.5);
}

class Saved {
public:
    explicit Saved(QPainter& painter)
        : m_painter(painter)
    {
        m_painter.save();
        m_painter.setRenderHint(QPainter::Antialiasing);
    }
    ~Saved() { m_painter.restore(); }
    Q_DISABLE_COPY_MOVE(Saved)

private:
    QPainter& m_painter;
};

void drawPlate(QPainter& painter, const QStyleOption& option, QColor fill)
{
    const Saved saved(painter);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    const QColor edge = WindowStyle::edge(option.palette);
    if (enabled && option.state.testFlag(QStyle::State_MouseOver))
        fill = blended(fill, option.palette.color(QPalette::WindowText), 0.04);
    if (enabled && option.state.testFlag(QStyle::State_Sunken))
        fill = blended(fill, option.palette.color(QPalette::WindowText), 0.1);
    painter.setBrush(fill);
    painter.setPen(QPen(edge, 1));
    painter.drawRoundedRect(sharp(option.rect), WindowStyle::corner, WindowStyle::corner);
    if (enabled && option.state.testFlag(QStyle::State_HasFocus))
        WindowStyle::drawRing(painter, option.rect, WindowStyle::corner, option.palette);
}

void drawSwitch(QPainter& painter, const QStyleOption& option)
{
    const Saved saved(painter);
    const bool on = option.state.testFlag(QStyle::State_On);
    const QPalette& colours = option.palette;
    QRectF track(0, 0, switchWidth, switchHeight);
    track.moveCenter(QRectF(option.rect).center());
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        WindowStyle::drawRing(painter, track, track.height() / 2, colours);
        track.adjust(switchRing, switchRing, -switchRing, -switchRing);
    }
    painter.setBrush(on ? colours.color(QPalette::Highlight) : WindowStyle::track(colours));
    painter.setPen(on ? QPen(Qt::NoPen) : QPen(WindowStyle::edge(colours), 1));
    painter.drawRoundedRect(sharp(track), track.height() / 2, track.height() / 2);
    const double side = track.height() - 2 * switchRing;
    QRectF knob(0, track.top() + switchRing, side, side);
    knob.moveLeft(on ? track.right() - side - switchRing : track.left() + switchRing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(on ? colours.color(QPalette::HighlightedText) : colours.color(QPalette::PlaceholderText));
    painter.drawEllipse(knob);
}

void drawSlider(const QStyle& style, const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget)
{
    const Saved saved(painter);
    const QPalette& colours = option.palette;
    const QRectF handle = style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, widget);
    QRectF groove(option.rect.left(), 0, option.rect.width(), grooveHeight);
    groove.moveCenter({groove.center().x(), QRectF(option.rect).center().y()});
    painter.setPen(Qt::NoPen);
    painter.setBrush(WindowStyle::track(colours));
    painter.drawRoundedRect(groove, grooveHeight / 2, grooveHeight / 2);
    QRectF filled = groove;
    if (option.upsideDown)
        filled.setLeft(handle.center().x());
    else
        filled.setRight(handle.center().x());
    painter.setBrush(colours.color(QPalette::Highlight));
    painter.drawRoundedRect(filled, grooveHeight / 2, grooveHeight / 2);
    QRectF knob(0, 0, handleSize, handleSize);
    knob.moveCenter({handle.center().x(), groove.center().y()});
    painter.setBrush(colours.color(QPalette::Base));
    painter.setPen(QPen(colours.color(QPalette::Highlight), ringWidth));
    painter.drawEllipse(knob.adjusted(1, 1, -1, -1));
    if (option.state.testFlag(QStyle::State_HasFocus)) {
        painter.setBrush(colours.color(QPalette::Highlight));
        painter.drawEllipse(knob.adjusted(4.5, 4.5, -4.5, -4.5));
    }
}

void drawComboBox(const QStyle& style, const QStyleOptionComboBox& option, QPainter& painter, const QWidget* widget)
{
    QStyleOptionComboBox plate = option;
    const bool editable = option.editable;
    if (editable)
        plate.state &= ~QStyle::State_MouseOver;
    plate.state &= ~QStyle::State_Sunken;
    drawPlate(painter, plate, option.palette.color(editable ? QPalette::Base : QPalette::Button));
    const Saved saved(painter);
    QRectF arrow(0, 0, arrowSize, arrowSize);
    arrow.moveCenter(
        QRectF(style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, widget)).center());
    painter.translate(arrow.topLeft());
    painter.scale(arrowSize, arrowSize);
    const bool enabled = option.state.testFlag(QStyle::State_Enabled);
    painter.fillPath(symbolPath(u"chevron.down"_s),
        option.palette.color(enabled ? QPalette::Active : QPalette::Disabled, QPalette::ButtonText));
}

void drawScrollBar(const QStyle& style, const QStyleOptionSlider& option, QPainter& painter, const QWidget* widget)
{
    const Saved saved(painter);
    painter.fillRect(option.rect, option.palette.color(QPalette::Base));
    if (option.minimum == option.maximum)
        return;
    const bool active = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const QRectF handle =
        QRectF(style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, widget))
            .adjusted(scrollInset, scrollInset, -scrollInset, -scrollInset);
    const double handleCorner = std::min(handle.width(), handle.height()) / 2;
    painter.setPen(Qt::NoPen);
    painter.setBrush(faded(option.palette.color(QPalette::Text), active ? 0.55 : 0.35));
    painter.drawRoundedRect(handle, handleCorner, handleCorner);
}

/// No arrows: the handle has the whole length.
QRect scrollBarPart(const QStyleOptionSlider& bar, QStyle::SubControl part)
{
    const bool upright = bar.orientation == Qt::Vertical;
    const int length = upright ? bar.rect.height() : bar.rect.width();
    const int range = bar.maximum - bar.minimum;
    const int handle =
        std::min(length, std::max(leastHandle, length * bar.pageStep / std::max(1, range + bar.pageStep)));
    const int start =
        QStyle::sliderPositionFromValue(bar.minimum, bar.maximum, bar.sliderPosition, length - handle, bar.upsideDown);
    const auto span = [&](int from, int to) {
        const QRect rect =
            upright ? QRect(0, from, bar.rect.width(), to - from) : QRect(from, 0, to - from, bar.rect.height());
        return QStyle::visualRect(bar.direction, bar.rect, rect.translated(bar.rect.topLeft()));
    };
    switch (part) {
    case QStyle::SC_ScrollBarGroove: return bar.rect;
    case QStyle::SC_ScrollBarSlider: return span(start, start + handle);
    case QStyle::SC_ScrollBarSubPage: return span(0, start);
    case QStyle::SC_ScrollBarAddPage: return span(start + handle, length);
    default: return {};
    }
}

} // namespace

WindowStyle::WindowStyle()
    : QProxyStyle(QStyleFactory::create(u"Fusion"_s))
{
}

void WindowStyle::apply()
{
    if (!qobject_cast<WindowStyle*>(QApplication::style()))
        QApplication::setStyle(new WindowStyle);
}

QColor WindowStyle::edge(const QPalette& palette)
{
    return blended(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.18);
}

QColor WindowStyle::track(const QPalette& palette)
{
    return blended(palette.color(QPalette::Window), palette.color(QPalette::WindowText), 0.12);
}

void WindowStyle::drawRing(QPainter& painter, const QRectF& around, double corner, const QPalette& palette)
{
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(palette.color(QPalette::Highlight), ringWidth));
    const double inset = ringWidth / 2;
    painter.drawRoundedRect(around.adjusted(inset, inset, -inset, -inset), corner - inset / 2, corner - inset / 2);
}

void WindowStyle::drawPrimitive(
    PrimitiveElement element, const QStyleOption* option, QPainter* painter, const QWidget* widget) const
{
    switch (element) {
    case PE_PanelButtonCommand: drawPlate(*painter, *option, option->palette.color(QPalette::Button)); return;
    case PE_PanelLineEdit: {
        const auto* frame = qstyleoption_cast<const QStyleOptionFrame*>(option);
        if (!frame || frame->lineWidth <= 0)
            return; // inside another control, which draws the plate
        QStyleOptionFrame plate(*frame);
        plate.state &= ~(State_Sunken | State_MouseOver);
        drawPlate(*painter, plate, option->palette.color(QPalette::Base));
        return;
    }
    case PE_IndicatorCheckBox: drawSwitch(*painter, *option); return;
    case PE_FrameFocusRect:
        if (!qobject_cast<const QAbstractButton*>(widget) && !qobject_cast<const QComboBox*>(widget))
            break;
        return; // they draw a ring themselves
    default: break;
    }
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void WindowStyle::drawComplexControl(
    ComplexControl control, const QStyleOptionComplex* option, QPainter* painter, const QWidget* widget) const
{
    if (const auto* slider = qstyleoption_cast<const QStyleOptionSlider*>(option);
        control == CC_Slider && slider && slider->orientation == Qt::Horizontal)
        drawSlider(*this, *slider, *painter, widget);
    else if (slider && control == CC_ScrollBar)
        drawScrollBar(*this, *slider, *painter, widget);
    else if (const auto* box = qstyleoption_cast<const QStyleOptionComboBox*>(option); control == CC_ComboBox && box)
        drawComboBox(*this, *box, *painter, widget);
    else
        QProxyStyle::drawComplexControl(control, option, painter, widget);
}

QSize WindowStyle::sizeFromContents(
    ContentsType type, const QStyleOption* option, const QSize& contents, const QWidget* widget) const
{
    QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
    if (type == CT_ComboBox || type == CT_LineEdit || type == CT_PushButton || type == CT_SpinBox)
        size.setHeight(std::max(option->fontMetrics.height() + 2 * verticalPadding, controlHeight));
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
    return rect;
}

QRect WindowStyle::subControlRect(
    ComplexControl control, const QStyleOptionComplex* option, SubControl part, const QWidget* widget) const
{
    if (const auto* bar = qstyleoption_cast<const QStyleOptionSlider*>(option); bar && control == CC_ScrollBar)
        return scrollBarPart(*bar, part);
    const QRect rect = QProxyStyle::subControlRect(control, option, part, widget);
    return control == CC_ComboBox && part == SC_ComboBoxEditField ? rect.adjusted(boxMargin, 0, 0, 0) : rect;
}

int WindowStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const
{
    switch (metric) {
    case PM_IndicatorWidth: return switchWidth;
    case PM_IndicatorHeight: return switchHeight;
    case PM_SliderThickness:
    case PM_SliderControlThickness: return handleSize + 2; // the ring's edge is soft
    case PM_SliderLength: return handleSize;
    case PM_ScrollBarExtent: return scrollExtent;
    case PM_ButtonShiftHorizontal:
    case PM_ButtonShiftVertical: return 0;
    default: return QProxyStyle::pixelMetric(metric, option, widget);
    }
}

int WindowStyle::styleHint(
    StyleHint hint, const QStyleOption* option, const QWidget* widget, QStyleHintReturn* returnData) const
{
    switch (hint) {
    case SH_ComboBox_Popup: return 0; // a list below the field, which scrolls
    case SH_Slider_AbsoluteSetButtons: return Qt::LeftButton;
    case SH_EtchDisabledText:
    case SH_ComboBox_AllowWheelScrolling: return 0;
    default: return QProxyStyle::styleHint(hint, option, widget, returnData);
    }
}

} // namespace ambrelle
