// SPDX-License-Identifier: MIT

#pragma once

#include "window/settings/SettingsSection.h"

namespace ambrelle {

class TextEntry;
class WeatherService;

/// Where the weather is told for, and in what unit.
class WeatherSection final : public SettingsSection {
public:
    WeatherSection(AppSettings& settings, const WeatherService& weather, QWidget* parent = nullptr);

    /// The keyboard comes to the city, all of it selected.
    void typeCity();

private:
    void showStatus();

    const WeatherService& m_weather;
    SettingsRow* m_city;
    TextEntry* m_entry;
};

} // namespace ambrelle
