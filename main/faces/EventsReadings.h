#pragma once

#include "faces/Readings.h"

#include <QDateTime>
#include <QLocale>

namespace ambrelle {

class EventsService;
class RemindersService;

/// What the widgets of the calendar show at this moment: they read differently after midnight too.
EventsReading eventsReading(const EventsService& service, const QDateTime& now, const QLocale& locale);
RemindersReading remindersReading(const RemindersService& service, const QDateTime& now, const QLocale& locale);

} // namespace ambrelle
