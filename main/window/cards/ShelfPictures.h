// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/Card.h"
#include "window/cards/PictureOrder.h"

namespace ambrelle {

class PictureShelf;

/// The role under which a model gives the `PictureKey` of a row; its name is `Card::picture`.
constexpr int pictureKeyRole = cardRole + 1;

/// The pictures of one view's cards, from the shelf of all.
class ShelfPictures final : public CardPictures {
public:
    /// Belongs to `view`; the shelf outlives it.
    ShelfPictures(PictureShelf& shelf, QWidget& view);

    QPixmap picture(const QModelIndex& index, QSize devicePixels) override;
    void want(const QList<QModelIndex>& indexes, QSize devicePixels) override;

private:
    double corner() const;

    PictureShelf& m_shelf;
    QWidget& m_view;
};

} // namespace ambrelle
