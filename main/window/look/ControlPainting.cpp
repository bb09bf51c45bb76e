// SPDX-License-Identifier: MIT

#include "window/look/ControlPainting.h"

#include "drawing/Colours.h"
#include "drawing/Symbols.h"
#include "window/look/AppLook.h"
#include "window/look/FocusRing.h"
#include "window/look/Measures.h"
#include "window/look/Transitions.h"
#include "window/look/WindowStyle.h"

#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double hoverMix = 0.04; // of text in a plate
constexpr double pressedMix = 0.1;
constexpr int arrowSize = 16;
constexpr int spinArrowSize = 12;
constexpr int spinButtonWidth = 22;
constexpr int spinTextMargin = 8;
constexpr double switchRing = 3; // from the edge to the knob
constexpr double scrollInset = 2.5;
constexpr int leastHandle = 28;
constexpr double grooveHeight = 4;

const AppColours& look()
{
    return AppLook::shared().colours();
}

/// Inside the pixels of `area`, so that a line of one point is sharp.
QRectF sharp(const QRectF& area)
{
    return area.adjusted(0.5, 0.5, -0.5, -0.5);
}

bool isEnabled(const QStyleOption& option)
{
    return option.state.testFlag(QStyle::State_Enabled);
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

} // namespace

void drawPlate(QPainter& painter, const ControlPlate& plate)
{
    const Saved saved(painter);
    const QStyle::State state = plate.option.state;
    const bool enabled = isEnabled(plate.option);
    const bool hovered = enabled && plate.followsPointer && state.testFlag(QStyle::State_MouseOver);
    double mix =
        hoverMix * transition(plate.followsPointer ? plate.widget : nullptr, MovingPart::hover, hovered ? 1 : 0);
    if (enabled && (state & (QStyle::State_Sunken | QStyle::State_On)))
        mix = pressedMix;
    const QColor ink = plate.ink.isValid() ? plate.ink : look().text;
    painter.setBrush(plate.fill.isValid() ? blended(plate.fill, ink, mix) : faded(ink, mix));
    // Where texts of what is off are as strong as others, its edge tells.
    const bool isFaint = !enabled && AppLook::shared().wishes().highContrast;
    painter.setPen(plate.hasEdge ? QPen(isFaint ? look().track : look().edge, 1) : QPen(Qt::NoPen));
    const QRectF area(plate.option.rect);
    painter.drawRoundedRect(plate.hasEdge ? sharp(area) : area, WindowStyle::corner, WindowStyle::corner);
}

void paintSymbol(QPainter& painter, const QRectF& area, const QString& name, const QColor& ink)
{
    const Saved saved(painter);
    painter.translate(area.topLeft());
    painter.scale(area.width(), area.height());
    painter.fillPath(symbolPath(name), ink);
}

QPen pictureEdge(double pixelRatio, double hover)
{
    const LookWishes& wishes = AppLook::shared().wishes();
    const double strength = wishes.highContrast ? 0.6 : 0.12 + 0.12 * hover;
    return {faded(wishes.dark ? Qt::white : Qt::black, strength), hairline(pixelRatio)};
}

void paintPictureEdge(QPainter& painter, const QRectF& area, double corner, double hover)
{
    const Saved saved(painter);
    const QPen pen = pictureEdge(painter.device()->devicePixelRatioF(), hover);
    const double half = pen.widthF() / 2;
    painter.setBrush(Qt::NoBrush);
    painter.setPen(pen);
    painter.drawRoundedRect(area.adjusted(half, half, -half, -half), corner - half, corner - half);
}

void drawSwitch(QPainter& painter, const QStyleOption& option, const QWidget* widget)
{
    const Saved saved(painter);
    const double way = transition(widget, MovingPart::knob, option.state.testFlag(QStyle::State_On) ? 1 : 0);
    const bool enabled = isEnabled(option);
    QRectF track(0, 0, controls::switchWidth, controls::switchHeight);
    track.moveCenter(QRectF(option.rect).center());
    painter.setBrush(blended(look().track, enabled ? look().accent : look().faint, way));
    painter.setPen(QPen(blended(look().edge, enabled ? look().accent : look().faint, way), 1));
    painter.drawRoundedRect(sharp(track), track.height() / 2, track.height() / 2);
    const double side = track.height() - 2 * switchRing;
    QRectF knob(0, track.top() + switchRing, side, side);
    const double travel = (track.width() - side - 2 * switchRing) * way;
    knob.moveLeft(track.left() + switchRing + travel);
    if (option.direction == Qt::RightToLeft)
        knob.moveRight(track.right() - switchRing - travel);
    painter.setPen(Qt::NoPen);
    painter.setBrush(blended(look().faint, enabled ? look().onAccent : look().surface, way));
    painter.drawEllipse(knob);
}

void drawSlider(QPainter& painter, const QStyle& style, const QStyleOptionSlider& option, const QWidget* widget)
{
    const Saved saved(painter);
    const QRectF handle = style.subControlRect(QStyle::CC_Slider, &option, QStyle::SC_SliderHandle, widget);
    QRectF groove(option.rect.left(), 0, option.rect.width(), grooveHeight);
    groove.moveCenter({groove.center().x(), QRectF(option.rect).center().y()});
    painter.setPen(Qt::NoPen);
    painter.setBrush(look().track);
    painter.drawRoundedRect(groove, grooveHeight / 2, grooveHeight / 2);
    QRectF filled = groove;
    if (option.upsideDown)
        filled.setLeft(handle.center().x());
    else
        filled.setRight(handle.center().x());
    const QColor accent = isEnabled(option) ? look().accent : look().faint;
    painter.setBrush(accent);
    painter.drawRoundedRect(filled, grooveHeight / 2, grooveHeight / 2);
    QRectF knob(0, 0, controls::handleSize, controls::handleSize);
    knob.moveCenter({handle.center().x(), groove.center().y()});
    painter.setBrush(look().field);
    painter.setPen(QPen(accent, 2));
    painter.drawEllipse(knob.adjusted(1, 1, -1, -1));
    if (option.state.testFlag(QStyle::State_HasFocus) && FocusRing::shared().isShown()) {
        painter.setBrush(accent);
        painter.drawEllipse(knob.adjusted(4.5, 4.5, -4.5, -4.5));
    }
}

void drawComboBox(QPainter& painter, const QStyle& style, const QStyleOptionComboBox& option, const QWidget* widget)
{
    QStyleOptionComboBox plate = option;
    plate.state &= ~(QStyle::State_Sunken | QStyle::State_On);
    drawPlate(painter,
        {.option = plate,
            .widget = widget,
            .fill = option.editable ? look().field : look().button,
            .ink = look().text,
            .followsPointer = !option.editable});
    QRectF arrow(0, 0, arrowSize, arrowSize);
    arrow.moveCenter(
        QRectF(style.subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxArrow, widget)).center());
    paintSymbol(painter, arrow, u"chevron.down"_s, isEnabled(option) ? look().text : look().faint);
}

void drawSpinBox(QPainter& painter, const QStyle& style, const QStyleOptionSpinBox& option, const QWidget* widget)
{
    QStyleOptionSpinBox plate = option;
    plate.state &= ~(QStyle::State_Sunken | QStyle::State_On);
    drawPlate(painter,
        {.option = plate, .widget = widget, .fill = look().field, .ink = look().text, .followsPointer = false});
    if (option.buttonSymbols == QAbstractSpinBox::NoButtons)
        return;
    for (const auto& [part, symbol, can] :
        {std::tuple(QStyle::SC_SpinBoxUp, u"chevron.up"_s, QAbstractSpinBox::StepUpEnabled),
            std::tuple(QStyle::SC_SpinBoxDown, u"chevron.down"_s, QAbstractSpinBox::StepDownEnabled)}) {
        const QRectF button(style.subControlRect(QStyle::CC_SpinBox, &option, part, widget));
        const bool pointed = option.activeSubControls == part && option.state.testFlag(QStyle::State_MouseOver);
        QRectF arrow(0, 0, spinArrowSize, spinArrowSize);
        arrow.moveCenter(button.center());
        const bool enabled = isEnabled(option) && option.stepEnabled.testFlag(can);
        paintSymbol(painter, arrow, symbol, !enabled ? look().faint : pointed ? look().text : look().soft);
    }
}

void drawScrollBar(QPainter& painter, const QStyle& style, const QStyleOptionSlider& option, const QWidget* widget)
{
    if (option.minimum == option.maximum)
        return;
    const Saved saved(painter);
    const bool active = option.state & (QStyle::State_MouseOver | QStyle::State_Sunken);
    const QRectF handle =
        QRectF(style.subControlRect(QStyle::CC_ScrollBar, &option, QStyle::SC_ScrollBarSlider, widget))
            .adjusted(scrollInset, scrollInset, -scrollInset, -scrollInset);
    const double handleCorner = std::min(handle.width(), handle.height()) / 2;
    const double plain = AppLook::shared().wishes().highContrast ? 0.8 : 0.35;
    painter.setPen(Qt::NoPen);
    painter.setBrush(faded(look().text, active ? plain + 0.2 : plain));
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

QRect spinBoxPart(const QStyleOptionSpinBox& box, QStyle::SubControl part)
{
    const QRect all = box.rect;
    const int arrows = box.buttonSymbols == QAbstractSpinBox::NoButtons ? 0 : spinButtonWidth;
    const auto placed = [&](const QRect& rect) { return QStyle::visualRect(box.direction, all, rect); };
    const QRect column(all.right() + 1 - arrows, all.top() + 1, arrows, all.height() - 2);
    const int middle = column.height() / 2;
    switch (part) {
    case QStyle::SC_SpinBoxUp: return placed(column.adjusted(0, 0, 0, middle - column.height()));
    case QStyle::SC_SpinBoxDown: return placed(column.adjusted(0, middle, 0, 0));
    case QStyle::SC_SpinBoxEditField:
        return placed(all.adjusted(spinTextMargin, 1, -std::max(arrows, spinTextMargin), -1));
    case QStyle::SC_SpinBoxFrame: return all;
    default: return {};
    }
}

} // namespace ambrelle
