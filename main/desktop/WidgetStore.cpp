// SPDX-License-Identifier: MIT

#include "desktop/WidgetStore.h"

#include "foundation/UserDefaults.h"

#include <QJsonArray>
#include <QJsonObject>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString storageKey = u"widgets.v2"_s;
const QString homeSizesKey = u"widgetHomeSizes"_s; ///< [width, height] of each widget's display, by its identifier

QString homeKey(const WidgetConfig& config)
{
    return config.id.toString(QUuid::WithoutBraces);
}

std::optional<QSizeF> sizeFrom(const QJsonValue& stored)
{
    const QSizeF size(stored.toArray().at(0).toDouble(), stored.toArray().at(1).toDouble());
    return size.isEmpty() ? std::nullopt : std::optional(size);
}

} // namespace

QList<StoredWidget> WidgetStore::load() const
{
    const std::optional<QByteArray> stored = m_defaults.data(storageKey);
    const auto configs = stored ? WidgetConfig::decodeList(*stored) : std::nullopt;
    const QJsonObject homeSizes = m_defaults.object(homeSizesKey).value_or(QJsonObject());
    QList<StoredWidget> widgets;
    for (const WidgetConfig& config : configs.value_or(QList<WidgetConfig>()))
        widgets.append({config, sizeFrom(homeSizes.value(homeKey(config)))});
    return widgets;
}

void WidgetStore::save(const QList<StoredWidget>& widgets)
{
    QList<WidgetConfig> configs;
    QJsonObject homeSizes;
    for (const auto& [config, homeSize] : widgets) {
        configs.append(config);
        if (homeSize)
            homeSizes.insert(homeKey(config), QJsonArray{homeSize->width(), homeSize->height()});
    }
    m_defaults.setData(storageKey, WidgetConfig::encodeList(configs));
    if (homeSizes != m_defaults.object(homeSizesKey).value_or(QJsonObject()))
        m_defaults.set(homeSizesKey, homeSizes);
}

} // namespace ambrelle
