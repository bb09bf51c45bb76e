#pragma once

#include "platform/CalendarStore.h"

namespace ambrelle {

/// No calendars, and none to come.
class HeadlessCalendarStore final : public CalendarStore {
    Q_OBJECT
public:
    bool isAvailable() const override { return false; }
    QString whyNone(CalendarKind) const override { return QStringLiteral("This mode reads no calendars."); }
    void requestAccess(QObject* context, std::function<void(bool)> done) override
    {
        QMetaObject::invokeMethod(
            context, [done = std::move(done)] { done(false); }, Qt::QueuedConnection);
    }
    QList<CalendarInfo> calendars() const override { return {}; }
    void events(const QDateTime&, const QDateTime&, const QStringList&, QObject* context,
        std::function<void(const QList<CalendarEvent>&)> done) override
    {
        QMetaObject::invokeMethod(
            context, [done = std::move(done)] { done({}); }, Qt::QueuedConnection);
    }
    void reminders(
        const QDateTime&, QObject* context, std::function<void(const QList<CalendarReminder>&)> done) override
    {
        QMetaObject::invokeMethod(
            context, [done = std::move(done)] { done({}); }, Qt::QueuedConnection);
    }
    void complete(const QString&, const QDateTime&, QObject* context, std::function<void(bool)> done) override
    {
        QMetaObject::invokeMethod(
            context, [done = std::move(done)] { done(false); }, Qt::QueuedConnection);
    }
};

} // namespace ambrelle
