// SPDX-License-Identifier: MIT

#include "window/themes/FilmDelegate.h"

#include "drawing/Colours.h"
#include "foundation/Wording.h"
#include "window/cards/PictureShelf.h"
#include "window/cards/ShelfPictures.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/look/FocusRing.h"

#include <QAbstractItemView>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>

#include <algorithm>
#include <cmath>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int frameWidth = 98;
constexpr int frameHeight = 61;
constexpr int frameGap = 12; // from one to the next
constexpr int frameLead = 6; // above a picture
constexpr int nameGap = 7; // below it, the ring's room included
constexpr int nameMargin = 2; // at both sides
constexpr double frameCorner = 6;
constexpr double ringDistance = 2;
constexpr double currentRing = 3; // wide
constexpr double restingRing = 2;

QFont nameFont(bool isCurrent)
{
    QFont font = AppLook::shared().font(TextRole::caption);
    if (isCurrent)
        font.setWeight(QFont::DemiBold);
    return font;
}

int nameLine()
{
    return std::max(AppLook::shared().scaled(16), QFontMetrics(AppLook::shared().font(TextRole::caption)).height());
}

} // namespace

FilmDelegate::FilmDelegate(PictureShelf& shelf, QAbstractItemView& view)
    : QAbstractItemDelegate(&view)
    , m_shelf(shelf)
{
}

QSize FilmDelegate::cell()
{
    return {frameWidth + frameGap, frameLead + frameHeight + nameGap + nameLine() + frameLead};
}

int FilmDelegate::pictureMiddle()
{
    return frameLead + frameHeight / 2;
}

PictureOrder FilmDelegate::orderOf(const QModelIndex& index, double pixelRatio)
{
    const QSizeF size = QSizeF(frameWidth, frameHeight) * pixelRatio;
    return {index.data(pictureKeyRole).value<PictureKey>(),
        {static_cast<int>(size.width()), static_cast<int>(size.height())}, frameCorner * pixelRatio};
}

QSize FilmDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex&) const
{
    return cell();
}

void FilmDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const AppColours& colours = AppLook::shared().colours();
    const bool isCurrent = option.state.testFlag(QStyle::State_Selected);
    const QRectF area(option.rect.left() + frameGap / 2.0, option.rect.top() + frameLead, frameWidth, frameHeight);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    paintPicture(*painter, area, index);
    paintPictureEdge(*painter, area, frameCorner, option.state.testFlag(QStyle::State_MouseOver) ? 1 : 0);
    if (isCurrent) {
        const bool hasFocus = option.state.testFlag(QStyle::State_HasFocus) && FocusRing::shared().isShown();
        const double width = hasFocus ? currentRing : restingRing;
        const double distance = ringDistance + width / 2;
        painter->setBrush(Qt::NoBrush);
        painter->setPen(QPen(colours.accent, width));
        painter->drawRoundedRect(
            area.adjusted(-distance, -distance, distance, distance), frameCorner + distance, frameCorner + distance);
    }
    const QFont font = nameFont(isCurrent);
    painter->setFont(font);
    painter->setPen(isCurrent ? colours.text : colours.soft);
    const QRectF name(
        option.rect.left() + nameMargin, area.bottom() + nameGap, option.rect.width() - 2 * nameMargin, nameLine());
    painter->drawText(name, Qt::AlignHCenter | Qt::AlignVCenter | Qt::TextSingleLine,
        QFontMetricsF(font).elidedText(cardAt(index).title, Qt::ElideRight, name.width()));
    painter->restore();
}

bool FilmDelegate::helpEvent(
    QHelpEvent* event, QAbstractItemView* view, const QStyleOptionViewItem& option, const QModelIndex& index)
{
    if (event->type() != QEvent::ToolTip)
        return QAbstractItemDelegate::helpEvent(event, view, option, index);
    const Card card = cardAt(index);
    const bool isCut = QFontMetricsF(nameFont(index == view->currentIndex())).horizontalAdvance(card.title)
        > cell().width() - 2 * nameMargin;
    QStringList lines{
        isCut ? card.title : QString(), card.state == Card::State::failed ? Wording::tr("No preview") : QString()};
    lines.removeAll(QString());
    // Names of others are no markup.
    const QString tip = u"<span>%1</span>"_s.arg(lines.join(u'\n').toHtmlEscaped().replace(u'\n', u"<br>"_s));
    QToolTip::showText(event->globalPos(), lines.isEmpty() ? QString() : tip, view->viewport());
    return true;
}

void FilmDelegate::paintPicture(QPainter& painter, const QRectF& area, const QModelIndex& index) const
{
    const AppLook& look = AppLook::shared();
    const double ratio = painter.device()->devicePixelRatioF();
    const PictureOrder order = orderOf(index, ratio);
    QPixmap picture = m_shelf.picture(order.key, order.pixels, order.corner);
    if (picture.isNull())
        picture = m_shelf.standIn(order.key);
    if (picture.isNull()) {
        const QColor ground = cardAt(index).ground;
        painter.setPen(Qt::NoPen);
        painter.setBrush(
            ground.isValid() ? blended(look.colours().placeholder, ground, 0.5) : look.colours().placeholder);
        painter.drawRoundedRect(area, frameCorner, frameCorner);
    } else {
        const QPointF corner = painter.deviceTransform().map(area.topLeft());
        const QPointF whole(std::round(corner.x()), std::round(corner.y()));
        painter.save();
        painter.translate(area.topLeft() + (whole - corner) / ratio);
        painter.scale(1 / ratio, 1 / ratio);
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawPixmap(QRect(QPoint(), order.pixels), picture, picture.rect());
        painter.restore();
    }
}

} // namespace ambrelle
