// SPDX-License-Identifier: MIT

#pragma once

#include "window/cards/Card.h"
#include "window/cards/CardLayout.h"

#include <QPixmap>

class QPainter;

namespace ambrelle {

struct CardFonts;

/// What is seen of a card beyond its model.
struct CardSight {
    enum class Ring {
        none,
        focused, ///< where the keyboard is
        selected,
        resting, ///< selected, while the keyboard is elsewhere
    };

    QPixmap picture;
    double arrived = 1; ///< how far the picture has faded in
    double hover = 0; ///< how far badges have come
    CardPart part = CardPart::none; ///< under the pointer
    bool pressed = false;
    Ring ring = Ring::none;
    double ringTurn = 0;
    bool editing = false; ///< an editor stands in place of the title
};

/// Draws a heading or a card with a painter of a grid, in the colours of the look of windows.
class CardPainter {
public:
    CardPainter(QPainter& painter, const CardLayout& layout, const CardFonts& fonts, bool rightToLeft);
    ~CardPainter();
    Q_DISABLE_COPY_MOVE(CardPainter)

    void heading(const Card& card, const QRectF& cell);
    void card(const Card& card, const CardParts& parts, const CardSight& sight);

private:
    QRectF onPixels(const QRectF& rect) const;
    void shadow(const QRectF& picture);
    void picture(const Card& card, const QRectF& area, const CardSight& sight);
    void ring(const QRectF& area, CardSight::Ring kind);
    void notice(const Card& card, const QRectF& area, const QColor& ink);
    void working(const Card& card, const QRectF& area, double turn);
    void progress(const QRectF& area, double turn);
    void titleLine(const Card& card, const CardParts& parts, bool editing);
    void pill(const QString& words, const QRectF& area);
    void badges(const Card& card, const CardParts& parts, const CardSight& sight);
    void badge(const QRectF& area, const QString& words, const QString& symbol, bool chief, double state);
    void symbol(const QString& name, const QRectF& square, const QColor& ink);
    void line(const QString& text, const QRectF& area, const QFont& font, const QColor& ink,
        Qt::TextElideMode elide = Qt::ElideRight, Qt::Alignment alignment = Qt::AlignLeading);
    void lines(const QString& text, const QRectF& area, const QFont& font, const QColor& ink, int count);

    QPainter& m_painter;
    const CardLayout& m_layout;
    const CardFonts& m_fonts;
    bool m_rightToLeft;
    double m_pixelRatio;
};

} // namespace ambrelle
