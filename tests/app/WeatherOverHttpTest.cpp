// SPDX-License-Identifier: MIT

#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/headless/HeadlessPorts.h"
#include "platform/network/QtHttpClient.h"
#include "services/WeatherService.h"
#include "support/LocalServer.h"

#include <QTimer>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

namespace {

/// Answers in drops, one with every beat of the server.
LocalServer::Play dripping(const QByteArray& body)
{
    constexpr qsizetype drop = 5;
    return [body](QTcpSocket& socket) {
        socket.write("HTTP/1.1 200 OK\r\nContent-Length: " + QByteArray::number(body.size()) + "\r\n\r\n");
        auto* drip = new QTimer(&socket);
        QObject::connect(drip, &QTimer::timeout, &socket, [&socket, body, sent = qsizetype{0}]() mutable {
            socket.write(body.mid(sent, drop));
            sent += drop;
        });
        drip->start(5);
    };
}

TEST(WeatherOverHttpTest, ASlowServerDoesNotHoldUpTheProgram)
{
    LocalServer server;
    server.play = [&server](QTcpSocket& socket) {
        const bool isSearch = server.targets.last().startsWith("/geo/");
        dripping(isSearch ? R"({"results": [{"name": "Oslo", "latitude": 59.9127, "longitude": 10.7461}]})"
                          : R"({"current": {"temperature_2m": 17.4, "apparent_temperature": 16, "weather_code": 2,
            "is_day": 1}, "daily": {"time": ["2025-06-02", "2025-06-03"], "weather_code": [2], "temperature_2m_max": [19],
            "temperature_2m_min": [10, 8]}})")(socket);
    };
    ManualClock clock;
    UserDefaults defaults = UserDefaults::temporary();
    AppSettings settings(defaults);
    settings.weatherCity.set(u"Oslo"_s);
    HeadlessLocation location;
    QtHttpClient network(60s);
    WeatherService service(network, location, settings, clock, {server.url(), server.url(u"/geo"_s)});

    // This program is the server, too: no drop would fall while it waits for the answer.
    int beats = 0;
    QTimer beat;
    QObject::connect(&beat, &QTimer::timeout, [&beats] { ++beats; });
    beat.start(1);
    service.start();
    EXPECT_EQ(beats, 0);
    ASSERT_TRUE(waitUntil([&service] { return service.snapshot().has_value(); })) << service.status().toStdString();
    EXPECT_GT(beats, 40) << "one at least for every drop of both answers";
}

} // namespace
} // namespace ambrelle
