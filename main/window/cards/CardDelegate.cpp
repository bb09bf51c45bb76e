// SPDX-License-Identifier: MIT

#include "window/cards/CardDelegate.h"

#include "foundation/Wording.h"
#include "window/cards/CardPainter.h"
#include "window/look/AppLook.h"

#include <QFontMetricsF>
#include <QLineEdit>
#include <QPainter>

#include <algorithm>

namespace ambrelle {

namespace {

constexpr int editorHeight = 24;
constexpr int editorOverhang = 5; // at both ends of the room for a name

} // namespace

CardFonts CardFonts::current()
{
    const AppLook& look = AppLook::shared();
    return {look.font(TextRole::heading), look.font(TextRole::cardTitle), look.font(TextRole::caption),
        look.font(TextRole::name), look.font(TextRole::badge)};
}

CardDelegate::CardDelegate(QObject* parent)
    : QStyledItemDelegate(parent)
{
    dress();
}

void CardDelegate::dress()
{
    m_fonts = CardFonts::current();
    const AppLook& look = AppLook::shared();
    m_motion.setTimes(look.milliseconds(120), look.milliseconds(250));
}

bool CardDelegate::isOnFirstLine(int row) const
{
    return row == 0
        || (row < m_layout.columns
            && !m_headings.first(std::min<qsizetype>(row + 1, m_headings.size())).contains(true));
}

CardParts CardDelegate::parts(const Card& card, const QRectF& cell, bool rightToLeft, bool editing) const
{
    CardExtents extents;
    const auto width = [](const QFont& font, const QString& text) {
        return text.isEmpty() ? 0 : QFontMetricsF(font).horizontalAdvance(text);
    };
    extents.title = editing ? cell.width() : width(m_fonts.title, card.title);
    extents.symbol = !card.symbol.isEmpty();
    extents.dots = static_cast<int>(card.dots.size());
    extents.pill = width(m_fonts.pill, card.pill);
    if (card.state == Card::State::idle || card.state == Card::State::failed) {
        extents.menu = card.hasMenu && card.menuBadge;
        if (card.usable)
            extents.primary = !card.primary.isEmpty() ? width(m_fonts.title, card.primary)
                : card.primarySymbol.isEmpty()        ? 0
                                                      : -1;
    }
    return m_layout.parts(cell, extents, rightToLeft);
}

QString CardDelegate::toolTip(const Card& card, const CardParts& parts, CardPart part) const
{
    const auto unlessItFits = [](const QFont& font, const QString& text, double room) {
        return QFontMetricsF(font).horizontalAdvance(text) > room ? text : QString();
    };
    switch (part) {
    case CardPart::none: return {};
    case CardPart::menu: return Wording::tr("More");
    case CardPart::primary: return card.primaryTip;
    case CardPart::symbol: return card.symbolTip;
    case CardPart::title: {
        QStringList cut{unlessItFits(m_fonts.title, card.title, parts.titleRoom.width()),
            unlessItFits(m_fonts.caption, card.caption, parts.caption.width())};
        cut.removeAll(QString());
        if (!cut.isEmpty())
            return cut.join(u'\n');
        [[fallthrough]];
    }
    default: break;
    }
    if (card.toolTip.isEmpty() && card.state == Card::State::failed)
        return Wording::tr("No preview");
    return card.toolTip;
}

void CardDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const Card card = cardAt(index);
    CardPainter drawing(*painter, m_layout, m_fonts, option.direction == Qt::RightToLeft);
    if (card.isHeading) {
        drawing.heading(card, option.rect);
        return;
    }
    CardSight sight;
    if (!card.picture.isEmpty() && m_pictures && card.state != Card::State::tile)
        sight.picture = m_pictures->picture(index, m_layout.pictureDevicePixels);
    if (sight.picture.isNull())
        m_motion.await(index);
    else
        m_motion.arrive(index, now);
    sight.arrived = m_motion.arrived(index);
    sight.hover = card.usable || card.hasMenu ? m_motion.hovering(index) : 0;
    if (pointer.index == index) {
        sight.part = pointer.part;
        sight.pressed = pointer.pressed;
    }
    sight.editing = m_edited == index;
    const bool viewFocused =
        sight.editing || (option.state.testFlag(QStyle::State_HasFocus) && option.state.testFlag(QStyle::State_Active));
    sight.ring = option.state.testFlag(QStyle::State_Selected)
        ? (viewFocused ? CardSight::Ring::selected : CardSight::Ring::resting)
        : viewFocused && showsFocus ? CardSight::Ring::focused
                                    : CardSight::Ring::none;
    sight.ringTurn = ringTurn;
    m_paintedProgress = m_paintedProgress || card.state == Card::State::working;
    drawing.card(card, parts(card, option.rect, option.direction == Qt::RightToLeft, sight.editing), sight);
}

QSize CardDelegate::sizeHint(const QStyleOptionViewItem&, const QModelIndex& index) const
{
    const int row = index.row();
    const bool isHeading = row < m_headings.size() ? m_headings[row] : cardAt(index).isHeading;
    const QSize size =
        isHeading ? QSize(m_layout.columns * m_layout.cell.width(), m_layout.headingHeight) : m_layout.cell;
    return isOnFirstLine(row) ? size + QSize(0, m_headerHeight) : size;
}

QWidget* CardDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&, const QModelIndex& index) const
{
    m_edited = index;
    auto* editor = new QLineEdit(parent);
    editor->setFont(m_fonts.title);
    editor->setTextMargins(-editorOverhang, 0, -editorOverhang, 0); // the text stays where it was
    editor->setMaxLength(longestCardName);
    editor->setAccessibleName(Wording::tr("Name"));
    return editor;
}

void CardDelegate::destroyEditor(QWidget* editor, const QModelIndex& index) const
{
    m_edited = QModelIndex();
    QStyledItemDelegate::destroyEditor(editor, index);
}

void CardDelegate::updateEditorGeometry(
    QWidget* editor, const QStyleOptionViewItem& option, const QModelIndex& index) const
{
    const CardParts all = parts(cardAt(index), option.rect, option.direction == Qt::RightToLeft);
    const int height = std::max(AppLook::shared().scaled(editorHeight), editor->fontMetrics().height() + 4);
    QRectF place = all.titleRoom.adjusted(-editorOverhang, 0, editorOverhang, 0);
    place.setTop(all.titleRoom.center().y() - height / 2.0);
    place.setHeight(height);
    editor->setFixedHeight(height);
    editor->setGeometry(place.toRect());
}

void CardDelegate::setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const
{
    const auto* field = qobject_cast<QLineEdit*>(editor);
    const QString name = field ? field->text().trimmed() : QString();
    if (!name.isEmpty() && name != index.data(Qt::EditRole).toString())
        model->setData(index, name, Qt::EditRole);
}

} // namespace ambrelle
