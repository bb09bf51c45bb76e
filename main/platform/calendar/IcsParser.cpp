// SPDX-License-Identifier: MIT

#include "platform/calendar/IcsParser.h"

#include "foundation/ForeignText.h"
#include "platform/calendar/IcsValues.h"
#include "platform/calendar/SeriesCollector.h"

#include <QCryptographicHash>

#include <algorithm>
#include <utility>

namespace ambrelle {

namespace {

constexpr qsizetype longestZoneText = 200; // bytes; the longest description of one in use has about 60
constexpr qsizetype longestTitle = 400; // letters
constexpr qsizetype longestCalendarName = 200;
constexpr qsizetype longestUid = 255; // bytes
constexpr std::size_t mostDates = 20'000; // of one list, or of one zone
constexpr int effortOfZone = 1000; // to look for it
constexpr int effortOfRule = 100; // to read it

/// Tells items apart that have no identifier, or one longer than any needs.
QByteArray hashOf(std::string_view text)
{
    QCryptographicHash hash(QCryptographicHash::Sha1);
    hash.addData(QByteArrayView(text.data(), static_cast<qsizetype>(text.size())));
    return hash.result().toHex();
}

QByteArray uidOf(const IcsComponent& component, const IcsValues& values)
{
    const QByteArray uid = values.raw("UID");
    if (uid.isEmpty())
        return hashOf(component.raw);
    return uid.size() <= longestUid ? uid : hashOf({uid.constData(), static_cast<std::size_t>(uid.size())});
}

/// From which moments on the offsets of a zone hold.
struct Offsets {
    std::optional<std::chrono::seconds> before; // until the first
    std::vector<CalendarZone::Transition> transitions;
};

/// Adds what the zone's half tells.
void addOffsets(Offsets& offsets, const IcsComponent& half, Effort& effort)
{
    const IcsValues values(half);
    const auto start = values.moment("DTSTART");
    const auto from = values.offset("TZOFFSETFROM");
    const auto to = values.offset("TZOFFSETTO");
    if (!start || !from || !to || offsets.transitions.size() >= mostDates)
        return;
    if (!offsets.before || half.is("STANDARD"))
        offsets.before = half.is("STANDARD") ? *to : *from;
    const std::size_t most = mostDates - offsets.transitions.size();
    const auto add = [&](std::chrono::local_seconds onset) {
        offsets.transitions.push_back({std::chrono::sys_seconds(onset.time_since_epoch() - *from), *to});
    };
    add(start->wallTime);
    for (const auto& date : values.dates("RDATE", most))
        add(date.wallTime);
    const auto begin =
        std::max<std::chrono::local_seconds>(start->wallTime, std::chrono::local_days(std::chrono::year(1900) / 1 / 1));
    const auto end = std::chrono::local_days(std::chrono::year(2150) / 1 / 1);
    for (const QByteArray& text : values.rules()) {
        const auto rule = RecurrenceRule::parsed(text);
        if (!rule || rule->frequency < RecurrenceRule::Frequency::daily)
            continue;
        const auto last = rule->until ? rule->until->moment + (rule->until->isUtc ? *from : std::chrono::seconds(0))
                                      : std::chrono::local_seconds::max();
        for (const auto onset : rule->between(start->wallTime, last, begin, end, most, effort))
            add(onset);
    }
    if (offsets.transitions.size() > mostDates)
        offsets.transitions.resize(mostDates);
}

void readName(IcsFile& file, const std::vector<IcsLine>& properties)
{
    for (const IcsLine& line : properties) {
        if (line.is("X-WR-CALNAME") || (line.is("NAME") && file.name.isEmpty()))
            file.name = foreignText(textOf(line), longestCalendarName);
        else if (line.is("X-APPLE-CALENDAR-COLOR") || (line.is("COLOR") && !file.color.isValid()))
            file.color = calendarColor(textOf(line));
    }
}

/// About the memory that keeping the item takes, and the place it gets.
std::int64_t bytesOf(const CalendarItem& item)
{
    constexpr std::size_t ofPlace = 600; // allocations, and what is needed while reading
    std::size_t bytes =
        sizeof(CalendarSeries) + ofPlace + 2 * static_cast<std::size_t>(item.uid.size() + item.title.size());
    for (const RecurrenceRule& rule : item.rules) {
        bytes += sizeof(RecurrenceRule) + rule.days.size() * sizeof(RecurrenceRule::Day);
        for (const auto* values : {&rule.seconds, &rule.minutes, &rule.hours, &rule.monthDays, &rule.yearDays,
                 &rule.weekNumbers, &rule.months, &rule.positions})
            bytes += values->size() * sizeof(int);
    }
    bytes += (item.additions.capacity() + item.exceptions.capacity()) * sizeof(CalendarMoment);
    return static_cast<std::int64_t>(bytes);
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

IcsParser::IcsParser(std::string_view text, QList<QByteArray> owners)
    : m_text(text)
    , m_owners(std::move(owners))
{
    IcsReader reader(text);
    reader.next();
    learn(reader.properties());
}

/// What the calendar says of itself before its first component.
void IcsParser::learn(const std::vector<IcsLine>& properties)
{
    for (const IcsLine& line : properties) {
        if (line.is("X-WR-TIMEZONE"))
            m_usualZone = textOf(line).toUtf8();
        else if (line.is("X-WR-CALNAME"))
            m_owners.append(textOf(line).trimmed().toLower().toUtf8());
    }
}

IcsFile IcsParser::parsed(std::string_view text, const QList<QByteArray>& owners)
{
    IcsFile file;
    IcsReader reader(text);
    file.isCalendar = reader.isCalendar();
    if (!file.isCalendar)
        return file;
    IcsParser parser(text, owners);
    SeriesCollector collector;
    int items = 0;
    while (const auto component = reader.next()) {
        auto item = parser.item(*component);
        if (item && (!parser.take(bytesOf(*item)) || ++items > mostItems))
            file.isTooMuch = true;
        if (file.isTooMuch || parser.isSpent())
            break;
        if (item)
            collector.add(std::move(*item));
    }
    file.isTooMuch = file.isTooMuch || parser.isSpent() || reader.hasGivenUp();
    if (!file.isTooMuch)
        file.series = collector.taken();
    file.bytes = parser.m_bytes;
    readName(file, reader.properties());
    return file;
}

bool IcsParser::take(std::int64_t bytes)
{
    m_bytes += bytes;
    return m_bytes < mostBytes;
}

std::shared_ptr<const CalendarZone> IcsParser::zone(const QByteArray& name)
{
    const QByteArray& wanted = name.isEmpty() ? m_usualZone : name;
    if (wanted.isEmpty())
        return nullptr;
    const auto known = m_zones.constFind(wanted);
    if (known != m_zones.constEnd())
        return *known;
    auto found = newZone(wanted);
    if (!found && wanted != m_usualZone)
        found = zone(m_usualZone);
    m_zones.insert(wanted, found);
    return found;
}

std::shared_ptr<const CalendarZone> IcsParser::newZone(const QByteArray& name)
{
    if (name.size() > longestZoneText || !m_effort.take(effortOfZone))
        return nullptr;
    if (auto zone = CalendarZone::named(name))
        return zone;
    if (!m_definitions)
        readDefinitions();
    const auto definition = m_definitions->constFind(name);
    if (definition == m_definitions->constEnd())
        return CalendarZone::described(name);
    IcsReader reader(*definition);
    const auto component = reader.next();
    if (!component)
        return nullptr;
    if (auto zone = CalendarZone::named(IcsValues(*component).raw("X-LIC-LOCATION")))
        return zone;
    Offsets offsets;
    for (const IcsComponent& half : component->parts)
        addOffsets(offsets, half, m_effort);
    take(static_cast<std::int64_t>(offsets.transitions.size() * sizeof(CalendarZone::Transition)));
    if (!offsets.before)
        return CalendarZone::described(name);
    return std::make_shared<const CalendarZone>(*offsets.before, std::move(offsets.transitions));
}

void IcsParser::readDefinitions()
{
    constexpr std::int64_t ofEntry = 150;
    m_definitions.emplace();
    IcsReader reader(m_text);
    while (const auto component = reader.next()) {
        if (!component->is("VTIMEZONE"))
            continue;
        const QByteArray name = unescaped(IcsValues(*component).raw("TZID"));
        m_definitions->insert(name, component->raw);
        if (!take(ofEntry + name.size()))
            return;
    }
}

bool IcsParser::isDeclined(const IcsComponent& component) const
{
    constexpr qsizetype longestAddress = 320;
    return std::ranges::any_of(component.lines, [this](const IcsLine& line) {
        if (!line.is("ATTENDEE") || line.parameter("PARTSTAT").compare("DECLINED", Qt::CaseInsensitive) != 0)
            return false;
        QByteArray address = unfolded(line.value().substr(0, longestAddress)).toLower();
        if (address.startsWith("mailto:"))
            address.remove(0, 7);
        return m_owners.contains(address);
    });
}

std::optional<CalendarItem> IcsParser::item(const IcsComponent& component)
{
    if (!component.is("VEVENT") && !component.is("VTODO"))
        return std::nullopt;
    const IcsValues values(component, [this](const QByteArray& name) { return zone(name); });
    CalendarItem item;
    item.isReminder = component.is("VTODO");
    item.start = values.moment("DTSTART");
    item.end = values.moment(item.isReminder ? "DUE" : "DTEND");
    if (!item.start && !item.isReminder)
        return std::nullopt;
    item.uid = uidOf(component, values);
    item.title = foreignText(values.text("SUMMARY"), longestTitle);
    item.sequence = values.raw("SEQUENCE").toInt();
    if (const auto modified = values.moment("LAST-MODIFIED"))
        item.modified = modified->wallTime;
    item.isCancelled = values.says("STATUS", "CANCELLED");
    item.isDeclined = !m_owners.isEmpty() && isDeclined(component);
    item.isCompleted = values.says("STATUS", "COMPLETED") || !values.raw("COMPLETED").isEmpty()
        || values.raw("PERCENT-COMPLETE").toInt() >= 100;
    item.length = values.length("DURATION");
    item.recurrenceId = values.moment("RECURRENCE-ID");
    item.appliesOn = values.parameter("RECURRENCE-ID", "RANGE").compare("THISANDFUTURE", Qt::CaseInsensitive) == 0;
    // A reminder may recur by its due date alone.
    if (!item.start && item.end)
        item.start = item.end;
    if (item.recurrenceId)
        return item;
    for (const QByteArray& text : values.rules()) {
        const int effort = effortOfRule + static_cast<int>(text.size());
        auto rule = m_effort.take(effort) ? RecurrenceRule::parsed(text) : std::nullopt;
        if (!rule)
            continue;
        if (item.start && item.start->isDay)
            rule->forgetTimes();
        item.rules.push_back(std::move(*rule));
    }
    item.additions = values.dates("RDATE", mostDates);
    item.exceptions = values.dates("EXDATE", mostDates);
    return item;
}

} // namespace ambrelle
