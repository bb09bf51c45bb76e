// SPDX-License-Identifier: MIT

#pragma once

#include "platform/linux/bus/MprisPlayers.h"

#include "platform/linux/kernel/SystemClock.h"
#include "platform/recording/RecordingHttpClient.h"
#include "services/NowPlayingService.h"
#include "support/PrivateBus.h"
#include "support/WaitUntil.h"

#include <QDBusVariant>
#include <QDBusVirtualObject>

#include <gtest/gtest.h>

#include <memory>

namespace ambrelle {

using namespace Qt::StringLiterals;

inline const auto playerFamily = u"org.mpris.MediaPlayer2"_s;
inline const auto playerPath = u"/org/mpris/MediaPlayer2"_s;

/// A player that says what the test wants.
class FakePlayer final : public QDBusVirtualObject {
public:
    FakePlayer(QDBusConnection bus, const QString& name, const QString& identity)
        : self{{u"Identity"_s, identity}}
        , m_bus(std::move(bus))
    {
        m_bus.registerVirtualObject(playerPath, this);
        m_bus.registerService(playerFamily + u'.' + name);
    }
    ~FakePlayer() override { QDBusConnection::disconnectFromBus(m_bus.name()); }

    QString introspect(const QString&) const override { return {}; }
    bool handleMessage(const QDBusMessage& message, const QDBusConnection&) override
    {
        if (message.arguments().value(0) == playerFamily)
            m_bus.send(message.createReply(QVariant(self)));
        else if (message.member() == "GetAll"_L1)
            answer(message);
        else
            commands.append(QString(message.interface() + u'.' + message.member()).mid(playerFamily.size() + 1));
        return true;
    }
    /// Plays or pauses a song, and says so.
    void play(const QString& title, bool plays = true)
    {
        state[u"PlaybackStatus"_s] = plays ? u"Playing"_s : u"Paused"_s;
        state[u"Metadata"_s] = QVariantMap{{u"xesam:title"_s, title}};
        tell(state);
    }
    void tell(const QVariantMap& properties)
    {
        auto signal =
            QDBusMessage::createSignal(playerPath, u"org.freedesktop.DBus.Properties"_s, u"PropertiesChanged"_s);
        signal.setArguments({playerFamily + u".Player"_s, properties, QStringList()});
        m_bus.send(signal);
    }

    QVariantMap self; ///< what it says of itself
    QVariantMap state;
    bool hangs = false;
    int asked = 0;
    QStringList commands; ///< with what follows the family in the name of their interface

private:
    void answer(const QDBusMessage& message)
    {
        ++asked;
        if (!hangs)
            m_bus.send(message.createReply(QVariant(state)));
    }

    QDBusConnection m_bus;
};

/// A bus of the test's own, and the service that asks the players on it.
class PlayerBusTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not installed";
    }

    std::unique_ptr<FakePlayer> fake(const QString& name, const QString& identity) const
    {
        return std::make_unique<FakePlayer>(bus.connection(name), name, identity);
    }
    QStringList names() const
    {
        QStringList names;
        for (const Player& player : players.players())
            names.append(player.name);
        return names;
    }
    QString title() const { return service.track() ? service.track()->title : QString(); }
    bool waitForTitle(const QString& wanted) const
    {
        return waitUntil([this, &wanted] { return title() == wanted; });
    }

    const PrivateBus bus;
    SystemClock clock;
    RecordingHttpClient http;
    MprisPlayers players{bus.opener()};
    NowPlayingService service{players, http, clock};
};

} // namespace ambrelle
