// SPDX-License-Identifier: MIT

#include "window/cards/ShelfPictures.h"

#include "window/cards/CardLayout.h"
#include "window/cards/PictureShelf.h"

#include <QWidget>

namespace ambrelle {

namespace {

PictureKey keyOf(const QModelIndex& index)
{
    return index.data(pictureKeyRole).value<PictureKey>();
}

} // namespace

ShelfPictures::ShelfPictures(PictureShelf& shelf, QWidget& view)
    : CardPictures(&view)
    , m_shelf(shelf)
    , m_view(view)
{
    connect(&m_shelf, &PictureShelf::arrived, this, [this](const PictureKey& key) { Q_EMIT arrived(key.name); });
}

double ShelfPictures::corner() const
{
    return CardLayout::corner * m_view.devicePixelRatioF();
}

QPixmap ShelfPictures::picture(const QModelIndex& index, QSize devicePixels)
{
    return m_shelf.picture(keyOf(index), devicePixels, corner());
}

void ShelfPictures::want(const QList<QModelIndex>& indexes, QSize devicePixels)
{
    QList<PictureOrder> orders;
    for (const QModelIndex& index : indexes)
        orders.append({keyOf(index), devicePixels, corner()});
    m_shelf.setWanted(m_view, orders);
}

} // namespace ambrelle
