// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/Wording.h"
#include "model/WidgetKind.h"
#include "services/DevicesService.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

QString whyEmpty(const DevicesService& service)
{
    if (!service.whyNot().isEmpty())
        return service.whyNot();
    return service.isSearching() ? Wording::tr("Looking for devices…") : Wording::tr("No devices connected");
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
