// SPDX-License-Identifier: MIT

#include "platform/calendar/IcsParser.h"

#include "platform/calendar/IcsValues.h"

#include <QCryptographicHash>

#include <algorithm>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr qsizetype longestTitle = 400; // letters
constexpr qsizetype longestCalendarName = 200;
constexpr std::size_t mostDates = 20'000; // of one list

/// Tells items apart that have no identifier.
QByteArray hashOf(std::string_view text)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return hash.result().toHex();
}

QByteArray valueOf(const IcsComponent& component, std::string_view name)
{
    const auto line = std::ranges::find_if(component.lines, [name](const IcsLine& each) { return each.is(name); });
    return line == component.lines.end() ? QByteArray() : unfolded(line->value());
}

bool says(const IcsComponent& component, std::string_view name, const char* value)
{
    return valueOf(component, name).compare(value, Qt::CaseInsensitive) == 0;
}

/// What the zone's half tells: from which moments on which offset holds.
std::vector<CalendarZone::Transition> transitionsOf(
    const IcsComponent& half, std::optional<std::chrono::seconds>& before)
{
    const IcsValues values(half, {"DTSTART", "RDATE", "TZOFFSETFROM", "TZOFFSETTO"});
    const auto start = values.moment("DTSTART");
    const auto from = values.offset("TZOFFSETFROM");
    const auto to = values.offset("TZOFFSETTO");
    if (!start || !from || !to)
        return {};
    if (!before || half.is("STANDARD"))
        before = half.is("STANDARD") ? *to : *from;
    std::vector<std::chrono::local_seconds> onsets{start->wallTime};
    for (const auto& date : values.dates("RDATE", mostDates))
        onsets.push_back(date.wallTime);
    const auto end = std::chrono::local_days(std::chrono::year(2150) / 1 / 1);
    Effort effort{400'000};
    for (const QByteArray& text : ruleTexts(half)) {
        const auto rule = RecurrenceRule::parsed(text);
        if (!rule || rule->frequency < RecurrenceRule::Frequency::daily)
            continue;
        const auto last = rule->until ? rule->until->moment + (rule->until->isUtc ? *from : std::chrono::seconds(0))
                                      : std::chrono::local_seconds::max();
        const auto more = rule->between(start->wallTime, last, start->wallTime, end, mostDates, effort);
        onsets.insert(onsets.end(), more.begin(), more.end());
    }
    std::vector<CalendarZone::Transition> transitions;
    transitions.reserve(onsets.size());
    for (const auto onset : onsets)
        transitions.push_back({std::chrono::sys_seconds(onset.time_since_epoch() - *from), *to});
    return transitions;
}

std::shared_ptr<const CalendarZone> zoneOf(const IcsComponent& definition)
{
    std::optional<std::chrono::seconds> before;
    std::vector<CalendarZone::Transition> transitions;
    for (const IcsComponent& half : definition.parts) {
        const auto more = transitionsOf(half, before);
        transitions.insert(transitions.end(), more.begin(), more.end());
    }
    if (!before)
        return nullptr;
    return std::make_shared<const CalendarZone>(*before, std::move(transitions));
}

void readName(IcsFile& file, const std::vector<IcsLine>& properties)
{
    for (const IcsLine& line : properties) {
        const QString value =
            QString::fromUtf8(unescaped(unfolded(line.value()))).simplified().left(longestCalendarName);
        if (line.is("X-WR-CALNAME") || (line.is("NAME") && file.name.isEmpty()))
            file.name = value;
        else if (line.is("X-APPLE-CALENDAR-COLOR") || (line.is("COLOR") && !file.color.isValid()))
            file.color = calendarColor(value);
    }
}

/// Adds the item where it belongs. Of two with the same identifier the later version counts.
void add(std::vector<CalendarSeries>& series, QHash<QByteArray, std::size_t>& places, CalendarItem item)
{
    const QByteArray key = (item.isReminder ? 'T' : 'E') + item.uid;
    auto place = places.constFind(key);
    if (place == places.constEnd()) {
        place = places.insert(key, series.size());
        series.emplace_back();
    }
    CalendarSeries& own = series[*place];
    if (item.recurrenceId)
        own.changes.push_back(std::move(item));
    else if (!own.master || item.sequence >= own.master->sequence)
        own.master = std::move(item);
}

} // namespace

QColor calendarColor(const QString& text)
{
    QString name = text.trimmed();
    if (name.startsWith(u'#') && name.size() == 9)
        name.chop(2);
    const QColor color = QColor::isValidColor(name) ? QColor(name) : QColor();
    return color.isValid() ? QColor(color.rgb()) : QColor();
}

IcsParser::IcsParser(std::string_view text)
{
    IcsReader reader(text);
    while (const auto component = reader.next()) {
        if (component->is("VTIMEZONE"))
            m_definitions.insert(valueOf(*component, "TZID"), *component);
    }
}

IcsFile IcsParser::parsed(std::string_view text)
{
    IcsFile file;
    IcsReader reader(text);
    file.isCalendar = reader.isCalendar();
    if (!file.isCalendar)
        return file;
    IcsParser parser(text);
    QHash<QByteArray, std::size_t> places;
    int items = 0;
    while (const auto component = reader.next()) {
        auto item = parser.item(*component);
        if (item && ++items > mostItems)
            break;
        if (item)
            add(file.series, places, std::move(*item));
    }
    readName(file, reader.properties());
    return file;
}

std::shared_ptr<const CalendarZone> IcsParser::zone(const QByteArray& name)
{
    if (name.isEmpty())
        return nullptr;
    const auto known = m_zones.constFind(name);
    if (known != m_zones.constEnd())
        return *known;
    auto zone = CalendarZone::named(name);
    const auto definition = m_definitions.constFind(name);
    if (!zone && definition != m_definitions.constEnd()) {
        zone = CalendarZone::named(valueOf(*definition, "X-LIC-LOCATION"));
        if (!zone)
            zone = zoneOf(*definition);
    }
    m_zones.insert(name, zone);
    return zone;
}

std::optional<CalendarItem> IcsParser::item(const IcsComponent& component)
{
    if (!component.is("VEVENT") && !component.is("VTODO"))
        return std::nullopt;
    const IcsValues values(component,
        {"SUMMARY", "DTSTART", "DTEND", "DUE", "DURATION", "RDATE", "EXDATE", "RECURRENCE-ID"},
        [this](const QByteArray& name) { return zone(name); });
    CalendarItem item;
    item.isReminder = component.is("VTODO");
    item.uid = valueOf(component, "UID");
    if (item.uid.isEmpty())
        item.uid = hashOf(component.raw);
    item.title = values.text("SUMMARY").simplified().left(longestTitle);
    item.sequence = valueOf(component, "SEQUENCE").toInt();
    item.isCancelled = says(component, "STATUS", "CANCELLED");
    item.isCompleted = says(component, "STATUS", "COMPLETED") || !valueOf(component, "COMPLETED").isEmpty()
        || valueOf(component, "PERCENT-COMPLETE").toInt() >= 100;
    item.start = values.moment("DTSTART");
    item.end = values.moment(item.isReminder ? "DUE" : "DTEND");
    item.length = values.length("DURATION");
    item.recurrenceId = values.moment("RECURRENCE-ID");
    if (!item.start && !item.isReminder)
        return std::nullopt;
    // A reminder may recur by its due date alone.
    if (!item.start && item.end)
        item.start = item.end;
    if (item.recurrenceId)
        return item;
    for (const QByteArray& text : ruleTexts(component)) {
        if (auto rule = RecurrenceRule::parsed(text))
            item.rules.push_back(std::move(*rule));
    }
    item.additions = values.dates("RDATE", mostDates);
    item.exceptions = values.dates("EXDATE", mostDates);
    return item;
}

} // namespace ambrelle
