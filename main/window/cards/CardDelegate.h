// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/Card.h"
#include "window/cards/CardLayout.h"
#include "window/cards/CardMotion.h"

#include <QFont>
#include <QPointer>
#include <QStyledItemDelegate>

namespace ambrelle {

/// Where the pointer is in a grid.
struct CardPointer {
    QPersistentModelIndex index;
    CardPart part = CardPart::none;
    bool pressed = false;
};

/// The type of cards.
struct CardFonts {
    QFont heading;
    QFont title;
    QFont caption;
    QFont name; ///< of badges and sentences on a picture
    QFont pill;

    static CardFonts current();
};

/// Paints headings and cards, and makes the editor of a name. Its view tells it what is beyond the model.
class CardDelegate final : public QStyledItemDelegate {
    Q_OBJECT
public:
    explicit CardDelegate(QObject* parent = nullptr);

    /// Takes type anew from the look of windows.
    void dress();
    void setLayout(const CardLayout& layout) { m_layout = layout; }
    /// How much higher the first line is, for what stands above it.
    void setHeaderHeight(int height) { m_headerHeight = height; }
    int headerHeight() const { return m_headerHeight; }
    /// Which rows are headings.
    void setHeadings(const QList<bool>& headings) { m_headings = headings; }
    const QList<bool>& headings() const { return m_headings; }
    bool isOnFirstLine(int row) const;
    void setPictures(CardPictures* pictures) { m_pictures = pictures; }
    CardPictures* pictures() const { return m_pictures; }
    const CardLayout& layout() const { return m_layout; }
    const CardFonts& fonts() const { return m_fonts; }
    CardMotion& motion() const { return m_motion; }
    void beginPainting() { m_paintedProgress = false; }
    bool paintedProgress() const { return m_paintedProgress; } ///< a card at work is seen

    CardPointer pointer;
    bool showsFocus = false; ///< the keyboard is at work
    double ringTurn = 0; ///< of the rings of progress, in turns
    qint64 now = 0; ///< milliseconds, for what begins to move while painting

    /// The parts of a card in its cell.
    CardParts parts(const Card& card, const QRectF& cell, bool rightToLeft, bool editing = false) const;
    /// What is said of the part under the pointer; empty: nothing.
    QString toolTip(const Card& card, const CardParts& parts, CardPart part) const;

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    void destroyEditor(QWidget* editor, const QModelIndex& index) const override;
    void updateEditorGeometry(
        QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const override;
    /// Takes the name without blanks around it; an empty one and the same change nothing.
    void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

private:
    CardLayout m_layout;
    CardFonts m_fonts;
    QPointer<CardPictures> m_pictures;
    int m_headerHeight = 0;
    QList<bool> m_headings;
    // Painting finds out which pictures are missing, and who is at work; making an editor, who is being edited.
    mutable CardMotion m_motion;
    mutable bool m_paintedProgress = false;
    mutable QPersistentModelIndex m_edited;
};

} // namespace ambrelle
