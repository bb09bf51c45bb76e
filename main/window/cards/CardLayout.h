// SPDX-License-Identifier: MIT

#pragma once

#include <QRectF>
#include <QSize>

#include <optional>

namespace ambrelle {

/// What the cards of one grid have in common. Lengths are points.
struct CardShape {
    double pictureRatio = 0.625; ///< height of the picture by its width
    int leastWidth = 236; ///< of a card, at the usual size of text
    bool captions = true; ///< a line below the title
    std::optional<int> margin; ///< beside the grid; at least `CardLayout::cellLead`; none: as suits the view

    bool operator==(const CardShape&) const = default;
};

/// Where a grid is shown. Heights of lines are those of the type, points.
struct CardSurroundings {
    int width = 0; ///< of the view, points
    int scrollBar = 0; ///< its width, points
    double pixelRatio = 1;
    double textScale = 1;
    int headingLine = 20;
    int titleLine = 18;
    int captionLine = 16;

    bool operator==(const CardSurroundings&) const = default;
};

/// The widths of what a card shows, points; 0 for what it lacks.
struct CardExtents {
    double title = 0;
    bool symbol = false;
    int dots = 0;
    double pill = 0; ///< its words
    bool menu = false;
    double primary = 0; ///< its words; less than 0: a symbol in a circle
};

enum class CardPart { none, picture, title, symbol, dots, menu, primary };

/// Where everything of a card is; empty rectangles for what it lacks.
struct CardParts {
    QRectF picture;
    QRectF title; ///< as wide as the words, or the room for them
    QRectF titleRoom; ///< all the width that a title or its editor may take
    QRectF symbol;
    QRectF dots;
    QRectF caption;
    QRectF pill;
    QRectF menu;
    QRectF primary;

    /// Titles and captions are one part.
    CardPart partAt(QPointF point) const;
};

/// The arithmetic of a grid: equal cells side by side, each with a card in it and room for rings around the card.
struct CardLayout {
    int columns = 1;
    int margin = 0; ///< from the view's edge to the first card
    int inset = 0; ///< from the view's edge to the first cell
    int farInset = 0; ///< from the scroll bar to where cells end
    QSize cell;
    int headingHeight = 0; ///< of its cell, which is as wide as the view
    QSize pictureDevicePixels;
    QSizeF picture; ///< points
    int titleLine = 0;
    int captionLine = 0;
    int captionLines = 0;

    static constexpr int gap = 20; ///< between cards
    static constexpr int cellLead = 12; ///< the part of the gap before a card; a scroll bar has room beside the rest
    static constexpr int rowGap = 22; ///< between lines of cards
    static constexpr int ringRoom = 6; ///< above a card in its cell
    static constexpr int headingAbove = 6; ///< in the cell of a heading
    static constexpr double corner = 10; ///< of pictures
    static constexpr int mostColumns = 6;
    static constexpr int mostWidth = 1600;
    static constexpr int mostDots = 5;

    static CardLayout of(const CardShape& shape, const CardSurroundings& where);

    /// The picture in a cell.
    QRectF pictureIn(const QRectF& cell) const;
    /// All parts in a cell, which may lie anywhere.
    CardParts parts(const QRectF& cell, const CardExtents& extents, bool rightToLeft) const;
    bool operator==(const CardLayout&) const = default;
};

} // namespace ambrelle
