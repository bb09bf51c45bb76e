// SPDX-License-Identifier: MIT

#include "window/frame/TabStrip.h"

#include "drawing/Colours.h"
#include "window/look/AppLook.h"
#include "window/look/FocusRing.h"
#include "window/look/SymbolIcon.h"
#include "window/look/Transitions.h"
#include "window/look/WindowStyle.h"

#include <QPainter>
#include <QStyle>

#include <utility>

namespace ambrelle {

namespace {

constexpr int stripInset = 3; // between the track and a segment
constexpr int stripHeight = 34;
constexpr int tabMargin = 14;
constexpr int usualSymbol = 18; // grows with the text
constexpr int symbolGap = 7;
constexpr double trackCorner = 9;
constexpr double segmentCorner = 7;
constexpr double hoverStrength = 0.4; // of the chosen one's plate

int symbolSide()
{
    return AppLook::shared().scaled(usualSymbol);
}

} // namespace

TabStrip::TabStrip(QWidget* parent)
    : QTabBar(parent)
{
    setDrawBase(false);
    setExpanding(false);
    setUsesScrollButtons(false);
    setElideMode(Qt::ElideNone);
    setFocusPolicy(Qt::TabFocus);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
    setMouseTracking(true);
    connect(this, &QTabBar::currentChanged, this, [this] {
        if (m_compact)
            layOut();
    });
}

int TabStrip::widthOf(int index, bool withWord) const
{
    const QFontMetrics metrics(AppLook::shared().font(TextRole::name));
    const int word = withWord ? symbolGap + metrics.horizontalAdvance(tabText(index)) : 0;
    return 2 * tabMargin + symbolSide() + word;
}

int TabStrip::fullWidth() const
{
    int width = 0;
    for (int index = 0; index < count(); ++index)
        width += widthOf(index, true);
    return width;
}

void TabStrip::setCompact(bool compact)
{
    if (std::exchange(m_compact, compact) != compact)
        layOut();
}

void TabStrip::layOut()
{
    for (int index = 0; index < count(); ++index)
        setTabToolTip(index, m_compact && index != currentIndex() ? tabText(index) : QString());
    // The toolkit lays tabs out again only when it believes that one changed.
    const QSize size(symbolSide(), symbolSide());
    setIconSize(iconSize() == size ? size + QSize(0, 1) : size);
    updateGeometry();
}

QSize TabStrip::tabSizeHint(int index) const
{
    return {widthOf(index, !m_compact || index == currentIndex()), AppLook::shared().scaled(stripHeight)};
}

void TabStrip::tabLayoutChange()
{
    QTabBar::tabLayoutChange();
    updateGeometry();
}

void TabStrip::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    const AppLook& look = AppLook::shared();
    const AppColours& colours = look.colours();
    painter.setBrush(colours.track);
    painter.drawRoundedRect(rect(), trackCorner, trackCorner);
    painter.setFont(look.font(TextRole::name));
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    for (int index = 0; index < count(); ++index) {
        const QRect tab = tabRect(index);
        const QRectF segment = QRectF(tab).adjusted(stripInset, stripInset, -stripInset, -stripInset);
        const bool chosen = index == currentIndex();
        const double hovered =
            transition(this, MovingPart::hover, underMouse() && tab.contains(pointer) ? 1 : 0, index);
        if (chosen || hovered > 0) {
            painter.setPen(Qt::NoPen);
            painter.setBrush(chosen ? colours.chosenSegment : faded(colours.chosenSegment, hoverStrength * hovered));
            painter.drawRoundedRect(segment, segmentCorner, segmentCorner);
        }
        const bool word = !m_compact || chosen;
        const QRect inner = tab.adjusted(tabMargin, 0, -tabMargin, 0);
        const int side = symbolSide();
        const QRect symbol = QStyle::visualRect(
            layoutDirection(), inner, {inner.left(), inner.top() + (inner.height() - side) / 2, side, side});
        tabIcon(index).paint(&painter, symbol);
        if (word) {
            painter.setPen(colours.text);
            painter.drawText(
                QStyle::visualRect(layoutDirection(), inner, inner.adjusted(side + symbolGap, 0, symbolGap, 0)),
                static_cast<int>(Qt::AlignVCenter | QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft)),
                tabText(index));
        }
        if (chosen && hasFocus() && FocusRing::shared().isShown())
            WindowStyle::drawRing(painter, segment, segmentCorner, colours.accent);
    }
}

} // namespace ambrelle
