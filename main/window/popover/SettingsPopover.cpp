// SPDX-License-Identifier: MIT

#include "window/popover/SettingsPopover.h"

#include "drawing/Colours.h"
#include "drawing/Symbols.h"
#include "foundation/Wording.h"
#include "window/look/AppLook.h"
#include "window/look/ReadingOrder.h"
#include "window/look/WindowStyle.h"
#include "window/popover/KindRows.h"
#include "window/popover/SettingsForm.h"

#include <QMouseEvent>
#include <QPainter>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyle>
#include <QVBoxLayout>

namespace ambrelle {

namespace {

constexpr int cardWidth = 380; // of the card, points
constexpr int padding = 18;
constexpr int headerHeight = 32;
constexpr int headerGap = 14;
constexpr int titleGap = 12; // beside the badge
constexpr double corner = 14;
constexpr int shadowReach = 22;
constexpr int shadowDrop = 6;
constexpr double shadowOpacity = 0.02; // of its innermost layer; each covers those within
constexpr double badgeCorner = 9;
constexpr double badgeSymbolSize = 19;

void addKindRows(SettingsForm& form, const Clock& clock)
{
    switch (form.config().kind) {
    case WidgetKind::clock: addClockRows(form); break;
    case WidgetKind::photo: addPhotoRows(form); break;
    case WidgetKind::countdown: addCountdownRows(form, clock); break;
    case WidgetKind::quote: addQuoteRows(form); break;
    default: return;
    }
    form.addRule();
}

void paintShadow(QPainter& painter, const QRectF& card)
{
    painter.setPen(Qt::NoPen);
    constexpr int layers = shadowReach - shadowDrop;
    for (int reach = layers; reach > 0; --reach) {
        painter.setBrush(faded(Qt::black, shadowOpacity * (layers - reach + 1) / layers));
        const QRectF layer = card.adjusted(-reach, shadowDrop - reach, reach, shadowDrop + reach);
        painter.drawRoundedRect(layer, corner + reach, corner + reach);
    }
}

} // namespace

SettingsPopover::SettingsPopover(WidgetController& widget, const Clock& clock, bool composited)
    : QWidget(nullptr, Qt::Popup | Qt::FramelessWindowHint | Qt::NoDropShadowWindowHint)
    , m_composited(composited)
    , m_symbol(symbol(widget.config().kind))
    , m_title(title(widget.config().kind))
    , m_form(new SettingsForm(widget))
{
    setAttribute(Qt::WA_DeleteOnClose);
    setAttribute(Qt::WA_TranslucentBackground, composited);
    setWindowTitle(Wording::tr("Widget Settings…"));
    setAccessibleName(Wording::tr("%1 Settings").arg(m_title));
    addKindRows(*m_form, clock);
    addAppearanceRows(*m_form);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(shadow() + QMargins(padding, padding + headerHeight + headerGap, padding, padding));
    column->addWidget(m_form);
    setFixedWidth(cardWidth + shadow().left() + shadow().right());
    connect(&widget, &WidgetController::closed, this, &QWidget::close);
}

QMargins SettingsPopover::shadow() const
{
    return m_composited ? QMargins(shadowReach, shadowReach, shadowReach, shadowReach) : QMargins();
}

void SettingsPopover::limitHeight(int most)
{
    const int surplus = sizeHint().shrunkBy(shadow()).height() - most;
    if (surplus <= 0)
        return;
    const QSize rows = m_form->sizeHint();
    auto* scroll = new QScrollArea;
    delete layout()->replaceWidget(m_form, scroll);
    scroll->setFrameShape(QFrame::NoFrame);
    scroll->setFocusPolicy(Qt::NoFocus);
    scroll->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    scroll->setWidgetResizable(true);
    scroll->setWidget(m_form);
    scroll->setFixedHeight(std::max(WindowStyle::controlHeight, rows.height() - surplus));
    // The card is painted by this widget alone.
    m_form->setAutoFillBackground(false);
    scroll->viewport()->setAutoFillBackground(false);
    setFixedWidth(width() + scroll->verticalScrollBar()->sizeHint().width());
}

QRectF SettingsPopover::card() const
{
    return QRectF(rect()).marginsRemoved(shadow());
}

void SettingsPopover::showEvent(QShowEvent* event)
{
    QWidget::showEvent(event);
    m_form->firstControl()->setFocus(Qt::TabFocusReason); // what is typed replaces the text that is there
}

void SettingsPopover::mousePressEvent(QMouseEvent* event)
{
    if (card().contains(event->position()))
        return;
    close();
}

void SettingsPopover::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_composited)
        return;
    QPainterPath outline;
    outline.addRoundedRect(card(), corner, corner);
    setMask(QRegion(outline.toFillPolygon().toPolygon()));
}

void SettingsPopover::paintEvent(QPaintEvent*)
{
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_composited)
        paintShadow(painter, card());
    painter.setBrush(palette().color(QPalette::Window));
    painter.setPen(QPen(AppLook::shared().colours().edge, 1));
    painter.drawRoundedRect(card().adjusted(0.5, 0.5, -0.5, -0.5), corner, corner);
    paintHeader(painter);
}

void SettingsPopover::paintHeader(QPainter& painter) const
{
    const QRectF header(
        card().topLeft() + QPointF(padding, padding), QSizeF(card().width() - 2 * padding, headerHeight));
    const QRectF badge =
        inReadingOrder({header.topLeft(), QSizeF(headerHeight, headerHeight)}, header, layoutDirection());
    const QRectF words = inReadingOrder(header.adjusted(headerHeight + titleGap, 0, 0, 0), header, layoutDirection());
    const QColor accent = palette().color(QPalette::Highlight);
    painter.setPen(Qt::NoPen);
    painter.setBrush(faded(accent, 0.16));
    painter.drawRoundedRect(badge, badgeCorner, badgeCorner);
    painter.save();
    painter.translate(badge.center() - QPointF(badgeSymbolSize, badgeSymbolSize) / 2);
    painter.scale(badgeSymbolSize, badgeSymbolSize);
    painter.fillPath(symbolPath(m_symbol), accent);
    painter.restore();
    QFont bold = font();
    bold.setPixelSize(16);
    bold.setWeight(QFont::DemiBold);
    painter.setFont(bold);
    painter.setPen(palette().color(QPalette::WindowText));
    painter.drawText(words, QStyle::visualAlignment(layoutDirection(), Qt::AlignVCenter | Qt::AlignLeft), m_title);
}

} // namespace ambrelle
