// SPDX-License-Identifier: MIT

#include "window/popover/KindRows.h"

#include "foundation/Wording.h"
#include "window/popover/CityChooser.h"
#include "window/popover/SettingsForm.h"

namespace ambrelle {

void addClockRows(SettingsForm& form)
{
    auto* cities = new CityChooser;
    form.addRow(Wording::tr("City"), cities,
        [cities](const WidgetConfig& config) { cities->setChosen(config.city, config.timeZone); });
    QObject::connect(cities, &CityChooser::chose, &form, [&form](const std::optional<CityChooser::City>& city) {
        form.change([&](WidgetConfig& config) {
            config.city = city ? std::optional(city->name) : std::nullopt;
            config.timeZone = city ? std::optional(city->zone) : std::nullopt;
        });
    });
}

} // namespace ambrelle
