// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "platform/linux/bus/OpenBus.h"
#include "platform/PlayerSource.h"

#include <QDBusConnection>
#include <QDBusMessage>
#include <QDBusServiceWatcher>

#include <functional>

namespace ambrelle {

/// The players on the session bus that can be remotely controlled (MPRIS), in the order of their bus names, Spotify
/// last. They tell what changes, so nothing is ever asked regularly.
class MprisPlayers final : public PlayerSource {
    Q_OBJECT
public:
    explicit MprisPlayers(OpenBus openBus = &QDBusConnection::sessionBus);

    bool isAvailable() const override { return m_available; }
    QString whyNot() const override;
    void start() override;
    QList<Player> players() const override;
    bool notifies() const override { return true; }
    bool keepsTime(const QString& player) const override;
    void query(const QString& player, QObject* context, Answered answered) override;
    /// Only pictures in files of this machine are handed out.
    void artwork(const QString& player, qint64 mostBytes, QObject* context, Delivered delivered) override;
    void command(const QString& player, PlayerCommand command) override;

private Q_SLOTS:
    void propertiesChanged(const QDBusMessage& message);
    void seeked(const QDBusMessage& message);

private:
    using Reply = std::function<void(const QDBusMessage& reply)>;

    struct Entry {
        Player player; // its id is the name on the bus; nameless until it was asked
        int appearance = 0;
        double rate = 1;
        QString picture; // address
    };

    void listPlayers();
    void appeared(const QString& busName);
    void vanished(const QString& busName);
    void call(const QDBusMessage& message, Reply replied);

    OpenBus m_openBus;
    QDBusConnection m_bus{QString()};
    QDBusServiceWatcher m_watcher;
    bool m_started = false;
    bool m_available = true; // until it turns out otherwise
    int m_appearances = 0;
    QList<Entry> m_entries;
    SerialWorker m_reading;
};

} // namespace ambrelle
