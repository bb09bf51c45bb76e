// SPDX-License-Identifier: MIT

#include "window/cards/CardPainter.h"

#include "drawing/Colours.h"
#include "drawing/Symbols.h"
#include "window/cards/CardDelegate.h"
#include "window/cards/CardShadow.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"

#include <QPainter>
#include <QTextLayout>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double selectionRing = 3; // wide
constexpr double selectionDistance = 2; // from the picture
constexpr double restingRing = 2;
constexpr double focusDistance = 1;
constexpr double headingGap = 8; // before the count

const AppColours& appColours()
{
    return AppLook::shared().colours();
}

} // namespace

CardPainter::CardPainter(QPainter& painter, const CardLayout& layout, const CardFonts& fonts, bool rightToLeft)
    : m_painter(painter)
    , m_layout(layout)
    , m_fonts(fonts)
    , m_rightToLeft(rightToLeft)
    , m_pixelRatio(painter.device()->devicePixelRatioF())
{
    m_painter.save();
    m_painter.setRenderHint(QPainter::Antialiasing);
    m_painter.setLayoutDirection(rightToLeft ? Qt::RightToLeft : Qt::LeftToRight);
}

CardPainter::~CardPainter()
{
    m_painter.restore();
}

/// Moved to begin on a whole pixel of the screen.
QRectF CardPainter::onPixels(const QRectF& rect) const
{
    const QTransform& toDevice = m_painter.deviceTransform();
    const QPointF corner = toDevice.map(rect.topLeft());
    const QPointF whole(std::round(corner.x()), std::round(corner.y()));
    return rect.translated((whole - corner) / m_pixelRatio);
}

void CardPainter::heading(const Card& card, const QRectF& cell)
{
    const double height = m_layout.headingHeight - 2.0 * CardLayout::headingAbove;
    const double indent = CardLayout::cellLead;
    const QFontMetricsF title(m_fonts.heading);
    const QFontMetricsF count(m_fonts.caption);
    const QRectF room(indent, cell.top() + CardLayout::headingAbove, cell.width() - indent - selectionRing, height);
    const auto placed = [&](QRectF area) {
        if (m_rightToLeft)
            area.moveLeft(cell.width() - area.right());
        return area.translated(cell.left(), 0);
    };
    QRectF words = room;
    words.setWidth(std::min(room.width(), std::ceil(title.horizontalAdvance(card.title))));
    line(card.title, placed(words), m_fonts.heading, appColours().text);
    if (card.caption.isEmpty())
        return;
    QRectF rest = room;
    rest.setLeft(words.right() + headingGap);
    // On one line of writing.
    rest.translate(0, (title.ascent() - title.descent() - count.ascent() + count.descent()) / 2);
    line(card.caption, placed(rest), m_fonts.caption, appColours().soft);
}

void CardPainter::card(const Card& card, const CardParts& parts, const CardSight& sight)
{
    const QRectF area = onPixels(parts.picture);
    if (card.state == Card::State::tile) {
        const QColor outline = blended(appColours().edge, appColours().text, 0.2 + 0.3 * sight.hover);
        QPen dashed(outline, 1);
        dashed.setDashPattern({4, 3});
        m_painter.setPen(dashed);
        m_painter.setBrush(Qt::NoBrush);
        m_painter.drawRoundedRect(area.adjusted(0.5, 0.5, -0.5, -0.5), CardLayout::corner, CardLayout::corner);
        notice(card, area, appColours().soft);
    } else {
        if (!AppLook::shared().wishes().highContrast)
            drawCardShadow(m_painter, area, CardLayout::corner, m_pixelRatio);
        picture(card, area, sight);
        drawCardLine(m_painter, area, CardLayout::corner, pictureEdge(m_pixelRatio, sight.hover), m_pixelRatio);
        if (card.state == Card::State::working)
            working(card, area, sight.ringTurn);
        if (!card.pill.isEmpty())
            pill(card.pill, parts.pill);
        badges(card, parts, sight);
    }
    ring(area, sight.ring);
    titleLine(card, parts, sight.editing);
    const int captionLines = m_layout.captionLines;
    if (!card.caption.isEmpty() && captionLines > 0)
        lines(card.caption, parts.caption, m_fonts.caption, appColours().soft, captionLines);
}

void CardPainter::picture(const Card& card, const QRectF& area, const CardSight& sight)
{
    if (sight.picture.isNull() || sight.arrived < 1) {
        const QColor& plain = appColours().placeholder;
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(card.ground.isValid() ? blended(plain, card.ground, 0.5) : plain);
        m_painter.drawRoundedRect(area, CardLayout::corner, CardLayout::corner);
    }
    if (!sight.picture.isNull()) {
        m_painter.setOpacity(sight.arrived);
        // In the screen's own pixels nothing has to be scaled.
        const QSize shown = sight.picture.size();
        m_painter.save();
        m_painter.translate(area.topLeft());
        m_painter.scale(1 / m_pixelRatio, 1 / m_pixelRatio);
        m_painter.setRenderHint(QPainter::SmoothPixmapTransform, shown != m_layout.pictureDevicePixels);
        m_painter.drawPixmap(QRect(QPoint(), m_layout.pictureDevicePixels), sight.picture, QRect(QPoint(), shown));
        m_painter.restore();
        m_painter.setOpacity(1);
    } else if (card.state == Card::State::failed) {
        const QColor& plain = appColours().placeholder;
        const QColor ground = card.ground.isValid() ? blended(plain, card.ground, 0.5) : plain;
        notice(card, area, legible(appColours().soft, inkOn(ground), ground));
    }
}

void CardPainter::ring(const QRectF& area, CardSight::Ring kind)
{
    if (kind == CardSight::Ring::none)
        return;
    const double focusWidth = AppLook::shared().ringWidth();
    const bool selected = kind == CardSight::Ring::selected;
    const double width = selected ? selectionRing : kind == CardSight::Ring::focused ? focusWidth : restingRing;
    const double distance = (kind == CardSight::Ring::focused ? focusDistance : selectionDistance) + width / 2;
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(kind == CardSight::Ring::resting ? appColours().soft : appColours().accent, width));
    m_painter.drawRoundedRect(area.adjusted(-distance, -distance, distance, distance), CardLayout::corner + distance,
        CardLayout::corner + distance);
}

void CardPainter::titleLine(const Card& card, const CardParts& parts, bool editing)
{
    if (!editing)
        line(card.title, parts.title.width() < parts.titleRoom.width() ? parts.title : parts.titleRoom, m_fonts.title,
            card.usable ? appColours().text : appColours().faint, card.elidesMiddle ? Qt::ElideMiddle : Qt::ElideRight);
    if (!card.symbol.isEmpty())
        symbol(card.symbol, parts.symbol, appColours().soft);
    const int count = std::min(static_cast<int>(card.dots.size()), CardLayout::mostDots);
    const double side = parts.dots.height();
    const double step = count > 1 ? (parts.dots.width() - side) / (count - 1) : 0;
    m_painter.setPen(QPen(faded(appColours().text, 0.18), 1 / m_pixelRatio));
    for (int dot = 0; dot < count; ++dot) {
        m_painter.setBrush(card.dots[m_rightToLeft ? count - 1 - dot : dot]);
        m_painter.drawEllipse(QRectF(parts.dots.left() + dot * step, parts.dots.top(), side, side));
    }
}

void CardPainter::symbol(const QString& name, const QRectF& square, const QColor& ink)
{
    m_painter.save();
    m_painter.translate(square.topLeft());
    m_painter.scale(square.width(), square.height());
    m_painter.fillPath(symbolPath(name), ink);
    m_painter.restore();
}

void CardPainter::line(const QString& text, const QRectF& area, const QFont& font, const QColor& ink,
    Qt::TextElideMode elide, Qt::Alignment alignment)
{
    m_painter.setFont(font);
    m_painter.setPen(ink);
    const QString shown = QFontMetricsF(font).elidedText(text, elide, area.width());
    const int flags = static_cast<int>(alignment | Qt::AlignVCenter) | Qt::TextSingleLine | Qt::TextDontClip;
    m_painter.drawText(area, flags, shown);
}

/// Wrapped at words; the last line is cut where the text is longer.
void CardPainter::lines(const QString& text, const QRectF& area, const QFont& font, const QColor& ink, int count)
{
    const double height = area.height() / count;
    QTextLayout layout(text, font);
    layout.beginLayout();
    int start = 0;
    for (int number = 0; number < count && start < text.size(); ++number) {
        QTextLine next = layout.createLine();
        next.setLineWidth(area.width());
        const QString words = number + 1 == count ? text.mid(start) : text.mid(start, next.textLength()).trimmed();
        line(words, {area.left(), area.top() + number * height, area.width(), height}, font, ink);
        start += next.textLength();
    }
    layout.endLayout();
}

} // namespace ambrelle
