// SPDX-License-Identifier: MIT

#include "services/WeatherService.h"

#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "model/NearestCity.h"
#include "platform/HttpClient.h"
#include "platform/LocationSource.h"

#include <QtConcurrentRun>
#include <QTimeZone>

#include <algorithm>
#include <array>
#include <type_traits>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::minutes weatherPeriod{20};
constexpr std::array<std::chrono::milliseconds, 3> retryDelays{
    std::chrono::minutes(1), std::chrono::minutes(2), std::chrono::minutes(5)};
// A network that has just come knows no names yet.
constexpr std::chrono::seconds networkSettles{2};
constexpr qint64 freshSeconds = 5 * 60; // so old, figures need not be renewed for a network that came
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
    Q_EMIT progressed();
    connect(&m_location, &LocationSource::located, this, &WeatherService::located);
    connect(&m_location, &LocationSource::failed, this, &WeatherService::locationFailed);
    connect(&m_location, &LocationSource::changed, this, &WeatherService::authorizationChanged);
    connect(&m_network, &HttpClient::networkCame, this, &WeatherService::catchUp);
    m_jumps = m_clock.everyJump([this] { catchUp(); });
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

WeatherService::Question WeatherService::question() const
{
    return {m_settings.weatherCity().trimmed(), m_settings.useFahrenheit()};
}

void WeatherService::settingChanged(const QString& key)
{
    const bool isUnit = key == m_settings.useFahrenheit.key();
    if (!isUnit && key != m_settings.weatherCity.key())
        return;
    setAnswered(false);
    m_failures = 0;
    if (!isUnit)
        m_lastPlace.reset();
    refresh(isUnit);
}

/// After a time in which the figures may have grown old.
void WeatherService::catchUp()
{
    const QDateTime now = m_clock.now();
    const qint64 age = m_asOf ? m_asOf->secsTo(now) : freshSeconds;
    if (m_isAnswered && m_failures == 0 && age >= 0 && age < freshSeconds)
        return;
    m_failures = 0;
    m_retry = m_clock.after(networkSettles, [this] { findPlace(); });
}

void WeatherService::tryAgainLater()
{
    const auto delay = retryDelays.at(std::min(m_failures++, retryDelays.size() - 1));
    m_retry = m_clock.after(delay, [this] { findPlace(); });
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
    setFailure({});
    switch (m_location.authorization()) {
    case LocationAuthorization::undetermined:
        setStatus(Wording::tr("Waiting for location permission…"));
        m_location.requestLocation();
        break;
    case LocationAuthorization::restricted:
    case LocationAuthorization::denied:
        setStatus(Wording::tr("Location access is off. Pick a city from the menu bar: Weather ▸ Set City…"));
        setFailure(m_status);
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
    if (!city().isEmpty())
        return;
    setStatus(Wording::tr("Couldn't get your location. Pick a city from the menu bar: Weather ▸ Set City…"));
    setFailure(m_status);
    tryAgainLater();
}

void WeatherService::loadCity(const QString& city)
{
    setFailure({});
    setStatus(Wording::tr("Looking up %1…").arg(city));
    const QUrl url = endpoint(
        m_bases.geocoding, u"/v1/search"_s, {{u"name"_s, city}, {u"count"_s, u"1"_s}, {u"format"_s, u"json"_s}});
    get(url, question(), &WeatherAnswers::places,
        [this, city](const WeatherAnswers::Places& found) { cityFound(city, found); });
}

void WeatherService::cityFound(const QString& city, const WeatherAnswers::Places& found)
{
    if (city != this->city())
        return; // another was chosen while this one was looked up
    if (!found.results) {
        // What the endpoint says of a name that is on no map.
        reportUnavailable(Wording::tr("There is no place “%1”. Try another name.").arg(city));
    } else if (found.results->isEmpty()) {
        setStatus(Wording::tr("Couldn't find “%1”. Try another name from the menu bar.").arg(city));
        setFailure(m_status);
    } else {
        const auto& [name, latitude, longitude] = found.results->first();
        fetch({latitude, longitude, name});
    }
}

void WeatherService::fetch(const Place& place)
{
    m_lastPlace = place;
    const Question asked = question();
    const QUrl url = endpoint(m_bases.forecast, u"/v1/forecast"_s,
        {{u"latitude"_s, degrees(place.latitude)}, {u"longitude"_s, degrees(place.longitude)},
            {u"current"_s, u"temperature_2m,apparent_temperature,weather_code,is_day"_s},
            {u"daily"_s, u"weather_code,temperature_2m_max,temperature_2m_min,sunrise,sunset"_s},
            {u"timezone"_s, u"auto"_s}, {u"forecast_days"_s, u"7"_s},
            {u"temperature_unit"_s, asked.useFahrenheit ? u"fahrenheit"_s : u"celsius"_s}});
    get(
        url, asked, [place = place.name](const QByteArray& body) { return WeatherAnswers::forecast(body, place); },
        [this, asked](const WeatherSnapshot& forecast) { forecastRead(asked, forecast); });
}

void WeatherService::forecastRead(const Question& asked, const WeatherSnapshot& forecast)
{
    m_asOf = m_clock.now();
    m_shownCity = asked.city;
    setSnapshot(forecast);
    if (asked == question()) {
        m_failures = 0;
        m_retry.reset();
        setFailure({});
        setAnswered(true);
    } else if (m_isAnswered) {
        setAnswered(false);
        refresh(true); // it came after the answer to the present question, and took its place
    }
}

template <typename Decode, typename Use>
void WeatherService::get(const QUrl& url, const Question& asked, Decode decode, Use use)
{
    const auto failed = [this, asked](const QString& why) {
        if (asked == question())
            fail(why);
    };
    m_network.get(url, mostBytes, this, [this, decode, use, failed](const HttpAnswer& answer) {
        if (!answer.error.isEmpty())
            return failed(answer.error);
        using Decoded = std::invoke_result_t<Decode, const QByteArray&>;
        QtConcurrent::run(decode, answer.body).then(this, [use, failed](const Decoded& decoded) {
            if (decoded)
                use(*decoded);
            else
                failed(Wording::tr("The answer cannot be read."));
        });
    });
}

void WeatherService::fail(const QString& why)
{
    reportUnavailable(why);
    tryAgainLater();
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
        .utcOffset = now.offsetFromUtc(),
        .sunrise = today.addSecs(455 * minute),
        .sunset = today.addSecs(1138 * minute)};
    for (const auto& [code, high] : week)
        sample.days.append({today.addDays(sample.days.size()), code, high, high - span});
    m_asOf = now;
    m_shownCity.reset();
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

void WeatherService::setFailure(const QString& sentence)
{
    if (std::exchange(m_failure, sentence) != sentence)
        Q_EMIT progressed();
}

void WeatherService::setAnswered(bool answered)
{
    if (std::exchange(m_isAnswered, answered) != answered)
        Q_EMIT progressed();
}

void WeatherService::reportUnavailable(const QString& why)
{
    const QString sentence = Wording::tr("Weather unavailable: %1").arg(why);
    if (!m_snapshot)
        setStatus(sentence);
    setFailure(sentence);
}

} // namespace ambrelle
