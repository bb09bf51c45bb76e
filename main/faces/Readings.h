// SPDX-License-Identifier: MIT

#pragma once

#include "faces/Units.h"
#include "foundation/Wording.h"

#include <QColor>
#include <QImage>
#include <QList>
#include <QString>

#include <optional>
#include <variant>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// What a face shows instead of its content: the kind's symbol over one sentence. Empty: there is content.
struct Notice {
    QString symbol;
    QString sentence;

    bool operator==(const Notice&) const = default;
    explicit operator bool() const { return !sentence.isEmpty(); }
};

/// The last sixty samples, oldest first.
using History = QList<double>;

struct ClockReading {
    Notice notice{};
    QString hours; ///< "09", or "9" on a 12-hour clock
    QString minutes; ///< "41"
    QString meridiem; ///< "AM", "PM"; empty on a 24-hour clock
    std::optional<int> second{}; ///< only for skins that show it
    QString weekday; ///< "Tuesday"
    QString weekdayShort; ///< "Tue"
    QString date; ///< "14 October", in the locale's order
    QString isoDate; ///< "2026-10-14"
    QString month; ///< "October"
    int day = 1;
    QString city{}; ///< tag of a clock that shows another city
    QString offset{}; ///< "6 h behind"; with a city only
    int hour24 = 0;
    int minute = 0;
    int weekdayNumber = 1; ///< 1 Monday to 7 Sunday
    int monthNumber = 1; ///< 1 to 12
    int dayOfYear = 1; ///< 1 to 366
    int week = 1; ///< of the year, as ISO 8601 counts
    QString zone{}; ///< "UTC+2", "UTC-3:30", "UTC"
    QString utc{}; ///< "07:41", the same moment in UTC

    bool operator==(const ClockReading&) const = default;
    QString time() const { return hours + u':' + minutes; }
    QString secondText() const { return second ? u"%1"_s.arg(*second, 2, 10, QLatin1Char('0')) : QString(); } ///< "07"
    QString dateLine() const { return weekday + u' ' + date; } ///< "Tuesday 14 October"
    QString isoLine() const { return weekdayShort + u' ' + isoDate; } ///< "Tue 2026-10-14"
    /// City and offset in one line; empty without a city.
    QString tag() const { return offset.isEmpty() ? city : city + u" · "_s + offset; }
    double dayFraction() const { return (hour24 * 60 + minute) / 1440.0; }
};

struct CalendarReading {
    Notice notice{};
    QString month; ///< "November"
    QString year;
    QStringList weekdays; ///< seven short names, the locale's first day first
    int firstColumn = 0; ///< of the first of the month
    int days = 30;
    int today = 1;

    bool operator==(const CalendarReading&) const = default;
};

struct CpuReading {
    Notice notice{};
    int percent = 0;
    QString load; ///< "Load 2.41"
    QString cores; ///< "8 cores"
    QList<double> perCore; ///< 0 to 1
    History history; ///< 0 to 1
    bool high = false; ///< above 85 percent

    bool operator==(const CpuReading&) const = default;
    Units::Pair figure() const { return Units::percentage(percent); }
};

/// One part of a whole: app, wired or compressed memory.
struct Share {
    QString name;
    QString value; ///< with unit
    double fraction = 0; ///< of the whole

    bool operator==(const Share&) const = default;
};

struct MemoryReading {
    Notice notice{};
    int percent = 0;
    QString used; ///< "6.7"
    QString unit; ///< "GB"
    QString total; ///< "of 16 GB"
    QList<Share> parts; ///< app, wired, compressed
    History history; ///< 0 to 1
    bool high = false;

    bool operator==(const MemoryReading&) const = default;
    Units::Pair figure() const { return {used, unit}; }
    /// "42% of 16 GB"
    QString share() const
    {
        return Wording::tr("%1% %2", "per cent, of so many GB").arg(QString::number(percent), total);
    }
};

struct DiskReading {
    Notice notice{};
    QString name;
    int percent = 0; ///< used
    double fraction = 0; ///< used, 0 to 1
    QString free; ///< "214"
    QString unit; ///< "GB"
    QString total; ///< "of 500 GB"
    bool high = false; ///< above 90 percent used

    bool operator==(const DiskReading&) const = default;
    Units::Pair figure() const { return Units::percentage(percent); }
    QString freeText() const { return Wording::tr("%1 %2 free").arg(free, unit); } ///< "214 GB free"
};

struct BatteryReading {
    Notice notice{};
    int percent = 0;
    double level = 0; ///< 0 to 1
    QString state; ///< "Charging", "On battery", "Full", "Plugged in"
    QString remaining; ///< "3:40 left", "0:35 to full"; empty while unknown
    QString about; ///< the same in words: "about 3 h 40 min left"
    QString symbol; ///< bolt while charging, plug on mains, else empty
    bool charging = false;
    bool onMains = false;
    bool low = false; ///< at 20 percent and below

    bool operator==(const BatteryReading&) const = default;
    Units::Pair figure() const { return Units::percentage(percent); }
    const QString& line() const { return remaining.isEmpty() ? state : remaining; } ///< what is known in one line
};

struct NetworkReading {
    Notice notice{};
    Units::Pair down;
    Units::Pair up;
    History downHistory; ///< bytes a second
    History upHistory;
    double peak = 1; ///< of both histories, at least a small floor, so that noise does not look like traffic

    bool operator==(const NetworkReading&) const = default;
};

struct DownloadsReading {
    Notice notice{};
    Units::Pair down; ///< received since the last reset
    Units::Pair up;
    QString hint; ///< "Since start", "Resets every 60 min"
    double share = 1; ///< of what was received in all traffic, 0 to 1

    bool operator==(const DownloadsReading&) const = default;
};

struct ProcessesReading {
    struct Row {
        QString name;
        QString percent; ///< "13.2%"
        double fraction = 0; ///< of the busiest row, 0 to 1

        bool operator==(const Row&) const = default;
    };

    Notice notice{};
    QList<Row> rows; ///< at most eight, busiest first

    bool operator==(const ProcessesReading&) const = default;
};

/// The ten weather pictures.
enum class Sky { clear, clearNight, partly, partlyNight, cloudy, fog, drizzle, rain, snow, thunder, unknown };

struct WeatherReading {
    struct Day {
        QString initial; ///< "T"
        QString name; ///< "Tue"
        QString date; ///< "14"
        Sky sky = Sky::unknown;
        QString high; ///< "17°"
        QString low;
        double highFraction = 1; ///< within the lowest to the highest of all days, 0 to 1
        double lowFraction = 0;

        bool operator==(const Day&) const = default;
    };

    Notice notice{};
    QString place;
    QString temperature; ///< "17"; the degree sign is the unit
    std::optional<double> nowFraction{}; ///< place of now between today's low (0) and high (1), while both are known
    QString description; ///< "Partly Cloudy"; "5 hours ago" in its place when the figures are so old
    Sky sky = Sky::unknown;
    QString high; ///< "19°"
    QString low;
    QList<Day> days; ///< at most seven, today first

    bool operator==(const WeatherReading&) const = default;
    QString degrees() const { return temperature + u'°'; } ///< "17°"
    /// "19° / 10°"; empty while today's forecast is unknown.
    QString range() const
    {
        return high.isEmpty() ? QString() : Wording::tr("%1 / %2", "highest, lowest temperature").arg(high, low);
    }
};

struct EventsReading {
    struct Row {
        QString time; ///< "09:30", "All day", "Thu 14:00"
        QString title;
        QColor colour; ///< of its calendar

        bool operator==(const Row&) const = default;
    };

    Notice notice{};
    QString day; ///< "Tuesday 14"
    QList<Row> rows; ///< at most eight, and before them a sentence where today has none

    bool operator==(const EventsReading&) const = default;
};

/// A picture told apart by its key, so that readings compare in no time.
struct Picture {
    QImage image;

    bool operator==(const Picture& other) const { return image.cacheKey() == other.image.cacheKey(); }
    explicit operator bool() const { return !image.isNull(); }
};

struct NowPlayingReading {
    Notice notice{}; ///< the three controls stay below it
    QString title;
    QString artist;
    double progress = 0; ///< 0 to 1
    QString elapsed; ///< "1:24"
    QString total;
    bool playing = false;
    Picture artwork;

    bool operator==(const NowPlayingReading&) const = default;
};

struct PhotoReading {
    Notice notice{};
    Picture picture;
    bool fills = true; ///< cropped to the frame rather than fitted into it
    QString description{}; ///< of the picture, for those who do not see it

    bool operator==(const PhotoReading&) const = default;
};

struct FocusReading {
    Notice notice{};
    QString phase; ///< "Focus", "Break", "Long break"
    QString remaining; ///< "25:00"
    double progress = 0; ///< 0 to 1
    bool running = false;
    int sessions = 0; ///< dots lit, 0 to 4

    bool operator==(const FocusReading&) const = default;
};

struct RemindersReading {
    struct Row {
        QString id;
        QString title;
        QString due; ///< "Today, 14:05"; empty without a date
        QString dueDay{}; ///< the same without the time: "Today"
        bool overdue = false;
        bool done = false; ///< being ticked off
        QColor colour; ///< of its list

        bool operator==(const Row&) const = default;
    };

    Notice notice{};
    QList<Row> rows; ///< at most twelve

    bool operator==(const RemindersReading&) const = default;
};

struct CountdownReading {
    Notice notice{};
    QString days; ///< "42"
    QString unit; ///< "days", "day", "days ago"
    QString title;
    QString date;
    double progress = 0; ///< from the start to the date, 0 to 1

    bool operator==(const CountdownReading&) const = default;
};

struct SkyReading {
    Notice notice{};
    QString phase; ///< "Waxing Gibbous"
    double fraction = 0; ///< of the lunation: 0 new, 0.5 full
    QString illumination; ///< "73% lit"
    QString next; ///< "Full Moon in 4 days"
    QString sunrise{}; ///< empty while unknown
    QString sunset{}; ///< likewise
    std::optional<double> sun{}; ///< way of the sun from sunrise (0) to sunset (1); none by night or unknown

    bool operator==(const SkyReading&) const = default;
};

struct ActivityReading {
    Notice notice{};
    QList<double> hours; ///< 24, active part of each hour, 0 to 1
    int hour = 0; ///< now
    QString active; ///< "3 h 12 min"
    QString metres; ///< "148 m"; empty where the session tells no pointer
    QString clicks; ///< "1,204 clicks"; likewise
    QString hint{}; ///< "Active time only"; in place of both

    bool operator==(const ActivityReading&) const = default;
};

struct QuoteReading {
    Notice notice{};
    QString text;
    QString source;
    QString note{}; ///< "noun · PET-ri-kor"; words only
    bool word = false;

    bool operator==(const QuoteReading&) const = default;
    QString credit() const { return Wording::tr("— %1", "who said it").arg(source); } ///< "— Seneca"
};

struct DevicesReading {
    struct Row {
        QString symbol;
        QString name;
        std::optional<double> level{}; ///< 0 to 1
        QString percent{};
        QString detail{}; ///< "L 82 · R 85 · Case 60"
        bool charging = false;

        bool operator==(const Row&) const = default;
    };

    Notice notice{};
    QList<Row> rows;

    bool operator==(const DevicesReading&) const = default;
};

/// What one widget shows. Equal readings draw the same picture.
using Reading = std::variant<ClockReading, CalendarReading, CpuReading, MemoryReading, DiskReading, BatteryReading,
    NetworkReading, DownloadsReading, ProcessesReading, WeatherReading, EventsReading, NowPlayingReading, PhotoReading,
    FocusReading, RemindersReading, CountdownReading, SkyReading, ActivityReading, QuoteReading, DevicesReading>;

/// The notice of whatever reading this is.
inline const Notice& noticeOf(const Reading& reading)
{
    return std::visit([](const auto& value) -> const Notice& { return value.notice; }, reading);
}

} // namespace ambrelle
