// SPDX-License-Identifier: MIT

#include "window/cards/CardLayout.h"

#include "window/look/Measures.h"

#include <algorithm>
#include <cmath>

namespace ambrelle {

namespace {

constexpr int leastCard = 40; // in a window that no user makes
constexpr int belowPicture = 9;
constexpr int belowTitle = 1;
constexpr double textInset = 2;
constexpr int usualTitleLine = 18; // what stands beside a title grows with it
constexpr double usualSymbol = 13;
constexpr double usualDot = 8;
constexpr double symbolGap = 6;
constexpr double dotGap = 4;
constexpr double badgeInset = 8; // from the picture's edges
constexpr double badgeGap = 6;
constexpr double badgeHeight = 28;
constexpr double badgePadding = 13;
constexpr double pillPadding = 8;
constexpr double pillCheck = 16; // with what lies between it and the words
constexpr int leastPill = 22; // its height
constexpr int pillLead = 6; // above and below its words

QRectF mirrored(const QRectF& rect, const QRectF& cell)
{
    if (rect.isEmpty())
        return rect;
    return {cell.left() + cell.right() - rect.right(), rect.top(), rect.width(), rect.height()};
}

} // namespace

CardPart CardParts::partAt(QPointF point) const
{
    if (primary.contains(point))
        return CardPart::primary;
    if (menu.contains(point))
        return CardPart::menu;
    if (picture.contains(point))
        return CardPart::picture;
    if (dots.contains(point))
        return CardPart::dots;
    if (symbol.contains(point))
        return CardPart::symbol;
    if (titleRoom.contains(point) || caption.contains(point))
        return CardPart::title;
    return CardPart::none;
}

CardLayout CardLayout::of(const CardShape& shape, const CardSurroundings& where)
{
    CardLayout layout;
    const int margin = shape.margin.value_or(measures::margin(where.width));
    const int room = std::max(leastCard, where.width - 2 * margin);
    const int width = std::min(room, mostWidth);
    const double least = shape.leastWidth * where.textScale + gap;
    layout.columns = std::clamp(static_cast<int>((width + gap) / least), 1, mostColumns);
    layout.margin = margin + (room - width) / 2;
    layout.inset = std::max(0, layout.margin - cellLead);

    // Cells are whole points, as the list wants them; a card ends on a whole pixel of the screen.
    // One more than the cells need, or the list would break the line before the last of them.
    const int seen = where.width - where.scrollBar - layout.inset;
    const int line = std::min(width + gap, std::max(leastCard + gap, seen - 1));
    const int stride = line / layout.columns;
    const int devicePixels = static_cast<int>(std::floor((stride - gap) * where.pixelRatio + 1e-6));
    layout.pictureDevicePixels = {
        devicePixels, std::max(1, static_cast<int>(std::lround(devicePixels * shape.pictureRatio)))};
    layout.picture = QSizeF(layout.pictureDevicePixels) / where.pixelRatio;
    layout.farInset = std::max(0, seen - line - 1);

    layout.titleLine = where.titleLine;
    layout.captionLine = where.captionLine;
    layout.captionLines = !shape.captions ? 0 : where.textScale > 1 ? 2 : 1;
    const int texts =
        belowPicture + layout.titleLine + (shape.captions ? belowTitle + layout.captionLines * layout.captionLine : 0);
    layout.cell = {stride, static_cast<int>(std::ceil(layout.picture.height())) + texts + rowGap};
    // With the room above a card, 12 lie between a heading and the cards below.
    layout.headingHeight = headingAbove + where.headingLine + 12 - ringRoom;
    return layout;
}

QRectF CardLayout::pictureIn(const QRectF& cell) const
{
    return {cell.topLeft() + QPointF(cellLead, ringRoom), picture};
}

CardParts CardLayout::parts(const QRectF& cell, const CardExtents& extents, bool rightToLeft) const
{
    CardParts parts;
    parts.picture = pictureIn(cell);
    const double symbolSide = usualSymbol * titleLine / usualTitleLine;
    const double dotSide = usualDot * titleLine / usualTitleLine;
    const double left = parts.picture.left() + textInset;
    double right = parts.picture.right() - textInset;
    const double top = cell.top() + ringRoom + std::ceil(picture.height()) + belowPicture;
    const auto inTitle = [&](double x, double width, double height) {
        return QRectF(x, top + (titleLine - height) / 2, width, height);
    };
    if (extents.dots > 0) {
        const int count = std::min(extents.dots, mostDots);
        const double width = count * dotSide + (count - 1) * dotGap;
        parts.dots = inTitle(right - width, width, dotSide);
        right = parts.dots.left() - 2 * dotGap;
    }
    const double room = std::max(0.0, right - left - (extents.symbol ? symbolGap + symbolSide : 0));
    parts.titleRoom = {left, top, room, static_cast<double>(titleLine)};
    parts.title = {left, top, std::min(std::ceil(extents.title), room), static_cast<double>(titleLine)};
    if (extents.symbol)
        parts.symbol = inTitle(parts.title.right() + symbolGap, symbolSide, symbolSide);
    if (captionLines > 0)
        parts.caption = {left, top + titleLine + belowTitle, parts.picture.width() - 2 * textInset,
            static_cast<double>(captionLines * captionLine)};

    const QRectF inside = parts.picture.adjusted(badgeInset, badgeInset, -badgeInset, -badgeInset);
    if (extents.pill > 0) {
        const double height = std::max(leastPill, captionLine + pillLead);
        const double width = 2 * pillPadding + pillCheck * height / leastPill + std::ceil(extents.pill);
        parts.pill = {inside.left(), inside.top(), std::min(inside.width(), width), height};
    }
    double end = inside.right();
    const double badge = std::max(badgeHeight, titleLine + 10.0);
    if (extents.primary != 0) {
        const double width = extents.primary < 0 ? badge : std::ceil(extents.primary) + 2 * badgePadding;
        parts.primary = {end - width, inside.bottom() - badge, width, badge};
        end = parts.primary.left() - badgeGap;
    }
    if (extents.menu)
        parts.menu = {end - badge, inside.bottom() - badge, badge, badge};
    if (rightToLeft) {
        for (QRectF* part : {&parts.picture, &parts.title, &parts.titleRoom, &parts.symbol, &parts.dots, &parts.caption,
                 &parts.pill, &parts.menu, &parts.primary})
            *part = mirrored(*part, cell);
    }
    return parts;
}

} // namespace ambrelle
