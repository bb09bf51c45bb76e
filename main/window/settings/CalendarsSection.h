// SPDX-License-Identifier: MIT

#pragma once

#include "platform/CalendarStore.h"
#include "window/settings/SettingsSection.h"

namespace ambrelle {

class EventsService;
class ProgramLauncher;
class UndoKeeper;

/// Which calendars are shown, and where they come from. Merely showing it reads no calendar.
class CalendarsSection final : public SettingsSection {
public:
    struct Collaborators {
        AppSettings& settings;
        EventsService& events;
        ProgramLauncher& programs;
        UndoKeeper& undo;
    };

    explicit CalendarsSection(const Collaborators& collaborators, QWidget* parent = nullptr);

    /// The user has come for the calendars: they are read from now on.
    void open();

private:
    struct Known {
        QList<CalendarInfo> calendars;
        QList<UnreadCalendar> unread;
        QList<CalendarSource> sources;
        QString status;

        bool operator==(const Known&) const = default;
    };

    void showKnown();
    void addAll();
    void addCalendar(const CalendarInfo& calendar);
    void addUnread();
    void addSources();
    void addSource(const CalendarSource& source);
    void setShown(const QString& calendar, bool shown);
    void chooseFolder();

    Collaborators m_with;
    Known m_known;
    bool m_asked = false; // for access
};

} // namespace ambrelle
