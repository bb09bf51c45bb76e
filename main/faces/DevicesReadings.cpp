#include "faces/DevicesReadings.h"

#include "model/WidgetKind.h"
#include "services/DevicesService.h"

#include <QCoreApplication>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString tr(const char* text)
{
    return QCoreApplication::translate("Readings", text);
}

QString whyEmpty(const DevicesService& service)
{
    if (!service.whyNot().isEmpty())
        return service.whyNot();
    return service.isSearching() ? tr("Looking for devices…") : tr("No devices connected");
}

} // namespace

DevicesReading devicesReading(const DevicesService& service)
{
    DevicesReading reading;
    for (const DeviceRow& device : service.devices()) {
        DevicesReading::Row row{.symbol = symbol(device.kind), .name = device.name, .detail = device.detail};
        row.level = device.battery;
        row.charging = device.charging;
        if (device.battery)
            row.percent = u"%1%"_s.arg(Units::percent(*device.battery));
        reading.rows.append(row);
    }
    if (reading.rows.isEmpty())
        reading.notice = {symbol(WidgetKind::devices), whyEmpty(service)};
    return reading;
}

} // namespace ambrelle
