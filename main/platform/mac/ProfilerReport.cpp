// SPDX-License-Identifier: MIT

#include "platform/mac/ProfilerReport.h"

#include <QJsonArray>
#include <QJsonDocument>
#include <QJsonObject>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

std::optional<double> level(const QJsonObject& properties, QLatin1StringView key)
{
    const QString text = properties.value(key).toString().trimmed();
    if (!text.endsWith(u'%'))
        return std::nullopt;
    bool isNumber = false;
    const double percent = text.chopped(1).trimmed().toDouble(&isNumber);
    // Written so that what is not a number fails too.
    return isNumber && percent >= 0 && percent <= 100 ? std::optional(percent / 100) : std::nullopt;
}

ConnectedDevice deviceFrom(const QString& name, const QJsonObject& properties)
{
    const auto main = level(properties, "device_batteryLevelMain"_L1);
    return {.name = name,
        .address = properties.value("device_address"_L1).toString(),
        .minorType = properties.value("device_minorType"_L1).toString(),
        .level = main ? main : level(properties, "device_batteryLevel"_L1),
        .left = level(properties, "device_batteryLevelLeft"_L1),
        .right = level(properties, "device_batteryLevelRight"_L1),
        .caseLevel = level(properties, "device_batteryLevelCase"_L1)};
}

} // namespace

std::optional<QList<ConnectedDevice>> devicesOfProfilerReport(const QByteArray& report)
{
    const QJsonValue controllers = QJsonDocument::fromJson(report).object().value("SPBluetoothDataType"_L1);
    if (!controllers.isArray())
        return std::nullopt;
    QList<ConnectedDevice> devices;
    for (const QJsonValue& controller : controllers.toArray()) {
        for (const QJsonValue& entry : controller.toObject().value("device_connected"_L1).toArray()) {
            const QJsonObject device = entry.toObject();
            for (auto property = device.begin(); property != device.end(); ++property) {
                if (!property.key().isEmpty())
                    devices.append(deviceFrom(property.key(), property.value().toObject()));
            }
        }
    }
    return devices;
}

} // namespace ambrelle
