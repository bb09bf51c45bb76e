// SPDX-License-Identifier: MIT

#include "window/cards/CardView.h"

#include "window/cards/CardDelegate.h"
#include "window/cards/CardHeader.h"
#include "window/look/AppLook.h"

#include <QEvent>
#include <QScrollBar>
#include <QVariantAnimation>

#include <algorithm>

namespace ambrelle {

namespace {

int lineHeight(TextRole role, int least)
{
    const AppLook& look = AppLook::shared();
    return std::max(look.scaled(least), QFontMetrics(look.font(role)).height());
}

} // namespace

CardView::CardView(QWidget* parent)
    : QListView(parent)
    , m_delegate(new CardDelegate(this))
    , m_header(new CardHeader(this))
    , m_scrolling(new QVariantAnimation(this))
{
    m_time.start();
    setFrameShape(NoFrame);
    setFlow(LeftToRight);
    setWrapping(true);
    setResizeMode(Adjust);
    setMovement(Static);
    setSpacing(0);
    setSelectionMode(SingleSelection);
    setEditTriggers(EditKeyPressed);
    setVerticalScrollMode(ScrollPerPixel);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setItemDelegate(m_delegate);
    connect(m_header, &CardHeader::resized, this, &CardView::redo);
    connect(&AppLook::shared(), &AppLook::changed, this, &CardView::dress);
    m_scrolling->setEasingCurve(QEasingCurve::OutCubic);
    connect(m_scrolling, &QVariantAnimation::valueChanged, this,
        [this](const QVariant& value) { verticalScrollBar()->setValue(value.toInt()); });
    dress();
}

CardView::~CardView()
{
    delete m_header; // a neighbour, who may be gone already
}

void CardView::setShape(const CardShape& shape)
{
    m_shape = shape;
    redo();
}

void CardView::setPictures(CardPictures* pictures)
{
    if (m_delegate->pictures())
        disconnect(m_delegate->pictures(), nullptr, this, nullptr);
    m_delegate->setPictures(pictures);
    if (pictures)
        connect(pictures, &CardPictures::arrived, this, &CardView::updatePicture);
    viewport()->update();
}

void CardView::setHeader(QWidget* header)
{
    if (m_header)
        m_header->setContents(header);
}

void CardView::setModel(QAbstractItemModel* model)
{
    if (this->model())
        disconnect(this->model(), nullptr, this, nullptr);
    QListView::setModel(model);
    m_delegate->motion().clear();
    if (model) {
        connect(model, &QAbstractItemModel::layoutChanged, this, &CardView::takeHeadings);
        connect(model, &QAbstractItemModel::modelReset, this, &CardView::takeHeadings);
        connect(model, &QAbstractItemModel::rowsInserted, this, &CardView::takeHeadings);
        connect(model, &QAbstractItemModel::rowsRemoved, this, &CardView::takeHeadings);
        connect(model, &QAbstractItemModel::rowsMoved, this, &CardView::takeHeadings);
        connect(model, &QAbstractItemModel::dataChanged, this, &CardView::takeHeadings);
    }
    takeHeadings();
}

/// What the keyboard has to know of the rows.
void CardView::takeHeadings()
{
    QList<bool> headings;
    for (int row = 0; model() && row < model()->rowCount(rootIndex()); ++row)
        headings.append(cardAt(model()->index(row, 0, rootIndex())).isHeading);
    m_wanted.clear();
    if (headings == m_delegate->headings())
        return;
    m_delegate->setHeadings(headings);
    redo();
}

const CardLayout& CardView::layoutOfCards() const
{
    return m_delegate->layout();
}

void CardView::dress()
{
    m_delegate->dress();
    QPalette colours = AppLook::palette(AppLook::shared().wishes());
    colours.setColor(QPalette::Base, AppLook::shared().colours().ground);
    verticalScrollBar()->setPalette(colours);
    viewport()->setPalette(colours);
    viewport()->setBackgroundRole(QPalette::Window);
    redo();
}

/// Lays everything out anew, soon.
void CardView::redo()
{
    m_surroundings = {};
    arrange();
    scheduleDelayedItemsLayout();
    viewport()->update();
}

/// Fits the cells to the view.
void CardView::arrange()
{
    const CardSurroundings now{.width = width(),
        .scrollBar = verticalScrollBar()->sizeHint().width(),
        .pixelRatio = devicePixelRatioF(),
        .textScale = AppLook::shared().wishes().textScale,
        .headingLine = lineHeight(TextRole::heading, 20),
        .titleLine = lineHeight(TextRole::cardTitle, 18),
        .captionLine = lineHeight(TextRole::caption, 16)};
    if (now == m_surroundings)
        return;
    m_surroundings = now;
    const CardLayout layout = CardLayout::of(m_shape, now);
    m_delegate->setLayout(layout);
    m_wanted.clear();
    if (isRightToLeft())
        setViewportMargins(layout.farInset, 0, layout.inset, 0);
    else
        setViewportMargins(layout.inset, 0, layout.farInset, 0);
    scheduleDelayedItemsLayout();
}

QRect CardView::visualRect(const QModelIndex& index) const
{
    QRect rect = QListView::visualRect(index);
    if (index.isValid() && m_delegate->isOnFirstLine(index.row()))
        rect.setTop(rect.top() + m_delegate->headerHeight());
    return rect;
}

void CardView::scrollTo(const QModelIndex& index, ScrollHint hint)
{
    m_scrolling->stop();
    QListView::scrollTo(index, hint);
    // With the first cards all above them is shown as far as there is room.
    const int first = static_cast<int>(m_delegate->headings().indexOf(false));
    QScrollBar* bar = verticalScrollBar();
    if (hint == EnsureVisible && first >= 0 && index.row() < first + layoutOfCards().columns
        && visualRect(index).top() + bar->value()
            <= visualRect(model()->index(first, 0, rootIndex())).top() + bar->value()
        && visualRect(index).bottom() + bar->value() < viewport()->height())
        bar->setValue(0);
}

QRectF CardView::partRect(const QModelIndex& index, CardPart part) const
{
    const Card card = cardAt(index);
    if (!index.isValid() || card.isHeading)
        return {};
    const CardParts parts = m_delegate->parts(card, visualRect(index), isRightToLeft());
    switch (part) {
    case CardPart::picture: return parts.picture;
    case CardPart::title: return parts.title;
    case CardPart::symbol: return parts.symbol;
    case CardPart::dots: return parts.dots;
    case CardPart::menu: return parts.menu;
    case CardPart::primary: return parts.primary;
    case CardPart::none: break;
    }
    return {};
}

CardPart CardView::partAt(const QPoint& point) const
{
    const QModelIndex index = indexAt(point);
    const Card card = cardAt(index);
    if (!index.isValid() || card.isHeading)
        return CardPart::none;
    return m_delegate->parts(card, visualRect(index), isRightToLeft()).partAt(point);
}

void CardView::choose(const QModelIndex& index)
{
    if (!selectionModel() || !index.isValid())
        return;
    selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    scrollTo(index);
}

bool CardView::event(QEvent* event)
{
    if (event->type() == QEvent::Resize || event->type() == QEvent::StyleChange)
        arrange();
    else if (event->type() == QEvent::LayoutDirectionChange)
        redo();
    return QListView::event(event);
}

void CardView::updateGeometries()
{
    QListView::updateGeometries();
    verticalScrollBar()->setSingleStep(32);
    if (!m_header)
        return; // the page is going away
    const int width = layoutOfCards().columns * layoutOfCards().cell.width() - CardLayout::gap;
    const int height = m_header->heightFor(width);
    if (height != m_delegate->headerHeight()) {
        m_delegate->setHeaderHeight(height);
        scheduleDelayedItemsLayout();
    }
    const QRect area = viewport()->geometry();
    const int left =
        isRightToLeft() ? area.right() + 1 - CardLayout::cellLead - width : area.left() + CardLayout::cellLead;
    m_header->place(left, area.top(), width, area.height(), verticalScrollBar()->value());
}

void CardView::scrollContentsBy(int dx, int dy)
{
    QListView::scrollContentsBy(dx, dy);
    updateGeometries();
    if (m_delegate->motion().hovered().isValid() || viewport()->underMouse())
        pointAt(viewport()->mapFromGlobal(QCursor::pos()));
}

} // namespace ambrelle
