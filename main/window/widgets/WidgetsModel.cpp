// SPDX-License-Identifier: MIT

#include "window/widgets/WidgetsModel.h"

#include "foundation/Wording.h"
#include "window/frame/SearchWords.h"

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString searchedText(WidgetKind kind)
{
    QStringList texts{title(kind), description(kind)};
    for (const WidgetCategory category : allCases<WidgetCategory>()) {
        if (category != WidgetCategory::all && kinds(category).contains(kind))
            texts.append(title(category));
    }
    return texts.join(u'\n');
}

} // namespace

WidgetsModel::WidgetsModel(QObject* parent)
    : QAbstractListModel(parent)
    , m_kinds(kinds(m_category))
{
}

QList<WidgetKind> WidgetsModel::found(WidgetCategory category, const QString& search)
{
    const SearchWords words(search);
    QList<WidgetKind> all = kinds(category);
    all.removeIf([&](WidgetKind kind) { return !words.occurIn(searchedText(kind)); });
    return all;
}

void WidgetsModel::show(WidgetCategory category, const QString& search)
{
    const QList<WidgetKind> wanted = found(category, search);
    if (wanted == m_kinds && category == m_category)
        return;
    beginResetModel();
    m_category = category;
    m_kinds = wanted;
    endResetModel();
}

void WidgetsModel::setGround(const QColor& ground)
{
    if (std::exchange(m_ground, ground) != ground && !m_kinds.isEmpty())
        Q_EMIT dataChanged(first(), index(rowCount() - 1));
}

void WidgetsModel::setAdded(std::optional<WidgetKind> kind)
{
    const std::optional<WidgetKind> before = std::exchange(m_added, kind);
    for (const std::optional<WidgetKind>& each : {before, kind}) {
        const QModelIndex place = each ? indexOf(*each) : QModelIndex();
        if (before != kind && place.isValid())
            Q_EMIT dataChanged(place, place);
    }
}

std::optional<WidgetKind> WidgetsModel::kindAt(const QModelIndex& index) const
{
    if (!index.isValid() || index.row() < 1 || index.row() > m_kinds.size())
        return std::nullopt;
    return m_kinds[index.row() - 1];
}

QModelIndex WidgetsModel::indexOf(WidgetKind kind) const
{
    const qsizetype place = m_kinds.indexOf(kind);
    return place < 0 ? QModelIndex() : index(static_cast<int>(place) + 1);
}

int WidgetsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() || m_kinds.isEmpty() ? 0 : static_cast<int>(m_kinds.size()) + 1;
}

Card WidgetsModel::card(int row) const
{
    Card card;
    if (row == 0) {
        card.isHeading = true;
        card.title = title(m_category);
        card.caption = Wording::tr("Click to add, or drag one to its place");
        return card;
    }
    const WidgetKind kind = m_kinds[row - 1];
    card.title = title(kind);
    card.caption = description(kind);
    card.description = description(kind);
    card.picture = rawValue(kind);
    card.ground = m_ground;
    card.primarySymbol = u"plus"_s;
    card.primaryTip = Wording::tr("Add to Desktop");
    card.menuBadge = false;
    if (m_added == kind)
        card.pill = Wording::tr("Added");
    return card;
}

QVariant WidgetsModel::data(const QModelIndex& index, int role) const
{
    return index.isValid() ? cardData(card(index.row()), role) : QVariant();
}

Qt::ItemFlags WidgetsModel::flags(const QModelIndex& index) const
{
    return index.isValid() ? cardFlags(card(index.row())) : Qt::NoItemFlags;
}

} // namespace ambrelle
