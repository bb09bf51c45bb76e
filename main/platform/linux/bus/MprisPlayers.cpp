// SPDX-License-Identifier: MIT

#include "platform/linux/bus/MprisPlayers.h"

#include "foundation/ForeignText.h"
#include "foundation/PlainFile.h"
#include "foundation/Wording.h"
#include "platform/linux/bus/MprisAnswer.h"

#include <QDBusPendingCallWatcher>
#include <QPointer>
#include <QUrl>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

const auto family = u"org.mpris.MediaPlayer2"_s;
const auto playerPath = u"/org/mpris/MediaPlayer2"_s;
const auto playerInterface = u"org.mpris.MediaPlayer2.Player"_s;
constexpr int playerPatience = 1500; // milliseconds for an answer: others are asked only after a player that hangs
constexpr std::array tellingProperties{"PlaybackStatus"_L1, "Metadata"_L1, "Rate"_L1};

/// What stands behind the common start of the players' bus names.
QString ownPart(const QString& busName)
{
    return busName.mid(family.size() + 1);
}

std::pair<bool, QString> askingOrder(const QString& busName)
{
    return {ownPart(busName).startsWith("spotify"_L1, Qt::CaseInsensitive), busName};
}

auto* entryOf(auto& entries, const QString& busName)
{
    const auto found = std::ranges::find(entries, busName, [](const auto& entry) { return entry.player.id; });
    return found == entries.end() ? nullptr : &*found;
}

/// A call of a running player: its name must not start it, for it may just have ended.
QDBusMessage callOf(const QString& busName, const QString& interface, const QString& method)
{
    auto message = QDBusMessage::createMethodCall(busName, playerPath, interface, method);
    message.setAutoStartService(false);
    return message;
}

/// What a player says of itself, whatever is missing or of a wrong type.
Player playerIn(const QDBusMessage& reply, const QString& busName)
{
    const QVariantMap values =
        reply.type() == QDBusMessage::ReplyMessage ? busDictionary(reply.arguments().value(0)) : QVariantMap();
    const QString name = foreignText(values.value(u"Identity"_s).toString());
    return {.id = busName,
        .name = name.isEmpty() ? ownPart(busName).section(u'.', 0, 0) : name,
        .canRaise = values.value(u"CanRaise"_s).toBool(),
        .program = values.value(u"DesktopEntry"_s).toString()};
}

} // namespace

MprisPlayers::MprisPlayers(OpenBus openBus)
    : m_openBus(std::move(openBus))
    , m_reading(*this)
{
}

QString MprisPlayers::whyNot() const
{
    return m_available ? QString() : Wording::tr("Media players cannot be reached: this session has no message bus.");
}

void MprisPlayers::start()
{
    if (std::exchange(m_started, true))
        return;
    m_bus = m_openBus();
    m_available = m_bus.isConnected();
    if (!m_available)
        return;
    m_watcher.setConnection(m_bus);
    m_watcher.setWatchMode(QDBusServiceWatcher::WatchForOwnerChange);
    m_watcher.addWatchedService(family + u'*');
    connect(&m_watcher, &QDBusServiceWatcher::serviceOwnerChanged, this,
        [this](const QString& busName, const QString&, const QString& owner) {
            vanished(busName);
            if (!owner.isEmpty())
                appeared(busName);
        });
    // Whoever speaks at this path is a player; the bus passes on only what is about playing.
    m_bus.connect({}, playerPath, propertiesInterface, u"PropertiesChanged"_s, {playerInterface}, {}, this,
        SLOT(propertiesChanged(QDBusMessage)));
    m_bus.connect({}, playerPath, playerInterface, u"Seeked"_s, this, SLOT(seeked(QDBusMessage)));
    listPlayers();
}

void MprisPlayers::listPlayers()
{
    const auto bus = u"org.freedesktop.DBus"_s;
    call(QDBusMessage::createMethodCall(bus, u"/org/freedesktop/DBus"_s, bus, u"ListNames"_s),
        [this](const QDBusMessage& reply) {
            const QStringList names = reply.arguments().value(0).toStringList();
            for (const QString& name : names) {
                if (!entryOf(m_entries, name))
                    appeared(name);
            }
        });
}

void MprisPlayers::appeared(const QString& busName)
{
    if (!busName.startsWith(family + u'.'))
        return;
    const int appearance = ++m_appearances;
    const auto place = std::ranges::lower_bound(
        m_entries, askingOrder(busName), {}, [](const Entry& entry) { return askingOrder(entry.player.id); });
    m_entries.insert(place, {.player = {busName, {}}, .appearance = appearance, .picture = {}});
    auto question = callOf(busName, propertiesInterface, u"GetAll"_s);
    question.setArguments({family});
    call(question, [this, busName, appearance](const QDBusMessage& reply) {
        auto* entry = entryOf(m_entries, busName);
        if (!entry || entry->appearance != appearance)
            return;
        entry->player = playerIn(reply, busName);
        Q_EMIT changed();
    });
}

void MprisPlayers::vanished(const QString& busName)
{
    const auto count = m_entries.removeIf([&busName](const Entry& entry) { return entry.player.id == busName; });
    if (count > 0)
        Q_EMIT changed();
}

QList<Player> MprisPlayers::players() const
{
    QList<Player> players;
    for (const Entry& entry : m_entries) {
        if (!entry.player.name.isEmpty())
            players.append(entry.player);
    }
    return players;
}

bool MprisPlayers::keepsTime(const QString& player) const
{
    constexpr double tolerance = 0.001;
    const auto* entry = entryOf(m_entries, player);
    return !entry || std::abs(entry->rate - 1) < tolerance;
}

void MprisPlayers::query(const QString& player, QObject* context, Answered answered)
{
    auto question = callOf(player, propertiesInterface, u"GetAll"_s);
    question.setArguments({playerInterface});
    call(question,
        [this, player, context = QPointer(context), answered = std::move(answered)](const QDBusMessage& reply) {
            auto* entry = entryOf(m_entries, player);
            MprisAnswer answer;
            if (entry && reply.type() == QDBusMessage::ReplyMessage) {
                answer = mprisAnswer(busDictionary(reply.arguments().value(0)), entry->player.name);
                entry->rate = answer.rate;
                entry->picture = answer.track ? answer.track->picture : QString();
            }
            if (context)
                answered(answer.track);
        });
}

void MprisPlayers::artwork(const QString& player, qint64 mostBytes, QObject* context, Delivered delivered)
{
    const auto* entry = entryOf(m_entries, player);
    const QUrl address(entry ? entry->picture : QString());
    const QString file = address.isLocalFile() ? address.toLocalFile() : QString();
    m_reading.run([file, mostBytes] { return readPlainFile(file, mostBytes).value_or(QByteArray()); },
        [context = QPointer(context), delivered = std::move(delivered)](const QByteArray& picture) {
            if (context)
                delivered(picture);
        });
}

void MprisPlayers::command(const QString& player, PlayerCommand command)
{
    const bool raises = command == PlayerCommand::raise;
    const auto method = [command] {
        switch (command) {
        case PlayerCommand::playPause: return u"PlayPause"_s;
        case PlayerCommand::next: return u"Next"_s;
        case PlayerCommand::previous: return u"Previous"_s;
        case PlayerCommand::raise: return u"Raise"_s;
        }
        Q_UNREACHABLE();
    };
    if (m_available)
        m_bus.send(callOf(player, raises ? family : playerInterface, method()));
}

void MprisPlayers::propertiesChanged(const QDBusMessage& message)
{
    const QVariantMap values = busDictionary(message.arguments().value(1));
    const QStringList invalidated = message.arguments().value(2).toStringList();
    const auto tells = [&](QLatin1StringView name) { return values.contains(name) || invalidated.contains(name); };
    if (std::ranges::any_of(tellingProperties, tells))
        Q_EMIT changed();
}

void MprisPlayers::seeked(const QDBusMessage&)
{
    Q_EMIT changed();
}

void MprisPlayers::call(const QDBusMessage& message, Reply replied)
{
    if (!m_bus.isConnected()) { // then a watcher would wait for ever
        QMetaObject::invokeMethod(
            this, [replied = std::move(replied)] { replied(QDBusMessage()); }, Qt::QueuedConnection);
        return;
    }
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message, playerPatience), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [watcher, replied = std::move(replied)] {
        watcher->deleteLater();
        replied(watcher->reply());
    });
}

} // namespace ambrelle
