// SPDX-License-Identifier: MIT

#include "window/widgets/DesktopList.h"

#include "drawing/Colours.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/look/FocusRing.h"
#include "window/look/WindowStyle.h"
#include "window/widgets/DesktopWidgetsModel.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QScrollBar>
#include <QStyledItemDelegate>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int leastRow = 35;
constexpr int plateInset = 6; // from the sides of the list
constexpr double plateCorner = 7;
constexpr int rowPadding = 10; // in the plate
constexpr int rowSymbol = 18;
constexpr int rowGap = 9;
constexpr int pinSide = 14;

class DesktopRowDelegate final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const override
    {
        const int text = QFontMetrics(AppLook::shared().font(TextRole::name)).height();
        return {0, std::max(AppLook::shared().scaled(leastRow), text + 12)};
    }
    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;
};

void DesktopRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const auto widget = index.data(desktopWidgetRole).value<DesktopWidget>();
    const AppLook& look = AppLook::shared();
    const AppColours& colours = look.colours();
    const bool chosen = option.state.testFlag(QStyle::State_Selected);
    const bool pointed = option.state.testFlag(QStyle::State_MouseOver);
    const QRectF plate = QRectF(option.rect).adjusted(plateInset, 0.5, -plateInset, -0.5);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->setLayoutDirection(option.direction);
    painter->setPen(Qt::NoPen);
    if (chosen || pointed) {
        painter->setBrush(chosen ? colours.accent : faded(colours.text, 0.06));
        painter->drawRoundedRect(plate, plateCorner, plateCorner);
    }
    QRectF room = plate.adjusted(rowPadding, 0, -rowPadding, 0);
    const auto place = [&](double left, double width, double height) {
        QRectF area(left, room.center().y() - height / 2, width, height);
        if (option.direction == Qt::RightToLeft)
            area.moveLeft(plate.left() + plate.right() - area.right());
        return area;
    };
    const QColor symbolInk = chosen ? colours.onAccent : colours.soft;
    const double side = look.scaled(rowSymbol);
    paintSymbol(*painter, place(room.left(), side, side), widget.symbol, symbolInk);
    if (widget.pinned) {
        const double pin = look.scaled(pinSide);
        paintSymbol(*painter, place(room.right() - pin, pin, pin), u"pin"_s, symbolInk);
        room.setRight(room.right() - pin - rowGap);
    }
    double left = room.left() + side + rowGap;
    const auto write = [&](const QString& text, TextRole role, const QColor& ink) {
        const QFont font = look.font(role);
        const QFontMetricsF metrics(font);
        const double width = std::min(room.right() - left, std::ceil(metrics.horizontalAdvance(text)) + 1);
        if (width <= 0)
            return;
        painter->setFont(font);
        painter->setPen(ink);
        painter->drawText(place(left, width, room.height()), Qt::AlignVCenter | Qt::AlignLeading | Qt::TextSingleLine,
            metrics.elidedText(text, Qt::ElideRight, width));
        left += width + rowGap;
    };
    write(widget.title, TextRole::name, chosen ? colours.onAccent : colours.text);
    write(widget.caption, TextRole::caption, symbolInk);
    if (option.state.testFlag(QStyle::State_HasFocus) && FocusRing::shared().isShown()) {
        const double inset = look.ringWidth() + (chosen ? 2 : 0);
        WindowStyle::drawRing(*painter, plate.adjusted(inset, inset, -inset, -inset), plateCorner - inset,
            chosen ? colours.onAccent : colours.accent);
    }
    painter->restore();
}

/// All of a row that has no room for it.
bool DesktopRowDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip)
        return QStyledItemDelegate::helpEvent(event, view, option, index);
    const auto widget = index.data(desktopWidgetRole).value<DesktopWidget>();
    const AppLook& look = AppLook::shared();
    const double wanted = 2 * (plateInset + rowPadding) + look.scaled(rowSymbol) + 2 * rowGap
        + QFontMetricsF(look.font(TextRole::name)).horizontalAdvance(widget.title)
        + QFontMetricsF(look.font(TextRole::caption)).horizontalAdvance(widget.caption)
        + (widget.pinned ? look.scaled(pinSide) + rowGap : 0);
    const bool cut = index.isValid() && wanted > view->visualRect(index).width();
    // Names of others are no markup.
    const QString text = u"<span>%1<br>%2</span>"_s.arg(widget.title.toHtmlEscaped(), widget.caption.toHtmlEscaped());
    QToolTip::showText(event->globalPos(), cut ? text : QString(), view);
    return true;
}

} // namespace

DesktopList::DesktopList(QWidget* parent)
    : QListView(parent)
{
    setFrameShape(NoFrame);
    setSelectionMode(ExtendedSelection);
    setEditTriggers(NoEditTriggers);
    setVerticalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    viewport()->setAttribute(Qt::WA_Hover);
    setItemDelegate(new DesktopRowDelegate(this));
    connect(this, &QListView::doubleClicked, this, &DesktopList::used);
    connect(&AppLook::shared(), &AppLook::changed, this, &DesktopList::dress);
    dress();
}

void DesktopList::dress()
{
    QPalette colours = AppLook::palette(AppLook::shared().wishes());
    colours.setColor(QPalette::Base, Qt::transparent); // the round surface below shows
    setPalette(colours);
    verticalScrollBar()->setSingleStep(32);
    scheduleDelayedItemsLayout();
}

QModelIndexList DesktopList::chosen() const
{
    QModelIndexList rows = selectionModel() ? selectionModel()->selectedRows() : QModelIndexList();
    std::ranges::sort(rows, {}, &QModelIndex::row);
    return rows;
}

void DesktopList::selectionChanged(const QItemSelection& selected, const QItemSelection& deselected)
{
    QListView::selectionChanged(selected, deselected);
    Q_EMIT chosenChanged();
}

void DesktopList::focusInEvent(QFocusEvent* event)
{
    QListView::focusInEvent(event);
    viewport()->update();
}

void DesktopList::keyPressEvent(QKeyEvent* event)
{
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    if (held == Qt::NoModifier && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        Q_EMIT used();
    } else if (held == Qt::NoModifier && event->key() == Qt::Key_Delete) {
        Q_EMIT removeRequested();
    } else if (held == Qt::ShiftModifier && event->key() == Qt::Key_F10) {
        openMenuAtCurrent();
    } else if ((held & Qt::ControlModifier) && event->key() == Qt::Key_A) {
        selectAll();
    } else if (event->key() == Qt::Key_F10 || event->key() == Qt::Key_Escape
        || ((held & (Qt::ControlModifier | Qt::AltModifier)) && !event->text().isEmpty())) {
        event->ignore(); // a shortcut of the window
    } else {
        QListView::keyPressEvent(event);
    }
}

void DesktopList::openMenuAtCurrent()
{
    const QRect row = visualRect(currentIndex());
    Q_EMIT menuRequested(viewport()->mapToGlobal(isRightToLeft() ? row.bottomRight() : row.bottomLeft()));
}

void DesktopList::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        if (currentIndex().isValid())
            openMenuAtCurrent();
    } else if (indexAt(event->pos()).isValid()) {
        Q_EMIT menuRequested(event->globalPos());
    }
}

} // namespace ambrelle
