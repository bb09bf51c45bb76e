// SPDX-License-Identifier: MIT

#include "window/settings/SettingsList.h"

#include "foundation/Wording.h"
#include "window/look/AppLook.h"
#include "window/look/ControlPainting.h"
#include "window/look/FocusRing.h"
#include "window/look/WindowStyle.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStandardItemModel>
#include <QStyledItemDelegate>

#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int itemHeight = 34;
constexpr int itemGap = 2;
constexpr int itemSide = 11; // before the symbol, after the dot
constexpr int itemSymbol = 18;
constexpr int itemSymbolGap = 10;
constexpr double itemCorner = 7;
constexpr double itemDot = 8;

constexpr int foundRole = Qt::UserRole;
constexpr int searchingRole = Qt::UserRole + 1;

struct ChapterRow {
    const char* title;
    QLatin1StringView symbol;
};

constexpr auto chapterRows = std::to_array<ChapterRow>({
    {QT_TRANSLATE_NOOP("ambrelle", "General"), "gearshape"_L1},
    {QT_TRANSLATE_NOOP("ambrelle", "Desktop"), "desktopcomputer"_L1},
    {QT_TRANSLATE_NOOP("ambrelle", "Weather"), "cloud.sun"_L1},
    {QT_TRANSLATE_NOOP("ambrelle", "Calendars"), "calendar"_L1},
    {QT_TRANSLATE_NOOP("ambrelle", "Focus"), "timer"_L1},
    {QT_TRANSLATE_NOOP("ambrelle", "Updates"), "arrow.triangle.2.circlepath"_L1},
    {QT_TRANSLATE_NOOP("ambrelle", "About"), "info.circle"_L1},
});

const ChapterRow& chapterRow(SettingsChapter chapter)
{
    return chapterRows.at(static_cast<std::size_t>(chapter));
}

class ChapterPainter final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    QSize sizeHint(const QStyleOptionViewItem& option, const QModelIndex&) const override
    {
        return {option.rect.width(), AppLook::shared().scaled(itemHeight + itemGap)};
    }

    void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override
    {
        const AppColours& colours = AppLook::shared().colours();
        const QRect plate = option.rect.adjusted(0, 0, 0, -itemGap);
        const bool searching = index.data(searchingRole).toBool();
        const bool chosen = option.state.testFlag(QStyle::State_Selected) && !searching;
        painter->save();
        painter->setRenderHint(QPainter::Antialiasing);
        painter->setPen(Qt::NoPen);
        if (chosen || option.state.testFlag(QStyle::State_MouseOver)) {
            painter->setBrush(chosen ? colours.accent : colours.track);
            painter->drawRoundedRect(plate, itemCorner, itemCorner);
        }
        if (option.state.testFlag(QStyle::State_HasFocus) && FocusRing::shared().isShown()) {
            constexpr double inset = 3;
            WindowStyle::drawRing(*painter, QRectF(plate).adjusted(inset, inset, -inset, -inset), itemCorner - inset,
                chosen ? colours.onAccent : colours.accent);
        }
        content(*painter, plate, option, index, chosen);
        painter->restore();
    }

private:
    static void content(QPainter& painter, const QRect& plate, const QStyleOptionViewItem& option,
        const QModelIndex& index, bool chosen)
    {
        const AppLook& look = AppLook::shared();
        const AppColours& colours = look.colours();
        const bool dimmed = !index.data(foundRole).toBool();
        const auto part = [&](double x, double width) {
            const QRect rect(plate.left() + qRound(x), plate.top(), qRound(width), plate.height());
            return QRectF(QStyle::visualRect(option.direction, plate, rect));
        };
        const double side = look.scaled(itemSymbol);
        QRectF symbol(0, 0, side, side);
        symbol.moveCenter(part(itemSide, side).center());
        const auto chapter = static_cast<SettingsChapter>(index.row());
        paintSymbol(painter, symbol, chapterRow(chapter).symbol,
            chosen       ? colours.onAccent
                : dimmed ? colours.faint
                         : colours.soft);
        const bool hasDot = !index.data(Qt::AccessibleDescriptionRole).toString().isEmpty();
        const double left = itemSide + side + itemSymbolGap;
        const double end = plate.width() - itemSide - (hasDot ? itemDot + itemSide : 0);
        painter.setFont(look.font(TextRole::name));
        painter.setPen(chosen ? colours.onAccent : dimmed ? colours.faint : colours.text);
        const QString text =
            QFontMetricsF(painter.font()).elidedText(index.data().toString(), Qt::ElideRight, end - left);
        painter.drawText(
            part(left, end - left), QStyle::visualAlignment(option.direction, Qt::AlignLeft | Qt::AlignVCenter), text);
        if (!hasDot)
            return;
        painter.setPen(Qt::NoPen);
        painter.setBrush(chosen ? colours.onAccent : colours.accent);
        painter.drawEllipse(part(plate.width() - itemSide - itemDot, itemDot).center(), itemDot / 2, itemDot / 2);
    }
};

} // namespace

QString title(SettingsChapter chapter)
{
    return Wording::tr(chapterRow(chapter).title);
}

SettingsList::SettingsList(QWidget* parent)
    : QListView(parent)
{
    auto* items = new QStandardItemModel(this);
    for (std::size_t index = 0; index < chapterRows.size(); ++index) {
        auto* item = new QStandardItem(title(static_cast<SettingsChapter>(index)));
        item->setEditable(false);
        item->setData(true, foundRole);
        items->appendRow(item);
    }
    setModel(items);
    setItemDelegate(new ChapterPainter(this));
    setAccessibleName(Wording::tr("Sections"));
    setFrameShape(NoFrame);
    setUniformItemSizes(true);
    setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    setMouseTracking(true);
    viewport()->setAutoFillBackground(false);
    connect(&AppLook::shared(), &AppLook::changed, this, [this] {
        scheduleDelayedItemsLayout();
        updateGeometry();
    });
}

void SettingsList::setChosen(SettingsChapter chapter)
{
    const QSignalBlocker quiet(this);
    setCurrentIndex(model()->index(static_cast<int>(chapter), 0));
}

void SettingsList::setFound(const std::optional<QSet<SettingsChapter>>& found)
{
    m_searching = found.has_value();
    for (int row = 0; row < model()->rowCount(); ++row) {
        const QModelIndex index = model()->index(row, 0);
        model()->setData(index, !found || found->contains(static_cast<SettingsChapter>(row)), foundRole);
        model()->setData(index, m_searching, searchingRole);
    }
}

void SettingsList::setNews(SettingsChapter chapter, const QString& news)
{
    const QModelIndex index = model()->index(static_cast<int>(chapter), 0);
    model()->setData(index, news, Qt::AccessibleDescriptionRole);
    model()->setData(index, news, Qt::ToolTipRole);
}

void SettingsList::setMargins(int sides, int top)
{
    setViewportMargins(sides, top, sides, 0);
}

QSize SettingsList::sizeHint() const
{
    return {QListView::sizeHint().width(),
        AppLook::shared().scaled(itemHeight + itemGap) * static_cast<int>(chapterRows.size())};
}

void SettingsList::currentChanged(const QModelIndex& current, const QModelIndex& previous)
{
    QListView::currentChanged(current, previous);
    chooseCurrent();
}

void SettingsList::chooseCurrent()
{
    if (currentIndex().isValid())
        Q_EMIT chose(static_cast<SettingsChapter>(currentIndex().row()));
}

/// The section that was shown before the search is current all the time, and can be chosen again.
void SettingsList::mousePressEvent(QMouseEvent* event)
{
    QListView::mousePressEvent(event);
    if (m_searching && event->button() == Qt::LeftButton && indexAt(event->position().toPoint()).isValid())
        chooseCurrent();
}

void SettingsList::keyPressEvent(QKeyEvent* event)
{
    const bool enters =
        event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter || event->key() == Qt::Key_Space;
    if (enters)
        chooseCurrent();
    else
        QListView::keyPressEvent(event);
}

void SettingsList::focusInEvent(QFocusEvent* event)
{
    QListView::focusInEvent(event);
    viewport()->update();
}

} // namespace ambrelle
