// SPDX-License-Identifier: MIT

#include "platform/calendar/ReminderEdit.h"

#include "platform/calendar/CalendarOccurrences.h"
#include "platform/calendar/ComponentEdit.h"
#include "platform/calendar/IcsParser.h"
#include "platform/calendar/IcsValues.h"

#include <QDateTime>
#include <QRegularExpression>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

using namespace std::chrono;

namespace {

QByteArray stamp(local_seconds wallTime, const char* format)
{
    const auto moment = QDateTime::fromSecsSinceEpoch(wallTime.time_since_epoch().count(), Qt::UTC);
    return moment.toString(QLatin1StringView(format)).toLatin1();
}

QByteArray utcStamp(sys_seconds moment)
{
    return stamp(local_seconds(moment.time_since_epoch()), "yyyyMMdd'T'HHmmss'Z'");
}

/// Where a recurring reminder goes, if anywhere.
struct Move {
    seconds distance{}; ///< of its start, in wall time
    local_seconds start; ///< the new one
};

std::optional<Move> moveOf(const CalendarSeries& series, sys_seconds now, const CalendarZone& local)
{
    const CalendarItem& master = *series.master;
    if (!master.isRecurring() || !master.start)
        return std::nullopt;
    Effort effort;
    const auto current = CalendarOccurrences::nextStart(series, master.start->wallTime, local, effort);
    if (!current)
        return std::nullopt;
    // What was missed on days before is not asked for again.
    const CalendarZone& zone = master.start->zoneOr(local);
    const auto today = local.instant(floor<days>(local.wallTime(now)));
    const auto earliest = std::max(*current + seconds(1), zone.wallTime(today));
    const auto next = CalendarOccurrences::nextStart(series, earliest, local, effort);
    if (!next)
        return std::nullopt;
    return Move{*next - master.start->wallTime, *next};
}

/// Moves the moment of a property, in the form it has.
void shift(ComponentEdit& edit, const char* name, const std::optional<CalendarMoment>& moment, seconds distance)
{
    if (!moment)
        return;
    const char* format = moment->isDay ? "yyyyMMdd" : "yyyyMMdd'T'HHmmss";
    QByteArray value = stamp(moment->wallTime + distance, format);
    if (edit.value(name).endsWith('Z'))
        value += 'Z';
    edit.setValue(name, value);
}

/// A rule with a number of occurrences has fewer left when it starts later.
void shortenRules(ComponentEdit& edit, const CalendarItem& item, local_seconds start, const CalendarZone& local)
{
    static const QRegularExpression count(u"(?<=COUNT=)[0-9]+"_s, QRegularExpression::CaseInsensitiveOption);
    edit.rewriteValues("RRULE", [&](const QByteArray& text) {
        auto rule = RecurrenceRule::parsed(text);
        if (!rule || rule->count == 0)
            return text;
        if (item.start->isDay)
            rule->forgetTimes();
        Effort effort;
        const auto first = item.start->wallTime;
        const auto passed = rule->between(first, CalendarOccurrences::lastOf(*rule, item, local), first, start,
            static_cast<std::size_t>(rule->count), effort);
        const int left = std::max(rule->count - static_cast<int>(passed.size()), 1);
        return QString::fromLatin1(text).replace(count, QString::number(left)).toLatin1();
    });
}

void complete(ComponentEdit& edit, sys_seconds now)
{
    edit.set("STATUS", "COMPLETED");
    edit.set("COMPLETED", utcStamp(now));
    edit.set("PERCENT-COMPLETE", "100");
}

void moveOn(ComponentEdit& edit, const CalendarItem& item, const Move& move, const CalendarZone& local)
{
    shortenRules(edit, item, move.start, local);
    if (edit.has("DTSTART"))
        shift(edit, "DTSTART", item.start, move.distance);
    shift(edit, "DUE", item.end, move.distance);
    edit.remove("COMPLETED");
    if (edit.has("STATUS"))
        edit.set("STATUS", "NEEDS-ACTION");
    if (edit.has("PERCENT-COMPLETE"))
        edit.set("PERCENT-COMPLETE", "0");
}

bool matches(const CalendarItem& item, const ReminderKey& key)
{
    const auto recurrenceId =
        item.recurrenceId ? std::optional(item.recurrenceId->wallTime) : std::optional<local_seconds>();
    return item.isReminder && item.uid == key.uid && recurrenceId == key.recurrenceId;
}

} // namespace

std::optional<QByteArray> textWithReminderCompleted(
    const QByteArray& text, const ReminderKey& key, sys_seconds now, const CalendarZone& local)
{
    const std::string_view view(text.constData(), static_cast<std::size_t>(text.size()));
    const IcsFile file = IcsParser::parsed(view);
    const auto series = std::ranges::find_if(
        file.series, [&key](const CalendarSeries& each) { return each.isReminder() && each.uid() == key.uid; });
    if (series == file.series.end())
        return std::nullopt;

    QByteArray result;
    std::size_t copied = 0;
    bool isChanged = false;
    IcsParser parser(view);
    IcsReader reader(view);
    while (const auto component = reader.next()) {
        const auto item = parser.item(*component);
        if (!item || !matches(*item, key) || item->isCompleted || item->isCancelled)
            continue;
        ComponentEdit edit(*component);
        const auto move = item->recurrenceId || !series->master ? std::nullopt : moveOf(*series, now, local);
        if (move)
            moveOn(edit, *item, *move, local);
        else
            complete(edit, now);
        edit.set("LAST-MODIFIED", utcStamp(now));
        edit.set("SEQUENCE", QByteArray::number(item->sequence + 1));
        const auto begin = static_cast<std::size_t>(component->raw.data() - view.data());
        result.append(text.mid(static_cast<qsizetype>(copied), static_cast<qsizetype>(begin - copied)) + edit.text());
        copied = begin + component->raw.size();
        isChanged = true;
    }
    if (!isChanged)
        return std::nullopt;
    return result + text.mid(static_cast<qsizetype>(copied));
}

} // namespace ambrelle
