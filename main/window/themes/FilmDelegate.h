// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/PictureOrder.h"

#include <QAbstractItemDelegate>

class QAbstractItemView;

namespace ambrelle {

class PictureShelf;

/// Paints the frames of a filmstrip: a small picture and its name, a ring around the current one.
class FilmDelegate final : public QAbstractItemDelegate {
    Q_OBJECT
public:
    FilmDelegate(PictureShelf& shelf, QAbstractItemView& view);

    static QSize cell(); ///< points
    static int pictureMiddle(); ///< from the top of a cell
    static PictureOrder orderOf(const QModelIndex& index, double pixelRatio);

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// A name that is cut is told whole.
    bool helpEvent(QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option,
        const QModelIndex& index) override;

private:
    void paintPicture(QPainter& painter, const QRectF& area, const QModelIndex& index) const;

    PictureShelf& m_shelf;
};

} // namespace ambrelle
