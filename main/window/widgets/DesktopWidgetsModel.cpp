// SPDX-License-Identifier: MIT

#include "window/widgets/DesktopWidgetsModel.h"

#include "foundation/Wording.h"
#include "placement/ScreenNames.h"
#include "placement/ScreenPlacement.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString nameOfScreen(const WidgetConfig& config, const QList<ScreenInfo>& screens)
{
    const std::optional<ScreenInfo> screen = ScreenPlacement::screenNear(config.frame(), screens);
    return screen ? screenNames(screens).value(screens.indexOf(*screen)) : QString();
}

} // namespace

DesktopWidget DesktopWidget::of(const WidgetConfig& config, const QList<ScreenInfo>& screens)
{
    DesktopWidget widget{.id = config.id,
        .symbol = ambrelle::symbol(config.kind),
        .title = ambrelle::title(config.kind),
        .pinned = config.pinned};
    if (config.kind == WidgetKind::clock && config.city && !config.city->isEmpty())
        widget.title += u" · "_s + *config.city;
    QStringList parts{ambrelle::title(config.skin)};
    if (config.scale != WidgetScale::medium)
        parts.append(ambrelle::title(config.scale));
    if (screens.size() > 1)
        parts.append(nameOfScreen(config, screens));
    widget.caption = parts.join(u" · "_s);
    return widget;
}

void DesktopWidgetsModel::setWidgets(const QList<DesktopWidget>& widgets)
{
    const auto isIn = [](const QList<DesktopWidget>& list, const QUuid& id) {
        return std::ranges::find(list, id, &DesktopWidget::id) != list.end();
    };
    for (int row = rowCount() - 1; row >= 0; --row) {
        if (isIn(widgets, m_widgets[row].id))
            continue;
        beginRemoveRows({}, row, row);
        m_widgets.removeAt(row);
        endRemoveRows();
    }
    for (int row = 0; row < widgets.size(); ++row) {
        const DesktopWidget& widget = widgets[row];
        const int from = indexOf(widget.id).row();
        if (from < 0) {
            beginInsertRows({}, row, row);
            m_widgets.insert(row, widget);
            endInsertRows();
        } else if (from > row) {
            beginMoveRows({}, from, from, {}, row);
            m_widgets.move(from, row);
            endMoveRows();
        }
        if (std::exchange(m_widgets[row], widget) != widget)
            Q_EMIT dataChanged(index(row), index(row));
    }
}

QUuid DesktopWidgetsModel::idAt(const QModelIndex& index) const
{
    return index.isValid() ? m_widgets[index.row()].id : QUuid();
}

QModelIndex DesktopWidgetsModel::indexOf(const QUuid& id) const
{
    const auto found = std::ranges::find(m_widgets, id, &DesktopWidget::id);
    return found == m_widgets.end() ? QModelIndex() : index(static_cast<int>(found - m_widgets.begin()));
}

int DesktopWidgetsModel::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_widgets.size());
}

QVariant DesktopWidgetsModel::data(const QModelIndex& index, int role) const
{
    if (!index.isValid())
        return {};
    const DesktopWidget& widget = m_widgets[index.row()];
    switch (role) {
    case desktopWidgetRole: return QVariant::fromValue(widget);
    case Qt::DisplayRole: return widget.title;
    case Qt::AccessibleDescriptionRole:
        return widget.pinned ? Wording::tr("%1, pinned above windows").arg(widget.caption) : widget.caption;
    default: return {};
    }
}

} // namespace ambrelle
