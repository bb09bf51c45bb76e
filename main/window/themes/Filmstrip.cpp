// SPDX-License-Identifier: MIT

#include "window/themes/Filmstrip.h"

#include "foundation/Wording.h"
#include "window/cards/PictureShelf.h"
#include "window/cards/ShelfPictures.h"
#include "window/look/Button.h"
#include "window/themes/FilmDelegate.h"

#include <QEvent>
#include <QScrollBar>
#include <QStyle>
#include <QWheelEvent>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int chevronSide = 32;
constexpr int chevronGap = 6; // to the pictures

} // namespace

bool CardsAlone::filterAcceptsRow(int row, const QModelIndex& parent) const
{
    return !cardAt(sourceModel()->index(row, 0, parent)).isHeading;
}

FilmView::FilmView(PictureShelf& shelf, QWidget* parent)
    : QListView(parent)
    , m_shelf(shelf)
{
    setFrameShape(NoFrame);
    setFlow(LeftToRight);
    setWrapping(false);
    setMovement(Static);
    setResizeMode(Adjust);
    setUniformItemSizes(true);
    setSpacing(0);
    setSelectionMode(SingleSelection);
    setEditTriggers(NoEditTriggers);
    setHorizontalScrollMode(ScrollPerPixel);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    setItemDelegate(new FilmDelegate(shelf, *this));
    viewport()->setAutoFillBackground(false);
    setAccessibleName(Wording::tr("Themes"));
    connect(this, &QListView::clicked, this, &FilmView::wanted);
    connect(&shelf, &PictureShelf::arrived, viewport(), qOverload<>(&QWidget::update));
    const auto dress = [this] {
        scheduleDelayedItemsLayout();
        viewport()->update();
    };
    connect(&AppLook::shared(), &AppLook::changed, this, dress);
}

int FilmView::cellWidth()
{
    return FilmDelegate::cell().width();
}

int FilmView::cellHeight()
{
    return FilmDelegate::cell().height();
}

void FilmView::centre()
{
    if (!currentIndex().isValid())
        return;
    QScrollBar& bar = *horizontalScrollBar();
    const int offset = currentIndex().row() * cellWidth() - (viewport()->width() - cellWidth()) / 2;
    bar.setValue(offset); // in reading order
}

void FilmView::updateGeometries()
{
    QListView::updateGeometries();
    centre();
}

void FilmView::paintEvent(QPaintEvent* event)
{
    QListView::paintEvent(event);
    want();
}

/// Keeps the pictures that are seen on their way.
void FilmView::want()
{
    QList<PictureOrder> orders;
    for (int row = 0; model() && row < model()->rowCount(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        if (visualRect(index).intersects(viewport()->rect()))
            orders.append(FilmDelegate::orderOf(index, devicePixelRatioF()));
    }
    m_shelf.setWanted(*this, orders);
}

/// The current card is another one with its removal too, which nobody wanted: only keys and clicks count.
void FilmView::keyPressEvent(QKeyEvent* event)
{
    const QPersistentModelIndex before = currentIndex();
    QListView::keyPressEvent(event);
    if (currentIndex() != before)
        Q_EMIT wanted(currentIndex());
}

void FilmView::wheelEvent(QWheelEvent* event)
{
    const QPoint angle = event->pixelDelta().isNull() ? event->angleDelta() : event->pixelDelta();
    const bool sideways = std::abs(angle.x()) > std::abs(angle.y());
    const int points = !sideways ? angle.y() : isRightToLeft() ? -angle.x() : angle.x(); // in reading order
    horizontalScrollBar()->setValue(horizontalScrollBar()->value() - points);
    event->accept();
}

void FilmView::hideEvent(QHideEvent* event)
{
    QListView::hideEvent(event);
    m_shelf.setWanted(*this, {});
}

Filmstrip::Filmstrip(PictureShelf& shelf, QAbstractItemModel& cards, QWidget* parent)
    : QWidget(parent)
    , m_view(new FilmView(shelf, this))
    , m_previous(Button::symbolOnly(u"chevron.left"_s, Wording::tr("Previous Theme"), Button::Kind::plain))
    , m_next(Button::symbolOnly(u"chevron.right"_s, Wording::tr("Next Theme"), Button::Kind::plain))
{
    m_cards.setSourceModel(&cards);
    m_view->setModel(&m_cards);
    m_previous->setParent(this);
    m_next->setParent(this);
    setTabOrder(m_previous, m_view);
    setTabOrder(m_view, m_next);
    connect(m_previous, &Button::clicked, this, [this] { choose(-1); });
    connect(m_next, &Button::clicked, this, [this] { choose(1); });
    connect(m_view, &FilmView::wanted, this, [this](const QModelIndex& index) {
        if (index.isValid())
            Q_EMIT chosen(m_cards.mapToSource(index));
    });
    // Later: while rows go, much else follows them too.
    for (const auto change : {&QAbstractItemModel::rowsInserted, &QAbstractItemModel::rowsRemoved})
        connect(&m_cards, change, this, &Filmstrip::arrange, Qt::QueuedConnection);
    connect(&m_cards, &QAbstractItemModel::modelReset, this, &Filmstrip::arrange, Qt::QueuedConnection);
    connect(&AppLook::shared(), &AppLook::changed, this, &Filmstrip::arrange);
}

QListView& Filmstrip::view()
{
    return *m_view;
}

int Filmstrip::heightWanted() const
{
    return FilmView::cellHeight();
}

void Filmstrip::setCurrent(const QModelIndex& card)
{
    const QModelIndex index = m_cards.mapFromSource(card);
    if (index.isValid())
        m_view->selectionModel()->setCurrentIndex(index, QItemSelectionModel::ClearAndSelect);
    else
        m_view->selectionModel()->clear();
    m_view->centre();
    showEnds();
}

QModelIndex Filmstrip::neighbour(int steps) const
{
    const QModelIndex current = m_view->currentIndex();
    return current.isValid() ? m_cards.mapToSource(m_cards.index(current.row() + steps, 0)) : QModelIndex();
}

void Filmstrip::choose(int steps)
{
    if (const QModelIndex card = neighbour(steps); card.isValid())
        Q_EMIT chosen(card);
}

void Filmstrip::showEnds()
{
    m_previous->setEnabled(neighbour(-1).isValid());
    m_next->setEnabled(neighbour(1).isValid());
}

void Filmstrip::resizeEvent(QResizeEvent*)
{
    arrange();
}

void Filmstrip::changeEvent(QEvent* event)
{
    QWidget::changeEvent(event);
    if (event->type() == QEvent::LayoutDirectionChange)
        arrange();
}

/// The pictures in the middle, with a chevron at either end of the row.
void Filmstrip::arrange()
{
    const int room = (width() - 2 * (chevronSide + chevronGap)) / FilmView::cellWidth(); // for whole ones
    const int most = std::max(1, room % 2 == 0 ? room - 1 : room); // with one in the middle
    const int wide = std::clamp(m_cards.rowCount(), 1, most) * FilmView::cellWidth();
    const auto place = [this](QWidget& widget, const QRect& area) {
        widget.setGeometry(QStyle::visualRect(layoutDirection(), rect(), area));
    };
    const int top = FilmDelegate::pictureMiddle() - chevronSide / 2;
    place(*m_view, {(width() - wide) / 2, 0, wide, FilmView::cellHeight()});
    place(*m_previous, {0, top, chevronSide, chevronSide});
    place(*m_next, {width() - chevronSide, top, chevronSide, chevronSide});
    const bool mirrored = layoutDirection() == Qt::RightToLeft;
    m_previous->setSymbol(mirrored ? u"chevron.right"_s : u"chevron.left"_s);
    m_next->setSymbol(mirrored ? u"chevron.left"_s : u"chevron.right"_s);
    m_view->centre();
    showEnds();
}

} // namespace ambrelle
