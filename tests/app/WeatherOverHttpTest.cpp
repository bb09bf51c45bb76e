#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/headless/HeadlessPorts.h"
#include "platform/network/QtHttpClient.h"
#include "services/WeatherService.h"
#include "support/LocalServer.h"

#include <QElapsedTimer>
#include <QTimer>

#include <gmock/gmock.h>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using ::testing::ElementsAre;

namespace {

const QByteArray forecast = R"({"current": {"temperature_2m": 17.4, "apparent_temperature": 16, "weather_code": 2,
    "is_day": 1}, "daily": {"time": ["2025-06-02", "2025-06-03"], "weather_code": [2], "temperature_2m_max": [19],
    "temperature_2m_min": [10, 8]}})";
const QByteArray oslo = R"({"results": [{"name": "Oslo", "latitude": 59.9127, "longitude": 10.7461}]})";

/// The weather of a city over a real connection to a server that plays both endpoints.
class WeatherOverHttpTest : public ::testing::Test {
protected:
    WeatherOverHttpTest()
    {
        settings.useFahrenheit.set(false);
        settings.weatherCity.set(u"Oslo"_s);
        server.play = [this](QTcpSocket& socket) {
            const bool isSearch = server.targets.last().startsWith("/geo/");
            (isSearch ? playSearch : playForecast)(socket);
        };
    }

    LocalServer server;
    LocalServer::Play playSearch = LocalServer::answer(oslo);
    LocalServer::Play playForecast = LocalServer::answer(forecast);
    ManualClock clock;
    UserDefaults defaults = UserDefaults::temporary();
    AppSettings settings{defaults};
    HeadlessLocation location;
    QtHttpClient network{1s};
    WeatherService service{network, location, settings, clock, {server.url(), server.url(u"/geo"_s)}};
};

TEST_F(WeatherOverHttpTest, ShowsAPartialForecast)
{
    service.start();
    ASSERT_TRUE(waitUntil([this] { return service.snapshot().has_value(); }));
    EXPECT_THAT(server.targets,
        ElementsAre("/geo/v1/search?name=Oslo&count=1&format=json",
            "/v1/forecast?latitude=59.91&longitude=10.75"
            "&current=temperature_2m,apparent_temperature,weather_code,is_day"
            "&daily=weather_code,temperature_2m_max,temperature_2m_min,sunrise,sunset"
            "&timezone=auto&forecast_days=7&temperature_unit=celsius"));
    EXPECT_EQ(service.snapshot()->days.size(), 1);
}

TEST_F(WeatherOverHttpTest, SaysWhatWentWrongAndRecovers)
{
    const std::pair<LocalServer::Play, const char*> cases[] = {
        {LocalServer::answer("oops", "500 Oops"), "The server answered with error 500."},
        {LocalServer::answer("{\"current\": 1}"), "The answer cannot be read."},
        {LocalServer::answer(QByteArray(1024 * 1024 + 1, ' ')), "The server's answer is too large."},
        {[](QTcpSocket&) {}, "The server did not answer in time."},
        {LocalServer::answer({}, "302 Found", "Location: http://127.0.0.1/\r\n"),
            "The server points to an address that is not secure."},
        {[](QTcpSocket& socket) { socket.abort(); }, "The server 127.0.0.1 broke the connection off."},
    };
    service.start();
    for (const auto& [play, sentence] : cases) {
        playForecast = play;
        service.refresh(false);
        const QString expected = u"Weather unavailable: "_s + QLatin1String(sentence);
        EXPECT_TRUE(waitUntil([&] { return service.status() == expected; })) << service.status().toStdString();
    }
    playForecast = LocalServer::answer(forecast);
    service.refresh(true);
    EXPECT_TRUE(waitUntil([this] { return service.snapshot().has_value(); }));
}

TEST_F(WeatherOverHttpTest, ASlowServerDoesNotHoldUpTheProgram)
{
    // Both endpoints answer in drops, for longer than the pause that is let pass.
    constexpr qsizetype drop = 5;
    const auto dripping = [](const QByteArray& body) {
        return [body](QTcpSocket& socket) {
            socket.write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n");
            auto* drip = new QTimer(&socket);
            QObject::connect(drip, &QTimer::timeout, &socket, [&socket, body, sent = qsizetype{0}]() mutable {
                socket.write(body.mid(sent, drop));
                sent += drop;
            });
            drip->start(5);
        };
    };
    playSearch = dripping(oslo);
    playForecast = dripping(forecast);
    double last = 0;
    double longestPause = 0;
    QElapsedTimer stopwatch;
    stopwatch.start();
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&] {
        const double now = static_cast<double>(stopwatch.nsecsElapsed()) / 1e6;
        longestPause = std::max(longestPause, now - std::exchange(last, now));
    });
    beat.setTimerType(Qt::PreciseTimer);
    beat.start(1);
    service.start();
    ASSERT_TRUE(waitUntil([this] { return service.snapshot().has_value(); }));
    RecordProperty("longestPauseInMilliseconds", std::to_string(longestPause));
    EXPECT_GT(last, 250) << "the answers came too fast to tell anything";
    EXPECT_LT(longestPause, 100) << "a loaded machine pauses too, but not for as long as the answers take";
}

} // namespace
} // namespace ambrelle
