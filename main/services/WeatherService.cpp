// SPDX-License-Identifier: MIT

#include "services/WeatherService.h"

#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "model/NearestCity.h"
#include "platform/HttpClient.h"
#include "platform/LocationSource.h"

#include <QtConcurrentRun>
#include <QTimeZone>

#include <array>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::minutes weatherPeriod{20};
constexpr qint64 mostBytes = 1024 * 1024; // of an answer

struct Query {
    QString key;
    QString value;
};

/// The items in their order; what a value must not contain is percent-encoded.
QUrl endpoint(const QUrl& base, const QString& path, const QList<Query>& items)
{
    QStringList query;
    for (const Query& item : items)
        query.append(item.key + u'=' + QString::fromLatin1(QUrl::toPercentEncoding(item.value, ",")));
    QUrl url = base;
    const QString root = base.path();
    url.setPath((root.endsWith(u'/') ? root.chopped(1) : root) + path);
    url.setQuery(query.join(u'&'));
    return url;
}

QString degrees(double coordinate)
{
    return QString::number(coordinate, 'f', 2);
}

} // namespace

WeatherService::WeatherService(
    HttpClient& network, LocationSource& location, const AppSettings& settings, Clock& clock, Bases bases)
    : m_network(network)
    , m_location(location)
    , m_settings(settings)
    , m_clock(clock)
    , m_bases(std::move(bases))
    , m_status(Wording::tr("Finding your location…"))
{
    connect(&settings, &AppSettings::changed, this, &WeatherService::settingChanged);
}

void WeatherService::start()
{
    if (std::exchange(m_started, true))
        return;
    connect(&m_location, &LocationSource::located, this, &WeatherService::located);
    connect(&m_location, &LocationSource::failed, this, &WeatherService::locationFailed);
    connect(&m_location, &LocationSource::changed, this, &WeatherService::authorizationChanged);
    refresh(false);
    m_timer = m_clock.every(weatherPeriod, [this] { findPlace(); });
}

void WeatherService::refresh(bool reusingPlace)
{
    if (!m_started)
        return;
    if (reusingPlace && m_lastPlace)
        fetch(*m_lastPlace);
    else
        findPlace();
}

QString WeatherService::city() const
{
    return m_settings.weatherCity().trimmed();
}

void WeatherService::settingChanged(const QString& key)
{
    if (key == m_settings.useFahrenheit.key())
        refresh(true);
    else if (key == m_settings.weatherCity.key())
        refresh(false);
}

void WeatherService::findPlace()
{
    const QString chosen = city();
    if (chosen.isEmpty())
        requestLocation();
    else
        loadCity(chosen);
}

void WeatherService::requestLocation()
{
    switch (m_location.authorization()) {
    case LocationAuthorization::undetermined:
        setStatus(Wording::tr("Waiting for location permission…"));
        m_location.requestLocation();
        break;
    case LocationAuthorization::restricted:
    case LocationAuthorization::denied:
        setStatus(Wording::tr("Location access is off. Pick a city from the menu bar: Weather ▸ Set City…"));
        break;
    case LocationAuthorization::authorized:
        if (!m_snapshot)
            setStatus(Wording::tr("Finding your location…"));
        m_location.requestLocation();
        break;
    }
}

void WeatherService::authorizationChanged()
{
    if (city().isEmpty() && m_location.authorization() != LocationAuthorization::undetermined)
        requestLocation();
}

void WeatherService::located(const Location& location)
{
    if (!city().isEmpty())
        return; // chosen while the machine was being located
    QString name = location.place;
    if (name.isEmpty())
        name = nearestCity(location.latitude, location.longitude).value_or(Wording::tr("Current Location"));
    fetch({location.latitude, location.longitude, name});
}

void WeatherService::locationFailed()
{
    if (city().isEmpty())
        setStatus(Wording::tr("Couldn't get your location. Pick a city from the menu bar: Weather ▸ Set City…"));
}

void WeatherService::loadCity(const QString& city)
{
    setStatus(Wording::tr("Looking up %1…").arg(city));
    const QUrl url = endpoint(
        m_bases.geocoding, u"/v1/search"_s, {{u"name"_s, city}, {u"count"_s, u"1"_s}, {u"format"_s, u"json"_s}});
    get(url, &WeatherAnswers::places,
        [this, city](const std::optional<WeatherAnswers::Places>& found) { cityFound(city, found); });
}

void WeatherService::cityFound(const QString& city, const std::optional<WeatherAnswers::Places>& found)
{
    if (!found) {
        reportUnavailable(Wording::tr("The answer cannot be read."));
    } else if (!found->results) {
        // What the endpoint says of a name that is on no map.
        reportUnavailable(Wording::tr("There is no place “%1”. Try another name.").arg(city));
    } else if (found->results->isEmpty()) {
        setStatus(Wording::tr("Couldn't find “%1”. Try another name from the menu bar.").arg(city));
    } else {
        const auto& [name, latitude, longitude] = found->results->first();
        fetch({latitude, longitude, name});
    }
}

void WeatherService::fetch(const Place& place)
{
    m_lastPlace = place;
    const QUrl url = endpoint(m_bases.forecast, u"/v1/forecast"_s,
        {{u"latitude"_s, degrees(place.latitude)}, {u"longitude"_s, degrees(place.longitude)},
            {u"current"_s, u"temperature_2m,apparent_temperature,weather_code,is_day"_s},
            {u"daily"_s, u"weather_code,temperature_2m_max,temperature_2m_min,sunrise,sunset"_s},
            {u"timezone"_s, u"auto"_s}, {u"forecast_days"_s, u"7"_s},
            {u"temperature_unit"_s, m_settings.useFahrenheit() ? u"fahrenheit"_s : u"celsius"_s}});
    get(
        url, [place = place.name](const QByteArray& body) { return WeatherAnswers::forecast(body, place); },
        [this](const std::optional<WeatherSnapshot>& forecast) { forecastRead(forecast); });
}

void WeatherService::forecastRead(const std::optional<WeatherSnapshot>& forecast)
{
    if (forecast)
        setSnapshot(*forecast);
    else
        reportUnavailable(Wording::tr("The answer cannot be read."));
}

template <typename Decode, typename Use> void WeatherService::get(const QUrl& url, Decode decode, Use use)
{
    m_network.get(url, mostBytes, this, [this, decode, use](const HttpAnswer& answer) {
        if (answer.error.isEmpty())
            QtConcurrent::run(decode, answer.body).then(this, use);
        else
            reportUnavailable(answer.error);
    });
}

void WeatherService::loadPreviewData()
{
    struct Sample {
        int code;
        double high;
    };
    constexpr std::array week =
        std::to_array<Sample>({{2, 19}, {0, 22}, {3, 20}, {61, 17}, {95, 18}, {45, 15}, {71, 13}});
    constexpr double span = 9; // degrees between high and low
    constexpr qint64 minute = 60;
    const QDateTime now = m_clock.now();
    const QDateTime today = now.date().startOfDay(now.timeZone());
    WeatherSnapshot sample{.place = Wording::tr("New York"),
        .temperature = 17,
        .apparent = 16,
        .code = 2,
        .isDay = true,
        .sunrise = today.addSecs(455 * minute),
        .sunset = today.addSecs(1138 * minute)};
    for (const auto& [code, high] : week)
        sample.days.append({today.addDays(sample.days.size()), code, high, high - span});
    setSnapshot(sample);
}

void WeatherService::setSnapshot(const WeatherSnapshot& snapshot)
{
    if (m_snapshot == snapshot)
        return;
    m_snapshot = snapshot;
    Q_EMIT changed();
}

void WeatherService::setStatus(const QString& status)
{
    if (std::exchange(m_status, status) != status)
        Q_EMIT changed();
}

void WeatherService::reportUnavailable(const QString& why)
{
    if (!m_snapshot)
        setStatus(Wording::tr("Weather unavailable: %1").arg(why));
}

} // namespace ambrelle
