// SPDX-License-Identifier: MIT

#include "services/WeatherSamples.h"

namespace ambrelle {

using enum LocationAuthorization;

namespace {

const HttpAnswer noNetwork{{}, u"The server was not found."_s};
const QByteArray oslo = R"({"results": [{"name": "Oslo", "latitude": 59.91, "longitude": 10.75}]})";
const QByteArray bergen = R"({"results": [{"name": "Bergen", "latitude": 60.39, "longitude": 5.32}]})";

} // namespace

struct WeatherServiceTest : WeatherTest {
    WeatherServiceTest()
    {
        count(service);
        settings.useFahrenheit.set(false);
    }

    void answerForecast(qsizetype index = 0) { answer({bytes(forecastObject()), {}}, index); }
    std::string status() const { return service.status().toStdString(); }
};

TEST_F(WeatherServiceTest, AsksForTheCityAndThenForItsWeather)
{
    settings.weatherCity.set(u" São Paulo & Co\n"_s);
    EXPECT_EQ(status(), "Finding your location…");
    EXPECT_TRUE(network.addresses.isEmpty()) << "nothing before the start";
    service.start();
    EXPECT_EQ(status(), "Looking up São Paulo & Co…");
    answer(R"({"results": [{"name": "São Paulo", "latitude": 40.7128, "longitude": -74.0060, "id": 7}]})");
    answerForecast();
    EXPECT_THAT(network.addresses,
        ElementsAre(u"https://geocoding-api.open-meteo.com/v1/search"
                    "?name=S%C3%A3o%20Paulo%20%26%20Co&count=1&format=json"_s,
            u"https://api.open-meteo.com/v1/forecast?latitude=40.71&longitude=-74.01"
            "&current=temperature_2m,apparent_temperature,weather_code,is_day"
            "&daily=weather_code,temperature_2m_max,temperature_2m_min,sunrise,sunset"
            "&timezone=auto&forecast_days=7&temperature_unit=celsius"_s));
    EXPECT_THAT(network.bounds, ElementsAre(1'048'576, 1'048'576));
    ASSERT_TRUE(service.snapshot());
    EXPECT_EQ(service.snapshot()->place, u"São Paulo"_s);
    EXPECT_EQ(location.requests, 0);
}

TEST_F(WeatherServiceTest, BasesMayHaveAPath)
{
    WeatherService proxied(
        network, location, settings, clock, {QUrl(u"http://[::1]:80/f/"_s), QUrl(u"https://proxy.example/geo"_s)});
    settings.weatherCity.set(u"100%+1"_s);
    proxied.start();
    EXPECT_EQ(network.addresses.last(), u"https://proxy.example/geo/v1/search?name=100%25%2B1&count=1&format=json"_s);
    answer(R"({"results": [{"name": "", "latitude": 0, "longitude": 0}]})");
    EXPECT_TRUE(network.addresses.last().startsWith("http://[::1]:80/f/v1/forecast?latitude=0.00&"_L1));
}

TEST_F(WeatherServiceTest, AsksForPermissionAndThenForALocation)
{
    settings.weatherCity.set(u" \n"_s); // counts as none
    service.start();
    EXPECT_EQ(status(), "Waiting for location permission…");
    EXPECT_EQ(location.requests, 1);
    location.setAuthorization(authorized);
    EXPECT_EQ(status(), "Finding your location…");
    EXPECT_EQ(location.requests, 2);

    Q_EMIT location.failed();
    EXPECT_EQ(status(), "Couldn't get your location. Pick a city from the More menu: Weather ▸ Set City…");
    Q_EMIT location.located({60.3929, 5.3241, {}});
    EXPECT_THAT(network.addresses.last().toStdString(), ::testing::HasSubstr("?latitude=60.39&longitude=5.32&"));
    answerForecast();
    EXPECT_EQ(service.snapshot()->place, u"Bergen"_s);

    for (const auto& [where, name] : {std::pair(Location{60.39, 5.32, u"Nordnes"_s}, "Nordnes"),
             std::pair(Location{0, 0, {}}, "Current Location")}) {
        Q_EMIT location.located(where);
        answerForecast();
        EXPECT_EQ(service.snapshot()->place.toStdString(), name);
    }
}

TEST_F(WeatherServiceTest, SaysWhenLocationIsOff)
{
    for (const auto refusal : {denied, restricted}) {
        RecordingLocation forbidden;
        forbidden.setAuthorization(refusal);
        WeatherService refused(network, forbidden, settings, clock, {});
        refused.start();
        EXPECT_EQ(refused.status(), u"Location access is off. Pick a city from the More menu: Weather ▸ Set City…"_s);
        EXPECT_EQ(forbidden.requests, 0);
        forbidden.setAuthorization(authorized);
        EXPECT_EQ(forbidden.requests, 1);
    }
}

TEST_F(WeatherServiceTest, AChosenCityWinsOverTheLocation)
{
    service.start();
    settings.weatherCity.set(u"Oslo"_s);
    EXPECT_EQ(status(), "Looking up Oslo…");
    location.setAuthorization(denied);
    Q_EMIT location.failed();
    Q_EMIT location.located({1, 2, {}});
    EXPECT_EQ(status(), "Looking up Oslo…");
    EXPECT_EQ(network.addresses.size(), 1);
    settings.weatherCity.set({});
    EXPECT_EQ(status(), "Location access is off. Pick a city from the More menu: Weather ▸ Set City…");
}

TEST_F(WeatherServiceTest, TellsWhyThereIsNoWeather)
{
    settings.weatherCity.set(u"Xyzzy"_s);
    service.start();
    const std::pair<HttpAnswer, const char*> cases[] = {
        {noNetwork, "Weather unavailable: The server was not found."},
        {{"[]", {}}, "Weather unavailable: The answer cannot be read."},
        {{"{\"generationtime_ms\": 0.5}", {}}, "Weather unavailable: There is no place “Xyzzy”. Try another name."},
        {{"{\"results\": []}", {}}, "Couldn't find “Xyzzy”. Try another name from the More menu."},
    };
    for (const auto& [answered, sentence] : cases) {
        answer(answered);
        EXPECT_EQ(status(), sentence);
        service.refresh(true); // no place yet: the city is looked up again
        EXPECT_EQ(status(), "Looking up Xyzzy…");
    }
    answer(R"({"results": [{"name": "Xyzzy", "latitude": 1, "longitude": 2}]})");
    answer(noNetwork);
    EXPECT_EQ(status(), "Weather unavailable: The server was not found.");
    EXPECT_FALSE(service.snapshot());
    service.refresh(true);
    answer("{}");
    EXPECT_EQ(status(), "Weather unavailable: The answer cannot be read.");
}

TEST_F(WeatherServiceTest, KeepsTheLastWeatherWhenFetchingFails)
{
    settings.weatherCity.set(u"Oslo"_s);
    service.start();
    answer(oslo);
    answerForecast();
    const auto snapshot = service.snapshot();
    const auto asOf = service.asOf();
    EXPECT_EQ(asOf, clock.now());
    const auto askAgain = [&] {
        clock.advance(30s);
        service.refresh(false);
    };
    const auto expectKept = [&] {
        EXPECT_EQ(service.snapshot(), snapshot);
        EXPECT_EQ(service.asOf(), asOf);
        EXPECT_EQ(status(), "Looking up Oslo…");
    };
    askAgain();
    answer(noNetwork);
    expectKept();
    askAgain();
    answer(oslo);
    answer("?");
    expectKept();
    askAgain();
    answer(R"({"results": []})");
    EXPECT_EQ(service.snapshot(), snapshot);
    EXPECT_EQ(status(), "Couldn't find “Oslo”. Try another name from the More menu.");
}

TEST_F(WeatherServiceTest, TheUnitNeedsNoNewPlaceButEveryTwentyMinutesDo)
{
    settings.weatherCity.set(u"Oslo"_s);
    service.start();
    service.start();
    answer(oslo);
    answerForecast();
    settings.useFahrenheit.set(true);
    settings.locked.set(true); // nothing to do with weather
    ASSERT_EQ(network.addresses.size(), 3);
    EXPECT_TRUE(network.addresses.last().contains("/v1/forecast"_L1));
    EXPECT_TRUE(network.addresses.last().endsWith("&temperature_unit=fahrenheit"_L1));

    clock.advance(19min + 59s);
    EXPECT_EQ(network.addresses.size(), 3);
    clock.advance(1s);
    ASSERT_EQ(network.addresses.size(), 4);
    EXPECT_TRUE(network.addresses.last().contains("/v1/search"_L1));
    settings.weatherCity.set({});
    clock.advance(20min);
    EXPECT_EQ(location.requests, 2);
}

TEST_F(WeatherServiceTest, WhateverArrivesLastIsShown)
{
    location.setAuthorization(authorized);
    service.start();
    Q_EMIT location.located({1, 1, u"First"_s});
    Q_EMIT location.located({2, 2, u"Second"_s});
    answerForecast(1);
    EXPECT_EQ(service.snapshot()->place, u"Second"_s);
    answerForecast();
    EXPECT_EQ(service.snapshot()->place, u"First"_s);
}

TEST_F(WeatherServiceTest, TriesAgainSoonAfterAFailure)
{
    settings.weatherCity.set(u"Oslo"_s);
    service.start();
    qsizetype asked = 1;
    for (const auto delay : {1min, 2min, 5min, 5min}) {
        ASSERT_EQ(network.addresses.size(), asked);
        answer(noNetwork);
        clock.advance(delay - 1s);
        EXPECT_EQ(network.addresses.size(), asked);
        clock.advance(1s);
        EXPECT_EQ(network.addresses.size(), ++asked);
    }
    answer(oslo);
    answerForecast();
    asked = network.addresses.size();
    clock.advance(6min);
    EXPECT_EQ(network.addresses.size(), asked) << "not after a success";
    clock.advance(1min); // when it would ask by itself

    settings.weatherCity.set({});
    location.setAuthorization(authorized);
    const int requests = location.requests;
    Q_EMIT location.failed();
    clock.advance(1min);
    EXPECT_EQ(location.requests, requests + 1);
}

TEST_F(WeatherServiceTest, ANetworkThatComesRenewsWhatIsOldOrMissing)
{
    settings.weatherCity.set(u"Oslo"_s);
    service.start();
    answer(noNetwork);
    Q_EMIT network.networkCame();
    clock.advance(1s);
    Q_EMIT network.networkCame(); // the other kind of addresses
    clock.advance(2s);
    ASSERT_EQ(network.addresses.size(), 2);
    answer(oslo);
    answerForecast();
    Q_EMIT network.networkCame();
    clock.advance(4min);
    EXPECT_EQ(network.addresses.size(), 3) << "figures of seconds ago are good enough";
    clock.advance(1min);
    Q_EMIT network.networkCame();
    clock.advance(2s);
    ASSERT_EQ(network.addresses.size(), 4);
    answer(noNetwork);
    clock.setNow(clock.now().addDays(1));
    clock.advance(2s);
    EXPECT_EQ(network.addresses.size(), 5) << "slept for a day";
}

TEST_F(WeatherServiceTest, AnswersToWhatWasGivenUpDoNotLast)
{
    settings.weatherCity.set(u"Oslo"_s);
    service.start();
    answer(oslo);
    settings.weatherCity.set(u"Rome"_s);
    settings.weatherCity.set(u"Bergen"_s);
    answer({R"({"results": [{"name": "Rome", "latitude": 41.9, "longitude": 12.5}]})", {}}, 1);
    EXPECT_EQ(network.waiting(), 2) << "nobody asks for the weather in Rome";
    answer(noNetwork, 0); // of Oslo
    EXPECT_EQ(status(), "Looking up Bergen…") << "a failure that nobody waits for";
    answer(bergen);
    settings.useFahrenheit.set(true);
    answerForecast(1);
    ASSERT_EQ(network.waiting(), 1);
    EXPECT_EQ(service.snapshot()->place, u"Bergen"_s);
    answerForecast(); // in the unit from before, and the last: it stands for as long as the question takes again
    ASSERT_EQ(network.waiting(), 1);
    EXPECT_TRUE(network.addresses.last().contains("?latitude=60.39&"_L1));
    EXPECT_TRUE(network.addresses.last().endsWith("fahrenheit"_L1));
    answerForecast();
    EXPECT_EQ(network.waiting(), 0);
}

TEST_F(WeatherServiceTest, AnAnswerThatComesTooLateIsDropped)
{
    location.setAuthorization(authorized);
    {
        WeatherService shortLived(network, location, settings, clock, {});
        shortLived.start();
        Q_EMIT location.located({1, 1, {}});
        Q_EMIT location.located({2, 2, {}});
        network.answer({bytes(forecastObject()), {}}); // being read when the service ends
    }
    answerForecast();
    clock.advance(40min);
    EXPECT_EQ(network.addresses.size(), 2);
}

TEST_F(WeatherServiceTest, TellsOnlyWhatIsNew)
{
    location.setAuthorization(authorized);
    service.start();
    EXPECT_EQ(changes, 0) << "the first status is the one it begins with";
    for (int i = 0; i < 2; ++i) {
        Q_EMIT location.located({1, 1, u"Here"_s});
        answerForecast();
        EXPECT_EQ(changes, 1);
    }
}

TEST_F(WeatherServiceTest, ShowsASampleWithoutBeingStarted)
{
    service.loadPreviewData();
    const auto& sample = service.snapshot();
    ASSERT_TRUE(sample);
    EXPECT_EQ(sample->place, u"New York"_s);
    EXPECT_TRUE(sample->isDay);
    ASSERT_EQ(sample->days.size(), 7);
    EXPECT_EQ(sample->days.last().date, utc(8, 0, 0));
    EXPECT_TRUE(network.addresses.isEmpty());
}

} // namespace ambrelle
