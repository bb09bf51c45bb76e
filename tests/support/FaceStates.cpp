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

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const QString longName = u"Österreichisch-Ungarische Dampfschifffahrtsgesellschaft und ihre Ångström-Wärter"_s;

QString emptySentence(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::weather:
        return u"Couldn't get your location. Pick a city from the tray menu: Weather ▸ Set City…"_s;
    case WidgetKind::events:
        return u"Calendar access is off. Turn it on in System Settings ▸ Privacy & Security ▸ Calendars."_s;
    case WidgetKind::reminders:
        return u"Reminders access is off. Turn it on in System Settings ▸ Privacy & Security ▸ Reminders."_s;
    case WidgetKind::photo: return u"Choose a folder in the widget's settings"_s;
    case WidgetKind::processes: return u"Measuring…"_s;
    default: return u"Nothing to show on this machine"_s;
    }
}

// Each overload takes a sample to one state; kinds whose sample already is that state have none.

void makeQuiet(CpuReading& r)
{
    r.percent = 0;
    r.load = u"Load 0.00"_s;
    r.history.fill(0);
    r.perCore.fill(0);
}
void makeQuiet(MemoryReading& r)
{
    r.history.fill(0);
}
void makeQuiet(DiskReading& r)
{
    r.name = u"A"_s;
    r.percent = 0;
    r.fraction = 0;
}
void makeQuiet(BatteryReading& r)
{
    r.percent = 4;
    r.level = 0.04;
    r.low = true;
    r.remaining.clear();
    r.charging = r.onMains = false;
    r.state = u"On battery"_s;
}
void makeQuiet(NetworkReading& r)
{
    r.down = r.up = {u"0.00"_s, u"KB/s"_s};
    r.downHistory.fill(0);
    r.upHistory.fill(0);
}
void makeQuiet(DownloadsReading& r)
{
    r.down = r.up = {u"0"_s, u"KB"_s};
    r.share = 0;
}
void makeQuiet(ProcessesReading& r)
{
    r.rows = {{u"x"_s, u"0.0%"_s, 0}};
}
void makeQuiet(EventsReading& r)
{
    r.rows = {{u"9:05"_s, u"x"_s, Qt::red}};
}
void makeQuiet(NowPlayingReading& r)
{
    r.title = r.artist = u"x"_s;
    r.progress = 0;
    r.playing = false;
    r.artwork = {};
}
void makeQuiet(RemindersReading& r)
{
    r.rows = {{.id = u"1"_s, .title = u"x"_s}};
}
void makeQuiet(DevicesReading& r)
{
    r.rows = {{.symbol = u"keyboard"_s, .name = u"x"_s}};
}
void makeQuiet(WeatherReading& r)
{
    r.place = u"Å"_s;
    r.temperature = u"0"_s;
    r.description = u"—"_s;
    r.sky = Sky::unknown;
    r.days.clear();
}
void makeQuiet(CountdownReading& r)
{
    r.days = u"0"_s;
    r.unit = u"days: today"_s;
    r.title.clear();
    r.progress = 1;
}
void makeQuiet(ActivityReading& r)
{
    r.hours.fill(0);
    r.active = u"0 min"_s;
    r.metres.clear();
    r.clicks.clear();
    r.hint = u"Active time only"_s;
}
void makeQuiet(QuoteReading& r)
{
    r = {.text = u"The pleasant smell of earth after rain falls on dry ground."_s,
        .source = u"Petrichor"_s,
        .note = u"noun · PET-ri-kor"_s,
        .word = true};
}
void makeQuiet(FocusReading& r)
{
    r = {.phase = u"Focus"_s, .remaining = u"0:00"_s};
}
void makeQuiet(SkyReading& r)
{
    r.sunrise.clear();
    r.sunset.clear();
    r.sun.reset();
    r.phase = u"New Moon"_s;
    r.fraction = 0;
}
void makeQuiet(ClockReading& r)
{
    r.hours = u"00"_s;
    r.minutes = u"00"_s;
    r.city.clear();
    r.offset.clear();
}
void makeQuiet(CalendarReading& r)
{
    r.firstColumn = 0;
    r.days = 28;
    r.today = 1;
}
void makeQuiet(PhotoReading& r)
{
    r.fills = false;
}

void makeExtreme(CpuReading& r)
{
    r.percent = 100;
    r.load = u"Load 128.00"_s;
    r.cores = u"256 cores"_s;
    r.history.fill(1);
    r.perCore = QList<double>(256, 1);
    r.high = true;
}
void makeExtreme(MemoryReading& r)
{
    r.percent = 100;
    r.used = u"1023.9"_s;
    r.total = u"of 1024 GB"_s;
    r.parts = {
        {u"App"_s, u"700.0 GB"_s, 0.68}, {u"Wired"_s, u"200.0 GB"_s, 0.2}, {u"Compressed"_s, u"123.9 GB"_s, 0.12}};
    r.history.fill(1);
    r.high = true;
}
void makeExtreme(DiskReading& r)
{
    r.percent = 100;
    r.fraction = 1;
    r.free = u"16000"_s;
    r.total = u"of 16000 GB"_s;
    r.high = true;
}
void makeExtreme(BatteryReading& r)
{
    r.percent = 100;
    r.level = 1;
    r.low = false;
    r.charging = r.onMains = true;
    r.state = u"Charging"_s;
    r.remaining = u"23:59 to full"_s;
}
void makeExtreme(NetworkReading& r)
{
    r.down = {u"1000.00"_s, u"KB/s"_s};
    r.up = {u"1187.50"_s, u"MB/s"_s};
    r.downHistory.fill(1.1875e9);
    r.upHistory.fill(1.1875e9);
    r.peak = 1.1875e9;
}
void makeExtreme(DownloadsReading& r)
{
    r.down = {u"18446.74"_s, u"GB"_s};
    r.up = {u"18446.74"_s, u"GB"_s};
    r.hint = u"Resets every 10080 min"_s;
    r.share = 1;
}
void makeExtreme(ProcessesReading& r)
{
    r.rows.clear();
    for (int row = 0; row < 8; ++row)
        r.rows.append({u"Web Content"_s, u"1600.0%"_s, 1});
}
void makeExtreme(WeatherReading& r)
{
    r.temperature = u"-40"_s;
    r.description = u"Thunderstorms"_s;
    r.sky = Sky::thunder;
    r.high = u"-38°"_s;
    r.low = u"-104°"_s;
    for (WeatherReading::Day& day : r.days) {
        day.high = u"-38°"_s;
        day.low = u"-104°"_s;
        day.highFraction = day.lowFraction = 1;
    }
}
void makeExtreme(EventsReading& r)
{
    r.day = u"Wednesday 30"_s;
    r.rows.clear();
    for (int row = 0; row < 8; ++row)
        r.rows.append({u"Wed 23:59"_s, u"Quarterly planning"_s, Qt::yellow});
}
void makeExtreme(NowPlayingReading& r)
{
    r.progress = 1;
    r.elapsed = r.total = u"600:00"_s;
}
void makeExtreme(RemindersReading& r)
{
    r.rows.clear();
    for (int row = 0; row < 12; ++row)
        r.rows.append({.id = QString::number(row),
            .title = u"Renew the passport"_s,
            .due = u"31 December 2026"_s,
            .overdue = true});
}
void makeExtreme(DevicesReading& r)
{
    while (r.rows.size() < 8)
        r.rows.append(
            {.symbol = u"headphones"_s, .name = u"Headphones"_s, .level = 1, .percent = u"100%"_s, .charging = true});
}
void makeExtreme(CountdownReading& r)
{
    r.days = u"99999"_s;
    r.unit = u"days ago"_s;
    r.progress = 1;
}
void makeExtreme(ActivityReading& r)
{
    r.hours.fill(1);
    r.active = u"24 h 59 min"_s;
    r.metres = u"12,345 m"_s;
    r.clicks = u"999,999 clicks"_s;
    r.hour = 23;
}
void makeExtreme(QuoteReading& r)
{
    r.text =
        u"It is not because things are difficult that we do not dare; it is because we do not dare that things are "
        "difficult, and so the days go by one after another."_s;
    r.source = u"Attributed to Lucius Annaeus Seneca the Younger"_s;
}
void makeExtreme(FocusReading& r)
{
    r.phase = u"Long break"_s;
    r.remaining = u"180:00"_s;
    r.progress = 1;
    r.running = true;
    r.sessions = 4;
}
void makeExtreme(SkyReading& r)
{
    r.phase = u"Waxing Gibbous"_s;
    r.fraction = 0.43;
    r.illumination = u"100% lit"_s;
    r.sunrise = r.sunset = u"23:59"_s;
    r.sun = 1;
}
void makeExtreme(ClockReading& r)
{
    r.hours = u"12"_s;
    r.minutes = u"44"_s;
    r.meridiem = u"PM"_s;
    r.weekday = u"Wednesday"_s;
    r.date = u"September 30"_s;
    r.month = u"September"_s;
    r.day = 30;
    r.hour24 = 12;
    r.minute = 44;
}
void makeExtreme(CalendarReading& r)
{
    r.month = u"September"_s;
    r.firstColumn = 6;
    r.days = 31;
    r.today = 31;
}
void makeExtreme(PhotoReading&) { }

template <typename R> void lengthen(R&) { }
void lengthen(ClockReading& r)
{
    r.city = longName;
    r.offset = u"12 h 45 min ahead"_s;
}
void lengthen(DiskReading& r)
{
    r.name = longName;
}
void lengthen(WeatherReading& r)
{
    r.place = longName;
}
void lengthen(NowPlayingReading& r)
{
    r.title = r.artist = longName;
}
void lengthen(CountdownReading& r)
{
    r.title = longName;
}
void lengthen(QuoteReading& r)
{
    r.source = longName;
}
template <typename R>
requires requires(R r)
{
    r.rows.first().title;
}
void lengthenTitles(R& r)
{
    for (auto& row : r.rows)
        row.title = longName;
}
template <typename R>
requires requires(R r)
{
    r.rows.first().name;
}
void lengthenNames(R& r)
{
    for (auto& row : r.rows)
        row.name = longName;
}
void lengthen(EventsReading& r)
{
    lengthenTitles(r);
}
void lengthen(RemindersReading& r)
{
    lengthenTitles(r);
}
void lengthen(ProcessesReading& r)
{
    lengthenNames(r);
}
void lengthen(DevicesReading& r)
{
    lengthenNames(r);
}

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
    std::visit(
        [&](auto& value) {
            switch (state) {
            case FaceState::sample: break;
            case FaceState::empty: value.notice = {symbol(kind), emptySentence(kind)}; break;
            case FaceState::quiet: makeQuiet(value); break;
            case FaceState::extreme: makeExtreme(value); break;
            case FaceState::longNames: lengthen(value); break;
            }
        },
        reading);
    return reading;
}

} // namespace ambrelle
