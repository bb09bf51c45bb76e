#include "faces/SampleReadings.h"

#include "faces/SystemReadings.h"
#include "faces/TimeReadings.h"

#include <QLinearGradient>
#include <QPainter>
#include <QPainterPath>
#include <QRadialGradient>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QColor workCalendar(0x5B, 0x97, 0xFF);
const QColor homeCalendar(0x4F, 0xC0, 0x8D);
const QColor familyCalendar(0xF2, 0x8B, 0x50);

/// A record sleeve or a landscape, drawn here so that no picture has to be shipped.
Picture sampleImage(const QColor& sky, const QColor& ground)
{
    QImage image(244, 244, QImage::Format_RGB32);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    QLinearGradient air(0, 0, 0, 244);
    air.setColorAt(0, sky);
    air.setColorAt(1, ground);
    painter.fillRect(image.rect(), air);
    QRadialGradient sun(QPointF(168, 92), 60);
    sun.setColorAt(0, QColor(255, 240, 214));
    sun.setColorAt(0.6, QColor(255, 214, 150));
    sun.setColorAt(1, QColor(255, 214, 150, 0));
    painter.setPen(Qt::NoPen);
    painter.setBrush(sun);
    painter.drawEllipse(QPointF(168, 92), 60, 60);
    for (int hill = 0; hill < 3; ++hill) {
        QPainterPath ridge;
        const double y = 150 + hill * 28;
        ridge.moveTo(0, y);
        ridge.cubicTo(70, y - 46 + hill * 18, 130, y + 34, 244, y - 20 + hill * 6);
        ridge.lineTo(244, 244);
        ridge.lineTo(0, 244);
        painter.setBrush(ground.darker(120 + hill * 35));
        painter.drawPath(ridge);
    }
    return {image};
}

WeatherReading sampleWeather(const QDateTime& now, const QLocale& locale)
{
    struct Forecast {
        Sky sky;
        int high;
    };
    constexpr int span = 9; // degrees between a day's high and low
    const std::array<Forecast, 7> week{{{Sky::partly, 19}, {Sky::clear, 22}, {Sky::cloudy, 20}, {Sky::rain, 17},
        {Sky::thunder, 18}, {Sky::fog, 15}, {Sky::snow, 13}}};
    WeatherReading reading{.place = u"New York"_s,
        .temperature = u"17"_s,
        .description = u"Partly Cloudy"_s,
        .sky = Sky::partly,
        .high = u"19°"_s,
        .low = u"10°"_s};
    constexpr double coldest = 13 - span;
    constexpr double warmest = 22;
    for (std::size_t index = 0; index < week.size(); ++index) {
        const QDate date = now.date().addDays(static_cast<qint64>(index));
        const auto [sky, high] = week[index];
        reading.days.append({.initial = locale.standaloneDayName(date.dayOfWeek(), QLocale::NarrowFormat),
            .name = locale.standaloneDayName(date.dayOfWeek(), QLocale::ShortFormat),
            .date = QString::number(date.day()),
            .sky = sky,
            .high = u"%1°"_s.arg(high),
            .low = u"%1°"_s.arg(high - span),
            .highFraction = (high - coldest) / (warmest - coldest),
            .lowFraction = (high - span - coldest) / (warmest - coldest)});
    }
    return reading;
}

EventsReading sampleEvents(const QDateTime& now, const QLocale& locale)
{
    return {.day = locale.standaloneDayName(now.date().dayOfWeek()) + u' ' + QString::number(now.date().day()),
        .rows = {{u"10:00"_s, u"Breakdown: call the electrician"_s, homeCalendar},
            {u"13:30"_s, u"Deadline for the report"_s, workCalendar}, {u"18:15"_s, u"Choir practice"_s, familyCalendar},
            {u"All day"_s, u"Anna's birthday"_s, familyCalendar}}};
}

ActivityReading sampleActivity(const QDateTime& now)
{
    ActivityReading reading{
        .hour = now.time().hour(), .active = u"3 h 12 min"_s, .metres = u"148 m"_s, .clicks = u"1,204 clicks"_s};
    constexpr std::array<double, 24> day{
        0, 0, 0, 0, 0, 0, 0.1, 0.45, 0.9, 0.7, 0.35, 0.8, 0.2, 0.55, 0.95, 0.6, 0.4, 0.15, 0, 0.3, 0.5, 0.2, 0, 0};
    reading.hours = QList<double>(day.begin(), day.end());
    return reading;
}

RemindersReading sampleReminders()
{
    return {.rows = {{.id = u"1"_s,
                         .title = u"Send the invoice"_s,
                         .due = u"Yesterday"_s,
                         .overdue = true,
                         .colour = workCalendar},
                {.id = u"2"_s, .title = u"Call the dentist"_s, .due = u"Today"_s, .colour = homeCalendar},
                {.id = u"3"_s, .title = u"Water the plants"_s, .done = true, .colour = homeCalendar},
                {.id = u"4"_s, .title = u"Book train tickets"_s, .due = u"Tomorrow"_s, .colour = familyCalendar}}};
}

DevicesReading sampleDevices()
{
    return {.rows = {{.symbol = u"airpodspro"_s,
                         .name = u"Earbuds"_s,
                         .level = 0.82,
                         .percent = u"82%"_s,
                         .detail = u"L 82 · R 85 · Case 60"_s},
                {.symbol = u"keyboard"_s, .name = u"Keyboard"_s, .level = 0.47, .percent = u"47%"_s},
                {.symbol = u"magicmouse"_s, .name = u"Mouse"_s, .level = 0.12, .percent = u"12%"_s, .charging = true},
                {.symbol = u"gamecontroller"_s, .name = u"Gamepad"_s}}};
}

WidgetConfig sampleCountdown(const QDateTime& now)
{
    WidgetConfig config(WidgetKind::countdown, Skin::glass);
    config.countdownTitle = u"Summer holidays"_s;
    config.countdownDate = now.addDays(42);
    config.countdownStart = now.addDays(-58);
    return config;
}

SkyReading sampleSky(const QDateTime& now)
{
    SkyReading reading = skyReading(now, std::nullopt, {});
    reading.sunrise = u"7:35"_s;
    reading.sunset = u"18:58"_s;
    reading.sun = 0.18;
    return reading;
}

} // namespace

Reading sampleReading(WidgetKind kind, const SystemMonitor& monitor, const QDateTime& now, const QLocale& locale)
{
    switch (kind) {
    case WidgetKind::clock: {
        WidgetConfig config(kind, Skin::glass);
        config.city = u"Reykjavík"_s;
        config.timeZone = u"Atlantic/Reykjavik"_s;
        return clockReading(config, now, locale, true);
    }
    case WidgetKind::calendar: return calendarReading(now.date(), locale);
    case WidgetKind::weather: return sampleWeather(now, locale);
    case WidgetKind::events: return sampleEvents(now, locale);
    case WidgetKind::nowPlaying:
        return NowPlayingReading{.title = u"Northern Lights"_s,
            .artist = u"The Harbour Lamps"_s,
            .progress = 0.38,
            .elapsed = u"1:24"_s,
            .total = u"3:41"_s,
            .playing = true,
            .artwork = sampleImage(QColor(0x3B, 0x2A, 0x6B), QColor(0xD8, 0x6A, 0x5C))};
    case WidgetKind::photo:
        return PhotoReading{.picture = sampleImage(QColor(0x6F, 0xA8, 0xDC), QColor(0x4C, 0x8C, 0x6B))};
    case WidgetKind::focus:
        return FocusReading{
            .phase = u"Focus"_s, .remaining = u"16:40"_s, .progress = 1.0 / 3, .running = true, .sessions = 2};
    case WidgetKind::reminders: return sampleReminders();
    case WidgetKind::countdown: return countdownReading(sampleCountdown(now), now, locale);
    case WidgetKind::sky: return sampleSky(now);
    case WidgetKind::activity: return sampleActivity(now);
    case WidgetKind::quote:
        return QuoteReading{.text = u"Fall seven times, stand up eight."_s, .source = u"Japanese proverb"_s};
    case WidgetKind::devices: return sampleDevices();
    case WidgetKind::cpu: return cpuReading(monitor);
    case WidgetKind::memory: return memoryReading(monitor);
    case WidgetKind::disk: return diskReading(monitor);
    case WidgetKind::battery: return batteryReading(monitor);
    case WidgetKind::network: return networkReading(monitor);
    case WidgetKind::downloads: return downloadsReading(monitor, 60);
    case WidgetKind::processes: return processesReading(monitor);
    }
    Q_UNREACHABLE();
}

} // namespace ambrelle
