// SPDX-License-Identifier: MIT

#include "window/cards/CardDelegate.h"
#include "window/cards/CardView.h"
#include "window/look/AppLook.h"

#include <QPaintEvent>
#include <QVariantAnimation>

#include <utility>

namespace ambrelle {

namespace {

constexpr int frameTime = 16;
constexpr int progressFrame = 33;
constexpr int turnTime = 1100; // milliseconds

} // namespace

void CardView::hideEvent(QHideEvent* event)
{
    m_scrolling->stop();
    pointAt(std::nullopt);
    if (!event->spontaneous() && m_delegate->pictures()) { // nobody sees these cards any more
        m_wanted.clear();
        m_delegate->pictures()->want({}, layoutOfCards().pictureDevicePixels);
    }
    QListView::hideEvent(event);
}

void CardView::paintEvent(QPaintEvent* event)
{
    if (m_surroundings.pixelRatio != devicePixelRatioF())
        arrange(); // another screen
    m_delegate->now = m_time.elapsed();
    m_delegate->beginPainting();
    QListView::paintEvent(event);
    askAhead();
    wake();
}

/// Tells which pictures matter: those that are seen, and those of the line below, so that they are made too.
void CardView::askAhead()
{
    QList<QModelIndex> cards = seen();
    if (cards.isEmpty() || !m_delegate->pictures())
        return;
    const QList<bool>& headings = m_delegate->headings();
    int row = cards.last().row() + 1;
    while (row < headings.size() && headings[row])
        ++row;
    for (int left = layoutOfCards().columns; left > 0 && row < headings.size() && !headings[row]; --left, ++row)
        cards.append(model()->index(row, 0, rootIndex()));
    cards.removeIf([](const QModelIndex& index) { return cardAt(index).picture.isEmpty(); });
    QStringList keys{QString::number(layoutOfCards().pictureDevicePixels.width())};
    for (const QModelIndex& index : cards)
        keys.append(cardAt(index).picture);
    if (std::exchange(m_wanted, keys) != keys)
        m_delegate->pictures()->want(cards, layoutOfCards().pictureDevicePixels);
}

QList<QModelIndex> CardView::seen() const
{
    QList<QModelIndex> cards;
    for (int row = 0; row < m_delegate->headings().size(); ++row) {
        const QModelIndex index = model()->index(row, 0, rootIndex());
        if (!m_delegate->headings()[row] && visualRect(index).intersects(viewport()->rect()))
            cards.append(index);
    }
    return cards;
}

void CardView::updatePicture(const QString& key)
{
    for (const QModelIndex& index : seen()) {
        if (cardAt(index).picture == key)
            update(index);
    }
}

/// Runs the timers for what moves, and no longer.
void CardView::wake()
{
    if (m_delegate->motion().isMoving() && !m_motionTimer.isActive())
        m_motionTimer.start(frameTime, Qt::PreciseTimer, this);
    if (m_delegate->paintedProgress() && !m_progressTimer.isActive() && !AppLook::shared().wishes().reducesMotion)
        m_progressTimer.start(progressFrame, this);
}

void CardView::timerEvent(QTimerEvent* event)
{
    if (event->timerId() == m_motionTimer.timerId()) {
        for (const QModelIndex& index : m_delegate->motion().advance(m_time.elapsed()))
            update(index);
        if (!m_delegate->motion().isMoving())
            m_motionTimer.stop();
    } else if (event->timerId() == m_progressTimer.timerId()) {
        bool working = false;
        m_delegate->ringTurn = static_cast<double>(m_time.elapsed() % turnTime) / turnTime;
        for (const QModelIndex& index : isVisible() ? seen() : QList<QModelIndex>()) {
            if (cardAt(index).state != Card::State::working)
                continue;
            working = true;
            update(index);
        }
        if (!working || AppLook::shared().wishes().reducesMotion)
            m_progressTimer.stop();
    } else {
        QListView::timerEvent(event);
    }
}

} // namespace ambrelle
