// SPDX-License-Identifier: MIT

#pragma once

#include <QListView>
#include <QSortFilterProxyModel>
#include <QWidget>

namespace ambrelle {

class Button;
class FilmView;
class PictureShelf;

/// The rows of a model of cards without its headings.
class CardsAlone final : public QSortFilterProxyModel {
protected:
    bool filterAcceptsRow(int row, const QModelIndex& parent) const override;
};

/// The cards of a grid as one row of small pictures, of which one is the current one and in the middle.
class Filmstrip final : public QWidget {
    Q_OBJECT
public:
    /// `cards` with `pictureKeyRole`; its headings are left out. Both outlive this.
    Filmstrip(PictureShelf& shelf, QAbstractItemModel& cards, QWidget* parent = nullptr);

    /// The card with that index of the grid's model; invalid: none of them.
    void setCurrent(const QModelIndex& card);
    /// The card so many steps from the current one, as an index of the grid's model; invalid: none is there.
    QModelIndex neighbour(int steps) const;
    int heightWanted() const;
    QListView& view();

Q_SIGNALS:
    void chosen(const QModelIndex& card); ///< by the user; an index of the grid's model

protected:
    void resizeEvent(QResizeEvent* event) override;
    void changeEvent(QEvent* event) override;

private:
    void choose(int steps);
    void showEnds();
    void arrange();

    CardsAlone m_cards;
    FilmView* m_view;
    Button* m_previous;
    Button* m_next;
};

/// The row of pictures itself.
class FilmView final : public QListView {
    Q_OBJECT
public:
    FilmView(PictureShelf& shelf, QWidget* parent);

    static int cellWidth();
    static int cellHeight();

    void centre(); ///< on the current card, as far as there are others beside it

Q_SIGNALS:
    void wanted(const QModelIndex& index); ///< by the user

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void updateGeometries() override;

private:
    void want();

    PictureShelf& m_shelf;
};

} // namespace ambrelle
