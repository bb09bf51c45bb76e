// SPDX-License-Identifier: MIT

#include "window/settings/WeatherSection.h"

#include "foundation/Wording.h"
#include "services/WeatherService.h"
#include "window/look/TextLabel.h"
#include "window/settings/SettingsFields.h"

#include <QLineEdit>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestCity = 200; // characters

/// How it goes with the city.
struct CityStatus {
    QString sentence;
    bool busy = false;
    bool failed = false;
};

CityStatus statusOf(const WeatherService& weather, const QString& city)
{
    if (!weather.isStarted())
        return {.sentence = Wording::tr("Used as soon as a weather widget is on the desktop")};
    if (!weather.failure().isEmpty() && !weather.isAnswered())
        return {.sentence = weather.failure(), .failed = true};
    if (weather.isOfPlace()) // if not in the unit yet
        return {.sentence = Wording::tr("Showing weather for %1").arg(weather.snapshot()->place)};
    if (!city.trimmed().isEmpty())
        return {.sentence = Wording::tr("Looking up %1…").arg(city.trimmed()), .busy = true};
    // The status is of the city before, until something new is known.
    return {.sentence = weather.snapshot() ? Wording::tr("Finding your location…") : weather.status()};
}

} // namespace

WeatherSection::WeatherSection(AppSettings& values, const WeatherService& weather, QWidget* parent)
    : SettingsSection(values, parent)
    , m_weather(weather)
{
    addGroup();
    m_city = addText({.name = Wording::tr("City"), .keywords = {Wording::tr("place"), Wording::tr("location")}},
        settings().weatherCity, Wording::tr("Your location"), Wording::tr("Save"));
    m_entry = qobject_cast<TextEntry*>(m_city->control());
    m_entry->field()->setMaxLength(longestCity);
    addSegments<bool>({.name = Wording::tr("Temperature"),
                          .keywords = {Wording::tr("celsius"), Wording::tr("fahrenheit"), Wording::tr("unit")}},
        settings().useFahrenheit, {{false, u"°C"_s}, {true, u"°F"_s}});
    addNote(new TextLabel(TextRole::caption, Wording::tr("Weather data by Open-Meteo.com")));
    connect(&m_weather, &WeatherService::changed, this, &WeatherSection::showStatus);
    connect(&m_weather, &WeatherService::progressed, this, &WeatherSection::showStatus);
    follow(settings().weatherCity.key(), [this] { showStatus(); });
}

void WeatherSection::typeCity()
{
    m_entry->field()->setFocus(Qt::ShortcutFocusReason);
    m_entry->field()->selectAll();
}

void WeatherSection::showStatus()
{
    const auto [sentence, busy, failed] = statusOf(m_weather, settings().weatherCity());
    m_city->setCaption(sentence, failed);
    m_entry->setBusy(busy ? sentence : QString());
}

} // namespace ambrelle
