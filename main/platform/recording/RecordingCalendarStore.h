// SPDX-License-Identifier: MIT

#pragma once

#include "platform/CalendarStore.h"

#include <QPointer>

#include <utility>

namespace ambrelle {

/// A store whose content a test sets, and which answers when the test says so.
class RecordingCalendarStore final : public CalendarStore {
public:
    QString currentWhyNot; ///< empty: available
    QList<CalendarInfo> currentCalendars;
    QList<UnreadCalendar> currentUnread;
    QList<CalendarSource> currentSources; ///< adding and removing changes them, and tells changed()
    QList<CalendarEvent> currentEvents; ///< those of other calendars than asked for are left out
    QList<CalendarReminder> currentReminders;
    bool saves = true; ///< what complete() answers

    QList<std::pair<QDateTime, QDateTime>> windows; ///< that events were asked for
    QStringList completed; ///< reminders
    int accessRequests = 0;

    bool isAvailable() const override { return currentWhyNot.isEmpty(); }
    QString whyNone(CalendarKind) const override { return currentWhyNot; }
    void requestAccess(QObject* context, std::function<void(bool)> done) override
    {
        ++accessRequests;
        later(context, [this, done = std::move(done)] { done(isAvailable()); });
    }
    QList<CalendarInfo> calendars() const override { return currentCalendars; }
    QList<UnreadCalendar> unread() const override { return currentUnread; }
    QList<CalendarSource> sources() const override { return currentSources; }
    bool addSource(const QString& folder) override
    {
        currentSources.append({folder, true});
        Q_EMIT changed();
        return true;
    }
    void removeSource(const QString& folder) override
    {
        currentSources.removeIf([&folder](const CalendarSource& each) { return each.folder == folder; });
        Q_EMIT changed();
    }
    QStringList addedSources() const override
    {
        QStringList added;
        for (const CalendarSource& each : currentSources) {
            if (each.isAdded)
                added.append(each.folder);
        }
        return added;
    }
    void setAddedSources(const QStringList& added) override
    {
        currentSources.removeIf([](const CalendarSource& each) { return each.isAdded; });
        for (const QString& folder : added)
            currentSources.append({folder, true});
        Q_EMIT changed();
    }
    void events(const QDateTime& from, const QDateTime& to, const QStringList& calendars, QObject* context,
        std::function<void(const QList<CalendarEvent>&)> done) override
    {
        windows.append({from, to});
        later(context, [this, calendars, done = std::move(done)] {
            auto kept = currentEvents;
            kept.removeIf([&calendars](const CalendarEvent& event) { return !calendars.contains(event.calendar); });
            done(kept);
        });
    }
    void reminders(
        const QDateTime&, QObject* context, std::function<void(const QList<CalendarReminder>&)> done) override
    {
        later(context, [this, done = std::move(done)] { done(currentReminders); });
    }
    void complete(const QString& reminder, const QDateTime&, QObject* context, std::function<void(bool)> done) override
    {
        completed.append(reminder);
        later(context, [this, done = std::move(done)] { done(saves); });
    }

    /// Gives all answers that are due, and those asked for meanwhile.
    void answer()
    {
        while (!m_answers.isEmpty()) {
            const auto [context, give] = m_answers.takeFirst();
            if (context)
                give();
        }
    }

private:
    void later(QObject* context, std::function<void()> give) { m_answers.append({context, std::move(give)}); }

    QList<std::pair<QPointer<QObject>, std::function<void()>>> m_answers;
};

} // namespace ambrelle
