// SPDX-License-Identifier: MIT

#include "support/FaceStates.h"

#include "faces/ReadingFeed.h"
#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "offline/SampleData.h"
#include "platform/headless/HeadlessSources.h"
#include "services/SystemMonitor.h"
#include "support/QuietServices.h"

#include <QPainter>

#include <functional>
#include <type_traits>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString longName = u"Österreichisch-Ungarische Dampfschifffahrtsgesellschaft und ihre Ångström-Wärter"_s;

QString emptySentence(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::weather:
        return u"Couldn't get your location. Pick a city from the More menu: Weather ▸ Set City…"_s;
    case WidgetKind::events:
        return u"Calendar access is off. Turn it on in System Settings ▸ Privacy & Security ▸ Calendars."_s;
    case WidgetKind::reminders:
        return u"Reminders access is off. Turn it on in System Settings ▸ Privacy & Security ▸ Reminders."_s;
    case WidgetKind::photo: return u"Choose a folder in the widget's settings"_s;
    case WidgetKind::processes: return u"Measuring…"_s;
    default: return u"Nothing to show on this machine"_s;
    }
}

/// A change of one kind of reading; the others stay as they are.
using Edit = std::function<void(Reading&)>;

template <typename R> Edit with(void (*change)(R&))
{
    return [change](Reading& reading) {
        if (R* mine = std::get_if<R>(&reading))
            change(*mine);
    };
}

template <typename R, typename T> Edit set(T R::*member, const std::type_identity_t<T>& value)
{
    return [member, value](Reading& reading) {
        if (R* mine = std::get_if<R>(&reading))
            mine->*member = value;
    };
}

/// All entries of a list.
template <typename R> Edit fill(QList<double> R::*list, double value)
{
    return [list, value](Reading& reading) {
        if (R* mine = std::get_if<R>(&reading))
            (mine->*list).fill(value);
    };
}

/// A member of all rows.
template <typename R, typename Row, typename T>
Edit fill(QList<Row> R::*rows, T Row::*member, const std::type_identity_t<T>& value)
{
    return [=](Reading& reading) {
        if (R* mine = std::get_if<R>(&reading)) {
            for (Row& row : mine->*rows)
                row.*member = value;
        }
    };
}

// What takes a sample to a state, a kind after the other; those whose sample already is that state have no edits.
// clang-format off

const QList<Edit> quiet{
    set(&CpuReading::percent, 0), set(&CpuReading::load, u"Load 0.00"_s), fill(&CpuReading::history, 0),
    fill(&CpuReading::perCore, 0),
    fill(&MemoryReading::history, 0),
    set(&DiskReading::name, u"A"_s), set(&DiskReading::percent, 0), set(&DiskReading::fraction, 0),
    set(&BatteryReading::percent, 4), set(&BatteryReading::level, 0.04), set(&BatteryReading::low, true),
    set(&BatteryReading::remaining, {}), set(&BatteryReading::charging, false), set(&BatteryReading::onMains, false),
    set(&BatteryReading::state, u"On battery"_s), set(&BatteryReading::about, {}), set(&BatteryReading::symbol, {}),
    set(&NetworkReading::down, {u"0.00"_s, u"KB/s"_s}), set(&NetworkReading::up, {u"0.00"_s, u"KB/s"_s}),
    fill(&NetworkReading::downHistory, 0), fill(&NetworkReading::upHistory, 0),
    set(&DownloadsReading::down, {u"0"_s, u"KB"_s}), set(&DownloadsReading::up, {u"0"_s, u"KB"_s}),
    set(&DownloadsReading::share, 0),
    set(&ProcessesReading::rows, {{u"x"_s, u"0.0%"_s, 0}}),
    set(&EventsReading::rows, {{u"9:05"_s, u"x"_s, Qt::red}}),
    set(&NowPlayingReading::title, u"x"_s), set(&NowPlayingReading::artist, u"x"_s),
    set(&NowPlayingReading::progress, 0), set(&NowPlayingReading::playing, false),
    set(&NowPlayingReading::artwork, {}),
    set(&RemindersReading::rows, {{.id = u"1"_s, .title = u"x"_s}}),
    set(&DevicesReading::rows, {{.symbol = u"keyboard"_s, .name = u"x"_s}}),
    set(&WeatherReading::place, u"Å"_s), set(&WeatherReading::temperature, u"0"_s),
    set(&WeatherReading::description, u"—"_s), set(&WeatherReading::sky, Sky::unknown),
    set(&WeatherReading::days, {}),
    set(&CountdownReading::days, u"0"_s), set(&CountdownReading::unit, u"days: today"_s),
    set(&CountdownReading::title, {}), set(&CountdownReading::progress, 1),
    fill(&ActivityReading::hours, 0), set(&ActivityReading::active, u"0 min"_s), set(&ActivityReading::metres, {}),
    set(&ActivityReading::clicks, {}), set(&ActivityReading::hint, u"Active time only"_s),
    set(&QuoteReading::text, u"The pleasant smell of earth after rain falls on dry ground."_s),
    set(&QuoteReading::source, u"Petrichor"_s), set(&QuoteReading::note, u"noun · PET-ri-kor"_s),
    set(&QuoteReading::word, true),
    with<FocusReading>([](auto& r) { r = {.phase = u"Focus"_s, .remaining = u"0:00"_s}; }),
    set(&SkyReading::sunrise, {}), set(&SkyReading::sunset, {}), set(&SkyReading::sun, {}),
    set(&SkyReading::phase, u"New Moon"_s), set(&SkyReading::fraction, 0),
    set(&ClockReading::hours, u"00"_s), set(&ClockReading::minutes, u"00"_s), set(&ClockReading::city, {}),
    set(&ClockReading::offset, {}),
    set(&CalendarReading::firstColumn, 0), set(&CalendarReading::days, 28), set(&CalendarReading::today, 1),
    set(&PhotoReading::fills, false),
};

const QList<Edit> extreme{
    set(&CpuReading::percent, 100), set(&CpuReading::load, u"Load 128.00"_s), set(&CpuReading::cores, u"256 cores"_s),
    fill(&CpuReading::history, 1), set(&CpuReading::perCore, QList<double>(256, 1)), set(&CpuReading::high, true),
    set(&MemoryReading::percent, 100), set(&MemoryReading::used, u"1023.9"_s),
    set(&MemoryReading::total, u"of 1024 GB"_s), fill(&MemoryReading::history, 1), set(&MemoryReading::high, true),
    set(&MemoryReading::parts,
        {{u"App"_s, u"700.0 GB"_s, 0.68}, {u"Wired"_s, u"200.0 GB"_s, 0.2}, {u"Compressed"_s, u"123.9 GB"_s, 0.12}}),
    set(&DiskReading::percent, 100), set(&DiskReading::fraction, 1), set(&DiskReading::free, u"16000"_s),
    set(&DiskReading::total, u"of 16000 GB"_s), set(&DiskReading::high, true),
    set(&BatteryReading::percent, 100), set(&BatteryReading::level, 1), set(&BatteryReading::low, false),
    set(&BatteryReading::charging, true), set(&BatteryReading::onMains, true),
    set(&BatteryReading::state, u"Charging"_s), set(&BatteryReading::remaining, u"23:59 to full"_s),
    set(&BatteryReading::about, u"about 23 h 59 min to full"_s), set(&BatteryReading::symbol, u"bolt.fill"_s),
    set(&NetworkReading::down, {u"1000.00"_s, u"KB/s"_s}), set(&NetworkReading::up, {u"1187.50"_s, u"MB/s"_s}),
    fill(&NetworkReading::downHistory, 1.1875e9), fill(&NetworkReading::upHistory, 1.1875e9),
    set(&NetworkReading::peak, 1.1875e9),
    set(&DownloadsReading::down, {u"18446.74"_s, u"GB"_s}), set(&DownloadsReading::up, {u"18446.74"_s, u"GB"_s}),
    set(&DownloadsReading::hint, u"Resets every 10080 min"_s), set(&DownloadsReading::share, 1),
    set(&ProcessesReading::rows, QList<ProcessesReading::Row>(8, {u"Web Content"_s, u"1600.0%"_s, 1})),
    set(&WeatherReading::temperature, u"-40"_s), set(&WeatherReading::description, u"Thunderstorms"_s),
    set(&WeatherReading::sky, Sky::thunder), set(&WeatherReading::high, u"-38°"_s),
    set(&WeatherReading::low, u"-104°"_s), fill(&WeatherReading::days, &WeatherReading::Day::high, u"-38°"_s),
    fill(&WeatherReading::days, &WeatherReading::Day::low, u"-104°"_s),
    fill(&WeatherReading::days, &WeatherReading::Day::highFraction, 1),
    fill(&WeatherReading::days, &WeatherReading::Day::lowFraction, 1),
    set(&EventsReading::day, u"Wednesday 30"_s),
    set(&EventsReading::rows, QList<EventsReading::Row>(8, {u"Wed 23:59"_s, u"Quarterly planning"_s, Qt::yellow})),
    set(&NowPlayingReading::progress, 1), set(&NowPlayingReading::elapsed, u"600:00"_s),
    set(&NowPlayingReading::total, u"600:00"_s),
    with<RemindersReading>([](auto& r) {
        r.rows.clear();
        for (int row = 0; row < 12; ++row)
            r.rows.append({.id = QString::number(row),
                .title = u"Renew the passport"_s,
                .due = u"31 Dec 2025, 23:59"_s,
                .dueDay = u"31 Dec 2025"_s,
                .overdue = true});
    }),
    with<DevicesReading>([](auto& r) {
        r.rows.resize(8,
            {.symbol = u"headphones"_s, .name = u"Headphones"_s, .level = 1, .percent = u"100%"_s, .charging = true});
    }),
    set(&CountdownReading::days, u"99999"_s), set(&CountdownReading::unit, u"days ago"_s),
    set(&CountdownReading::progress, 1),
    fill(&ActivityReading::hours, 1), set(&ActivityReading::active, u"24 h 59 min"_s),
    set(&ActivityReading::metres, u"12,345 m"_s), set(&ActivityReading::clicks, u"999,999 clicks"_s),
    set(&ActivityReading::hour, 23),
    set(&QuoteReading::text,
        u"It is not because things are difficult that we do not dare; it is because we do not dare that things are "
        "difficult, and so the days go by one after another."_s),
    set(&QuoteReading::source, u"Attributed to Lucius Annaeus Seneca the Younger"_s),
    set(&FocusReading::phase, u"Long break"_s), set(&FocusReading::remaining, u"600:00"_s),
    set(&FocusReading::progress, 1), set(&FocusReading::running, true), set(&FocusReading::sessions, 4),
    set(&SkyReading::phase, u"Waxing Gibbous"_s), set(&SkyReading::fraction, 0.43),
    set(&SkyReading::illumination, u"100% lit"_s), set(&SkyReading::sunrise, u"23:59"_s),
    set(&SkyReading::sunset, u"23:59"_s), set(&SkyReading::sun, 1),
    set(&ClockReading::hours, u"12"_s), set(&ClockReading::minutes, u"44"_s), set(&ClockReading::meridiem, u"PM"_s),
    set(&ClockReading::weekday, u"Wednesday"_s), set(&ClockReading::date, u"September 30"_s),
    set(&ClockReading::month, u"September"_s), set(&ClockReading::day, 30), set(&ClockReading::hour24, 12),
    set(&ClockReading::minute, 44), set(&ClockReading::weekdayNumber, 3), set(&ClockReading::monthNumber, 9),
    set(&ClockReading::dayOfYear, 366), set(&ClockReading::week, 53), set(&ClockReading::zone, u"UTC+12:45"_s),
    set(&ClockReading::utc, u"23:59"_s),
    set(&CalendarReading::month, u"September"_s), set(&CalendarReading::firstColumn, 6),
    set(&CalendarReading::days, 31), set(&CalendarReading::today, 31),
};

const QList<Edit> longNames{
    set(&ClockReading::city, longName), set(&ClockReading::offset, u"12 h 45 min ahead"_s),
    set(&DiskReading::name, longName),
    set(&WeatherReading::place, longName),
    set(&NowPlayingReading::title, longName), set(&NowPlayingReading::artist, longName),
    set(&CountdownReading::title, longName),
    set(&QuoteReading::source, longName),
    fill(&EventsReading::rows, &EventsReading::Row::title, longName),
    fill(&RemindersReading::rows, &RemindersReading::Row::title, longName),
    fill(&ProcessesReading::rows, &ProcessesReading::Row::name, longName),
    fill(&DevicesReading::rows, &DevicesReading::Row::name, longName),
};
// clang-format on

/// Bright above and dark below, as photographs are.
QImage landscape()
{
    QImage image(244, 244, QImage::Format_RGB32);
    QLinearGradient air(0, 0, 0, 244);
    air.setColorAt(0, QColor(0x6F, 0xA8, 0xDC));
    air.setColorAt(1, QColor(0x2C, 0x4C, 0x3B));
    QPainter(&image).fillRect(image.rect(), air);
    return image;
}

Reading sample(WidgetKind kind, const QLocale& locale)
{
    ManualClock clock(SampleData::moment());
    UserDefaults defaults = UserDefaults::temporary();
    AppSettings settings(defaults);
    const HeadlessSources machine;
    SystemMonitor monitor(machine.sources(), clock);
    QuietServices services(settings, defaults, clock);
    SampleData::load(monitor, services.live, landscape());
    return ReadingFeed({monitor, services.live, settings}, clock, locale).readingFor(SampleData::widget(kind), true);
}

} // namespace

Reading stateReading(WidgetKind kind, FaceState state, const QLocale& locale)
{
    Reading reading = sample(kind, locale);
    if (state == FaceState::waiting)
        std::visit([kind](auto& value) { value.notice = {symbol(kind), u"Measuring…"_s}; }, reading);
    if (state == FaceState::empty)
        std::visit([kind](auto& value) { value.notice = {symbol(kind), emptySentence(kind)}; }, reading);
    for (const auto& [each, edits] :
        {std::pair(FaceState::quiet, &quiet), {FaceState::extreme, &extreme}, {FaceState::longNames, &longNames}}) {
        if (each != state)
            continue;
        for (const Edit& edit : *edits)
            edit(reading);
    }
    return reading;
}

namespace {

struct Foreign {
    QStringList operator()(const auto&) const { return {}; }
    QStringList operator()(const ClockReading& r) const { return {r.city, r.tag()}; }
    QStringList operator()(const DiskReading& r) const { return {r.name}; }
    QStringList operator()(const WeatherReading& r) const { return {r.place}; }
    QStringList operator()(const NowPlayingReading& r) const { return {r.title, r.artist}; }
    QStringList operator()(const CountdownReading& r) const { return {r.title}; }
    QStringList operator()(const QuoteReading& r) const { return {r.text, r.source, r.credit()}; }
    QStringList operator()(const EventsReading& r) const { return of(r.rows, &EventsReading::Row::title); }
    QStringList operator()(const RemindersReading& r) const { return of(r.rows, &RemindersReading::Row::title); }
    QStringList operator()(const ProcessesReading& r) const { return of(r.rows, &ProcessesReading::Row::name); }
    QStringList operator()(const DevicesReading& r) const { return of(r.rows, &DevicesReading::Row::name); }

private:
    template <typename Row> static QStringList of(const QList<Row>& rows, QString Row::*text)
    {
        QStringList texts;
        for (const Row& row : rows)
            texts += row.*text;
        return texts;
    }
};

} // namespace

QStringList foreignTexts(const Reading& reading)
{
    return std::visit(Foreign(), reading);
}

} // namespace ambrelle
