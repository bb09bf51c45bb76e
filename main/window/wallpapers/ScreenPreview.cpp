// SPDX-License-Identifier: MIT

#include "window/wallpapers/ScreenPreview.h"

#include "foundation/Wording.h"
#include "window/cards/PictureShelf.h"
#include "window/look/AccessibleRole.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"

#include <QPainter>
#include <QPainterPath>

#include <algorithm>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double screenCorner = 6;
constexpr int screenTextGap = 14; // beside the picture
constexpr int screenLeastText = 60;
constexpr int screenMostText = 170;
constexpr int screenMostPicture = 200;
constexpr double screenSymbol = 24;

} // namespace

ScreenPreview::ScreenPreview(PictureShelf& shelf, QWidget* parent)
    : QWidget(parent)
    , m_shelf(shelf)
{
    setAccessibleRole(*this, QAccessible::Graphic);
    connect(&shelf, &PictureShelf::arrived, this, [this](const PictureKey& key) {
        if (m_sight.picture == key)
            update();
    });
    connect(&AppLook::shared(), &AppLook::changed, this, [this] {
        updateGeometry();
        update();
    });
}

void ScreenPreview::setSight(const ScreenSight& sight, int height)
{
    if (sight == m_sight && height == m_height)
        return;
    m_sight = sight;
    m_height = height;
    setAccessibleName(Wording::tr("%1 shows %2", "a screen, and its picture").arg(sight.name, sight.shows));
    setToolTip(u"<span>%1<br>%2</span>"_s.arg(sight.name.toHtmlEscaped(), sight.shows.toHtmlEscaped()));
    updateGeometry();
    update();
}

QSize ScreenPreview::pictureSize() const
{
    const double ratio = m_sight.points.isEmpty() ? 1.6 : m_sight.points.width() / m_sight.points.height();
    return {std::clamp(static_cast<int>(std::lround(m_height * ratio)), 1, screenMostPicture), m_height};
}

QSize ScreenPreview::sizeHint() const
{
    const AppLook& look = AppLook::shared();
    const QFontMetricsF name(look.font(TextRole::name));
    const QFontMetricsF caption(look.font(TextRole::caption));
    const auto words = static_cast<int>(
        std::ceil(std::max(name.horizontalAdvance(m_sight.name), caption.horizontalAdvance(m_sight.shows))));
    const int text = std::clamp(words + 1, screenLeastText, look.scaled(screenMostText));
    const auto lines = static_cast<int>(std::ceil(name.height() + caption.height()));
    return {pictureSize().width() + screenTextGap + text, std::max(m_height, lines)};
}

void ScreenPreview::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    QRect picture(QPoint(0, (height() - m_height) / 2), pictureSize());
    QRect room(picture.right() + 1 + screenTextGap, 0, 0, height());
    room.setRight(width() - 1);
    drawPicture(painter, QStyle::visualRect(layoutDirection(), rect(), picture));
    drawTexts(painter, QStyle::visualRect(layoutDirection(), rect(), room));
}

void ScreenPreview::drawPicture(QPainter& painter, const QRectF& area)
{
    const AppColours& colours = AppLook::shared().colours();
    const double ratio = devicePixelRatioF();
    const QSize pixels = (area.size() * ratio).toSize();
    QPixmap picture;
    QList<PictureOrder> wanted;
    if (m_sight.picture) {
        picture = m_shelf.picture(*m_sight.picture, pixels, screenCorner * ratio);
        wanted.append({*m_sight.picture, pixels, screenCorner * ratio});
    }
    if (std::exchange(m_wanted, wanted) != wanted)
        m_shelf.setWanted(*this, wanted);

    if (picture.isNull()) {
        painter.setPen(Qt::NoPen);
        painter.setBrush(colours.placeholder);
        painter.drawRoundedRect(area, screenCorner, screenCorner);
        if (!m_sight.picture || m_shelf.hasFailed(*m_sight.picture)) {
            QRectF symbol(0, 0, screenSymbol, screenSymbol);
            symbol.moveCenter(area.center());
            paintSymbol(painter, symbol, u"photo"_s, colours.soft);
        }
    } else {
        picture.setDevicePixelRatio(ratio);
        painter.drawPixmap(area.topLeft(), picture);
    }
    paintPictureEdge(painter, area, screenCorner);
}

void ScreenPreview::drawTexts(QPainter& painter, const QRect& room) const
{
    const AppLook& look = AppLook::shared();
    const auto line = [&](const QString& text, TextRole role, const QColor& ink, Qt::TextElideMode elide, double top) {
        const QFont font = look.font(role);
        const QFontMetricsF metrics(font);
        painter.setFont(font);
        painter.setPen(ink);
        painter.drawText(QRectF(room.left(), top, room.width(), metrics.height()),
            static_cast<int>(QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft) | Qt::AlignVCenter)
                | Qt::TextSingleLine,
            metrics.elidedText(text, elide, room.width()));
        return top + metrics.height();
    };
    const double lines =
        QFontMetricsF(look.font(TextRole::name)).height() + QFontMetricsF(look.font(TextRole::caption)).height();
    const double top =
        line(m_sight.name, TextRole::name, look.colours().text, Qt::ElideRight, std::floor((height() - lines) / 2));
    line(m_sight.shows, TextRole::caption, look.colours().soft, Qt::ElideMiddle, top);
}

} // namespace ambrelle
