// SPDX-License-Identifier: MIT

#include "window/cards/CardDelegate.h"
#include "window/cards/CardView.h"
#include "window/look/AppLook.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QScrollBar>
#include <QToolTip>
#include <QVariantAnimation>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int pullDistance = 6;
constexpr double notchPoints = 96; // scrolled by one notch of a wheel
constexpr int notchAngle = 120;
constexpr int notchTime = 100;

} // namespace

QModelIndex CardView::moveCursor(CursorAction action, Qt::KeyboardModifiers)
{
    if (!model())
        return {};
    const auto move = [&] {
        switch (action) {
        case MoveUp: return CardMove::up;
        case MoveDown: return CardMove::down;
        case MoveLeft: return isRightToLeft() ? CardMove::next : CardMove::previous;
        case MoveRight: return isRightToLeft() ? CardMove::previous : CardMove::next;
        case MoveHome: return CardMove::first;
        case MoveEnd: return CardMove::last;
        case MovePageUp: return CardMove::pageUp;
        case MovePageDown: return CardMove::pageDown;
        case MovePrevious: return CardMove::previous;
        case MoveNext: break;
        }
        return CardMove::next;
    };
    const int lines = viewport()->height() / std::max(1, layoutOfCards().cell.height());
    const int row = movedCard(m_delegate->headings(), layoutOfCards().columns, currentIndex().row(), move(), lines);
    return row < 0 ? QModelIndex() : model()->index(row, 0, rootIndex());
}

void CardView::keyPressEvent(QKeyEvent* event)
{
    const QModelIndex current = currentIndex();
    const Qt::KeyboardModifiers held = event->modifiers() & ~Qt::KeypadModifier;
    const bool shown = current.isValid() && state() != EditingState;
    if (!std::exchange(m_delegate->showsFocus, true))
        update(current);
    switch (event->key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
        if (shown && held == Qt::ControlModifier)
            use(current, CardPart::primary);
        else if (shown && held == Qt::NoModifier)
            use(current, CardPart::picture);
        else
            event->ignore();
        return;
    case Qt::Key_Space:
        if (shown && held == Qt::NoModifier)
            use(current, CardPart::picture);
        else
            event->ignore();
        return;
    case Qt::Key_Delete:
        if (shown && held == Qt::NoModifier)
            Q_EMIT removeRequested(current);
        else
            event->ignore();
        return;
    case Qt::Key_F10: // the Menu key comes as an event of its own
        if (shown && held == Qt::ShiftModifier)
            openMenu(current);
        else
            event->ignore();
        return;
    default: break;
    }
    if (held & (Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier))
        event->ignore(); // a shortcut of the window
    else
        QListView::keyPressEvent(event);
}

void CardView::focusInEvent(QFocusEvent* event)
{
    const Qt::FocusReason reason = event->reason();
    if (reason != Qt::ActiveWindowFocusReason && reason != Qt::PopupFocusReason)
        m_delegate->showsFocus = reason != Qt::MouseFocusReason;
    QListView::focusInEvent(event);
}

/// What a click on that part does, for the keyboard too.
void CardView::use(const QModelIndex& index, CardPart part)
{
    const Card card = cardAt(index);
    if (part == CardPart::menu)
        openMenu(index);
    else if (!card.usable || card.isHeading || part == CardPart::none)
        return;
    else if (part != CardPart::primary)
        Q_EMIT activated(index);
    else if (!partRect(index, CardPart::primary).isEmpty())
        Q_EMIT primaryPressed(index);
}

void CardView::openMenu(const QModelIndex& index)
{
    if (!cardAt(index).hasMenu || cardAt(index).isHeading)
        return;
    scrollTo(index);
    const QRectF badge = partRect(index, CardPart::menu);
    const QRectF place = badge.isEmpty() ? partRect(index, CardPart::picture) : badge;
    Q_EMIT menuRequested(
        index, viewport()->mapToGlobal((isRightToLeft() ? place.bottomRight() : place.bottomLeft()).toPoint()));
}

void CardView::contextMenuEvent(QContextMenuEvent* event)
{
    if (event->reason() == QContextMenuEvent::Keyboard) {
        if (currentIndex().isValid())
            openMenu(currentIndex());
        return;
    }
    const QModelIndex index = indexAt(event->pos());
    if (!index.isValid() || partAt(event->pos()) == CardPart::none)
        return;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    if (cardAt(index).hasMenu)
        Q_EMIT menuRequested(index, event->globalPos());
}

void CardView::pointAt(const std::optional<QPoint>& point)
{
    const bool inside = point && viewport()->rect().contains(*point);
    const CardPart part = inside ? partAt(*point) : CardPart::none;
    const QModelIndex index = part == CardPart::none ? QModelIndex() : indexAt(*point);
    const bool pressed = index.isValid() && m_press.index == index && m_press.part == part;
    CardPointer& pointer = m_delegate->pointer;
    const QModelIndex left = pointer.index;
    if (left == index && pointer.part == part && pointer.pressed == pressed)
        return;
    pointer = {index, part, pressed};
    m_delegate->motion().hover(index, m_time.elapsed());
    update(left);
    update(index);
    wake();
}

void CardView::mousePressEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton) {
        event->accept();
        return;
    }
    m_delegate->showsFocus = false;
    const QPoint point = event->position().toPoint();
    const CardPart part = partAt(point);
    m_press = {part == CardPart::none ? QModelIndex() : indexAt(point), part, point};
    pointAt(point);
    if (!m_press.index.isValid())
        return;
    const bool scrolls = hasAutoScroll();
    setAutoScroll(false); // nothing moves below the pointer
    selectionModel()->setCurrentIndex(m_press.index, QItemSelectionModel::ClearAndSelect);
    setAutoScroll(scrolls);
}

void CardView::mouseMoveEvent(QMouseEvent* event)
{
    const QPoint point = event->position().toPoint();
    const bool pulled = m_press.index.isValid() && (point - m_press.position).manhattanLength() >= pullDistance;
    if (pulled && m_pullsCards && m_press.part != CardPart::menu && m_press.part != CardPart::primary) {
        const QPersistentModelIndex index = std::exchange(m_press, {}).index;
        pointAt(std::nullopt);
        Q_EMIT dragBegan(index, point);
        return;
    }
    pointAt(point);
}

void CardView::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() != Qt::LeftButton)
        return;
    const QPoint point = event->position().toPoint();
    const Press press = std::exchange(m_press, {});
    pointAt(point);
    if (!press.index.isValid() || indexAt(point) != press.index)
        return;
    const CardPart part = partAt(point);
    const bool onButton = part == CardPart::menu || part == CardPart::primary;
    const bool fromButton = press.part == CardPart::menu || press.part == CardPart::primary;
    if (part == press.part || (!onButton && !fromButton))
        use(press.index, part);
}

void CardView::mouseDoubleClickEvent(QMouseEvent* event)
{
    mousePressEvent(event); // a second click is a click
}

bool CardView::viewportEvent(QEvent* event)
{
    switch (event->type()) {
    case QEvent::Leave: pointAt(std::nullopt); break;
    case QEvent::WindowActivate:
    case QEvent::WindowDeactivate:
        // Only the ring of the chosen card looks different, and the view would paint all of them.
        update(currentIndex());
        return false;
    case QEvent::ToolTip: {
        const auto* help = static_cast<QHelpEvent*>(event);
        const QModelIndex index = indexAt(help->pos());
        const Card card = cardAt(index);
        const QString text = index.isValid() && !card.isHeading ? m_delegate->toolTip(
                                 card, m_delegate->parts(card, visualRect(index), isRightToLeft()), partAt(help->pos()))
                                                                : QString();
        // Names of others are no markup.
        const QString shown = u"<span>%1</span>"_s.arg(text.toHtmlEscaped().replace(u'\n', u"<br>"_s));
        QToolTip::showText(help->globalPos(), text.isEmpty() ? QString() : shown, viewport());
        return true;
    }
    default: break;
    }
    return QListView::viewportEvent(event);
}

void CardView::wheelEvent(QWheelEvent* event)
{
    const int angle = event->angleDelta().y();
    if (!event->pixelDelta().isNull())
        scrollBy(-event->pixelDelta().y(), false);
    else
        scrollBy(-angle * notchPoints / notchAngle, angle % notchAngle == 0);
    event->accept();
}

void CardView::scrollBy(double points, bool smoothly)
{
    QScrollBar* bar = verticalScrollBar();
    const int time = smoothly ? AppLook::shared().milliseconds(notchTime) : 0;
    const bool moving = m_scrolling->state() == QAbstractAnimation::Running;
    if (time == 0) {
        m_scrolling->stop();
        const double whole = std::trunc(points + m_wheelRest);
        m_wheelRest += points - whole;
        bar->setValue(bar->value() + static_cast<int>(whole));
        return;
    }
    const int from = moving ? m_scrolling->endValue().toInt() : bar->value();
    const int to = std::clamp(from + static_cast<int>(std::lround(points)), bar->minimum(), bar->maximum());
    m_scrolling->stop();
    m_scrolling->setStartValue(bar->value());
    m_scrolling->setEndValue(to);
    m_scrolling->setDuration(time);
    if (to != bar->value())
        m_scrolling->start();
}

} // namespace ambrelle
