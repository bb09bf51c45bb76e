// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/Wording.h"
#include "platform/Announcer.h"
#include "platform/CalendarStore.h"
#include "platform/DeviceSource.h"
#include "platform/HttpClient.h"
#include "platform/InputMonitor.h"
#include "platform/LocationSource.h"
#include "platform/PlayerSource.h"
#include "platform/ProgramDoor.h"

namespace ambrelle {

/// A machine without a network.
class HeadlessHttpClient final : public HttpClient {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("This mode does not use the network."); }
    void get(const QUrl&, qint64, QObject* context, Done done) override
    {
        QMetaObject::invokeMethod(
            context, [done = std::move(done), answer = HttpAnswer{{}, whyNot()}] { done(answer); },
            Qt::QueuedConnection);
    }
    void getPublic(const QUrl& url, qint64 mostBytes, QObject* context, Done done) override
    {
        get(url, mostBytes, context, std::move(done));
    }
};

/// A machine that must not tell where it is.
class HeadlessLocation final : public LocationSource {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("This mode asks nobody where the machine is."); }
    LocationAuthorization authorization() const override { return LocationAuthorization::denied; }
    void requestLocation() override { }
};

/// A machine whose players are left alone.
class HeadlessPlayers final : public PlayerSource {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("This mode asks no media player."); }
    void start() override { }
    QList<Player> players() const override { return {}; }
    bool notifies() const override { return true; }
    bool keepsTime(const QString&) const override { return true; }
    void query(const QString&, QObject* context, Answered answered) override
    {
        QMetaObject::invokeMethod(
            context, [answered = std::move(answered)] { answered({}); }, Qt::QueuedConnection);
    }
    void artwork(const QString&, qint64, QObject* context, Delivered delivered) override
    {
        QMetaObject::invokeMethod(
            context, [delivered = std::move(delivered)] { delivered({}); }, Qt::QueuedConnection);
    }
    void command(const QString&, PlayerCommand) override { }
};

/// No calendars, and none to come.
class HeadlessCalendarStore final : public CalendarStore {
public:
    bool isAvailable() const override { return false; }
    QString whyNone(CalendarKind) const override { return Wording::tr("This mode reads no calendars."); }
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

/// Says nothing to anybody.
class HeadlessAnnouncer final : public Announcer {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("This mode shows no notifications."); }
    void notify(const QString&, const QString&) override { }
    void play(AnnouncedSound) override { }
};

/// A machine without accessories.
class HeadlessDevices final : public DeviceSource {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("This mode does not look for devices."); }
    std::optional<QList<ConnectedDevice>> devices() const override { return QList<ConnectedDevice>(); }
    void refresh() override { }
};

/// A machine that nobody uses.
class HeadlessInputMonitor final : public InputMonitor {
public:
    using InputMonitor::metresPerPoint;

    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("This mode does not see what is done at the machine."); }
    bool tellsPointer() const override { return false; }
    void start() override { }
    void stop() override { }
    void secondsSinceInput(QObject*, Answer answer) override { answer(std::nullopt); }
    double metresPerPoint() const override { return usualMetresPerPoint; }
};

/// A program that nobody calls.
class HeadlessDoor final : public ProgramDoor {
public:
    bool isAvailable() const override { return false; }
    QString whyNot() const override { return Wording::tr("This mode is not called by other programs."); }
    void open() override { }
};

/// A machine that has nothing to tell the live services.
struct HeadlessPorts {
    HeadlessHttpClient http;
    HeadlessLocation location;
    HeadlessPlayers players;
    HeadlessCalendarStore calendars;
    HeadlessAnnouncer announcer;
    HeadlessDevices devices;
    HeadlessInputMonitor input;
    HeadlessDoor door;
};

} // namespace ambrelle
