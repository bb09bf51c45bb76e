// SPDX-License-Identifier: MIT

#include "desktop/WidgetStore.h"

#include "foundation/UserDefaults.h"

#include <QJsonObject>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString storageKey = u"widgets.v2"_s;
const QString homesKey = u"widgetHomeSizes"_s; ///< places by the identifiers of widgets

QString homeKey(const WidgetConfig& config)
{
    return config.id.toString(QUuid::WithoutBraces);
}

} // namespace

QList<StoredWidget> WidgetStore::load() const
{
    const std::optional<QByteArray> stored = m_defaults.data(storageKey);
    const auto configs = stored ? WidgetConfig::decodeList(*stored) : std::nullopt;
    const QJsonObject homes = m_defaults.object(homesKey).value_or(QJsonObject());
    QList<StoredWidget> widgets;
    for (const WidgetConfig& config : configs.value_or(QList<WidgetConfig>())) {
        widgets.append({config});
        widgets.last().decodePlace(homes.value(homeKey(config)));
    }
    return widgets;
}

void WidgetStore::save(const QList<StoredWidget>& widgets)
{
    QList<WidgetConfig> configs;
    QJsonObject homes;
    for (const StoredWidget& widget : widgets) {
        configs.append(widget.config);
        if (widget.home)
            homes.insert(homeKey(widget.config), widget.encodePlace());
    }
    const UserDefaults::Transaction both(m_defaults);
    m_defaults.setData(storageKey, WidgetConfig::encodeList(configs));
    if (homes != m_defaults.object(homesKey).value_or(QJsonObject()))
        m_defaults.set(homesKey, homes);
}

} // namespace ambrelle
