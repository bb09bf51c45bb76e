// SPDX-License-Identifier: MIT

#include "drawing/Colours.h"
#include "window/cards/CardDelegate.h"
#include "window/cards/CardPainter.h"
#include "window/look/AppLook.h"

#include <QPainter>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double badgeCorner = 8;
constexpr double noticeSymbolSide = 24;
constexpr double plateHeight = 30; // of the sentence over a card at work
constexpr double platePadding = 11;
constexpr double progressSide = 15;
constexpr double darkened = 0.45;
constexpr QColor plateColour{0x16, 0x14, 0x18, 217};
constexpr double pillCheckSide = 13;
constexpr double leastPillHeight = 22;

} // namespace

void CardPainter::notice(const Card& card, const QRectF& area, const QColor& ink)
{
    const double words = card.notice.isEmpty() ? 0 : QFontMetricsF(m_fonts.caption).height();
    const double gap = words > 0 ? 8 : 0;
    QRectF square(0, 0, noticeSymbolSide, noticeSymbolSide);
    square.moveCenter(area.center());
    square.translate(0, -(words + gap) / 2);
    symbol(card.noticeSymbol, square, ink);
    if (words > 0)
        line(card.notice, {area.left() + 8, square.bottom() + gap, area.width() - 16, words}, m_fonts.caption, ink,
            Qt::ElideRight, Qt::AlignHCenter);
}

void CardPainter::working(const Card& card, const QRectF& area, double turn)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(faded(Qt::black, darkened));
    m_painter.drawRoundedRect(area, CardLayout::corner, CardLayout::corner);

    const QFontMetricsF metrics(m_fonts.name);
    const double lead = platePadding + progressSide + 8;
    const double height = std::max(plateHeight, metrics.height() + 10);
    QRectF plate(0, 0,
        std::min(area.width() - 16, lead + std::ceil(metrics.horizontalAdvance(card.notice)) + platePadding), height);
    plate.moveCenter(area.center());
    m_painter.setBrush(plateColour);
    m_painter.drawRoundedRect(plate, height / 2, height / 2);
    QRectF circle(plate.left() + platePadding, plate.center().y() - progressSide / 2, progressSide, progressSide);
    QRectF words = plate.adjusted(lead, 0, -platePadding, 0);
    if (m_rightToLeft) {
        circle.moveRight(plate.right() - platePadding);
        words = plate.adjusted(platePadding, 0, -lead, 0);
    }
    progress(circle, turn);
    line(card.notice, words, m_fonts.name, Qt::white);
}

void CardPainter::progress(const QRectF& area, double turn)
{
    const QColor moving = AppLook::colours({.dark = true}).accent; // on a dark plate in both appearances
    if (AppLook::shared().wishes().reducesMotion) {
        m_painter.setPen(Qt::NoPen);
        m_painter.setBrush(moving);
        for (const double place : {0.125, 0.5, 0.875})
            m_painter.drawEllipse(QPointF(area.left() + place * area.width(), area.center().y()), 1.75, 1.75);
        return;
    }
    const QRectF middle = area.adjusted(1.25, 1.25, -1.25, -1.25);
    m_painter.setBrush(Qt::NoBrush);
    m_painter.setPen(QPen(faded(Qt::white, 0.25), 2.5));
    m_painter.drawEllipse(middle);
    m_painter.setPen(QPen(moving, 2.5, Qt::SolidLine, Qt::RoundCap));
    m_painter.drawArc(middle, static_cast<int>((90 - 360 * turn) * 16), -100 * 16);
}

void CardPainter::pill(const QString& words, const QRectF& area)
{
    m_painter.setPen(Qt::NoPen);
    m_painter.setBrush(AppLook::shared().colours().accent);
    m_painter.drawRoundedRect(area, area.height() / 2, area.height() / 2);
    const double side = pillCheckSide * area.height() / leastPillHeight;
    QRectF check(area.left() + 7, area.center().y() - side / 2, side, side);
    QRectF text = area.adjusted(check.right() + 3 - area.left(), 0, -7, 0);
    if (m_rightToLeft) {
        check.moveRight(area.right() - 7);
        text = area.adjusted(7, 0, check.left() - 3 - area.right(), 0);
    }
    symbol(u"checkmark"_s, check, AppLook::shared().colours().onAccent);
    line(words, text, m_fonts.pill, AppLook::shared().colours().onAccent);
}

void CardPainter::badges(const Card& card, const CardParts& parts, const CardSight& sight)
{
    if (sight.hover <= 0)
        return;
    const auto state = [&](CardPart part) { return sight.part != part ? 0 : sight.pressed ? 0.1 : 0.04; };
    m_painter.setOpacity(sight.hover);
    if (!parts.menu.isEmpty())
        badge(parts.menu, {}, u"ellipsis"_s, false, state(CardPart::menu));
    if (!parts.primary.isEmpty())
        badge(parts.primary, card.primary, card.primarySymbol, true, state(CardPart::primary));
    m_painter.setOpacity(1);
}

void CardPainter::badge(const QRectF& area, const QString& words, const QString& name, bool chief, double state)
{
    const AppColours& colours = AppLook::shared().colours();
    const QRectF plate = onPixels(area);
    const double corner = chief && words.isEmpty() ? plate.height() / 2 : badgeCorner;
    m_painter.setPen(chief ? QPen(Qt::NoPen) : QPen(colours.edge, 1));
    m_painter.setBrush(
        blended(chief ? colours.accent : colours.button, chief ? colours.onAccent : colours.text, state));
    m_painter.drawRoundedRect(chief ? plate : plate.adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    const QColor ink = chief ? colours.onAccent : colours.text;
    if (!words.isEmpty()) {
        line(words, plate, m_fonts.title, ink, Qt::ElideNone, Qt::AlignHCenter);
        return;
    }
    QRectF square(0, 0, 18, 18);
    square.moveCenter(plate.center());
    symbol(name, square, ink);
}

} // namespace ambrelle
