// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/Card.h"
#include "window/cards/CardCursor.h"
#include "window/cards/CardLayout.h"

#include <QBasicTimer>
#include <QElapsedTimer>
#include <QListView>
#include <QPointer>

#include <optional>

class QVariantAnimation;

namespace ambrelle {

class CardDelegate;
class CardHeader;

/// A grid of the cards of a list model (`cardRole`), under headings; to assistive technology it is a list. One click or
/// Enter does the obvious with a card, which `activated` tells. The view follows the look of windows, and rests while
/// nothing changes.
class CardView final : public QListView {
    Q_OBJECT
public:
    explicit CardView(QWidget* parent = nullptr);
    ~CardView() override;

    void setShape(const CardShape& shape);
    const CardShape& shape() const { return m_shape; }
    void setPictures(CardPictures* pictures);
    /// Shown above the first line and scrolled with it, as wide as the cards; none: nothing. The view takes it over.
    void setHeader(QWidget* header);
    /// Cards may be pulled out: `dragBegan` instead of a click.
    void setPullsCards(bool pulls) { m_pullsCards = pulls; }

    void setModel(QAbstractItemModel* model) override;
    const CardLayout& layoutOfCards() const;
    /// Where a part of the card is, in points of the viewport, as shown at present; empty for what it lacks.
    QRectF partRect(const QModelIndex& index, CardPart part) const;
    CardPart partAt(const QPoint& point) const; ///< of the viewport
    /// Chooses the card and brings it into view.
    void choose(const QModelIndex& index);

    QRect visualRect(const QModelIndex& index) const override;
    void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

Q_SIGNALS:
    void primaryPressed(const QModelIndex& index); ///< the chief button, or Ctrl+Enter
    void menuRequested(const QModelIndex& index, const QPoint& globalPosition);
    void removeRequested(const QModelIndex& index); ///< the Delete key
    void dragBegan(const QModelIndex& index, const QPoint& position); ///< in points of the viewport, pulled by 6

protected:
    bool event(QEvent* event) override;
    bool viewportEvent(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void timerEvent(QTimerEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void focusInEvent(QFocusEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void updateGeometries() override;
    void scrollContentsBy(int dx, int dy) override;
    QModelIndex moveCursor(CursorAction action, Qt::KeyboardModifiers modifiers) override;

private:
    struct Press {
        QPersistentModelIndex index;
        CardPart part = CardPart::none;
        QPoint position;
    };

    void dress();
    void arrange();
    void redo();
    void takeHeadings();
    void pointAt(const std::optional<QPoint>& point);
    void wake();
    void askAhead();
    void updatePicture(const QString& key);
    QList<QModelIndex> seen() const;
    void use(const QModelIndex& index, CardPart part);
    void openMenu(const QModelIndex& index);
    void scrollBy(double points, bool smoothly);

    CardShape m_shape;
    CardDelegate* m_delegate;
    QPointer<CardHeader> m_header; ///< lives beside the view
    QVariantAnimation* m_scrolling;
    QBasicTimer m_motionTimer;
    QBasicTimer m_progressTimer;
    QElapsedTimer m_time;
    CardSurroundings m_surroundings;
    Press m_press;
    bool m_pullsCards = false;
    QStringList m_wanted; // the pictures told last
    double m_wheelRest = 0;
};

} // namespace ambrelle
