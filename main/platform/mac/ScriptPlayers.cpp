// SPDX-License-Identifier: MIT

#include "platform/mac/ScriptPlayers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QProcess>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct KnownPlayer {
    QLatin1StringView name;
    QLatin1StringView bundle;
    QLatin1StringView duration; // in seconds, of track t
    QLatin1StringView picture; // what an answer ends with
    bool exports; // it hands out pictures instead of telling their address
};

constexpr std::array knownPlayers{
    KnownPlayer{"Music"_L1, "com.apple.Music"_L1, "(duration of t)"_L1, ""_L1, true},
    KnownPlayer{"Spotify"_L1, "com.spotify.client"_L1, "((duration of t) / 1000)"_L1,
        " & linefeed & (artwork url of t)"_L1, false},
};

const KnownPlayer* knownPlayer(const QString& id)
{
    const auto* const found =
        std::ranges::find_if(knownPlayers, [&id](const auto& player) { return player.name == id; });
    return found == knownPlayers.end() ? nullptr : found;
}

QString queryScript(const KnownPlayer& player)
{
    return u"tell application \"%1\"\n"
           "    if player state is stopped then return \"stopped\"\n"
           "    set t to current track\n"
           "    return (player state as string) & linefeed & (name of t) & linefeed & (artist of t) & linefeed & "
           "(%2 as string) & linefeed & (player position as string)%3\n"
           "end tell"_s.arg(player.name, player.duration, player.picture);
}

double decimal(const QString& line)
{
    bool isNumber = false;
    const double number = line.trimmed().toDouble(&isNumber);
    return isNumber && std::isfinite(number) ? number : 0;
}

QString quoted(QString text)
{
    return u'"' + text.replace(u'\\', "\\\\"_L1).replace(u'"', "\\\""_L1) + u'"';
}

QString exportScript(const QString& player, const QString& file)
{
    return u"tell application \"%1\"\n"
           "    if (count of artworks of current track) is 0 then return \"none\"\n"
           "    set artData to raw data of artwork 1 of current track\n"
           "end tell\n"
           "set f to open for access (POSIX file %2) with write permission\n"
           "set eof f to 0\n"
           "write artData to f\n"
           "close access f\n"
           "return \"ok\""_s.arg(player, quoted(file));
}

QString verb(PlayerCommand command)
{
    switch (command) {
    case PlayerCommand::playPause: return u"playpause"_s;
    case PlayerCommand::next: return u"next track"_s;
    case PlayerCommand::previous: return u"previous track"_s;
    case PlayerCommand::raise: return u"activate"_s;
    }
    Q_UNREACHABLE();
}

/// The bytes of the file, which is gone afterwards.
QByteArray takeFile(const QString& path, qint64 mostBytes)
{
    QFile file(path);
    QByteArray bytes;
    if (file.size() <= mostBytes && file.open(QIODevice::ReadOnly))
        bytes = file.readAll();
    file.remove();
    return bytes;
}

} // namespace

void runAppleScript(const QString& source, QObject* context, ScriptDone done, const QString& runner)
{
    auto* process = new QProcess(context);
    process->setStandardInputFile(QProcess::nullDevice());
    process->setStandardErrorFile(QProcess::nullDevice());
    const auto finish = [process, done = std::move(done)](const std::optional<QString>& output) {
        process->deleteLater();
        done(output);
    };
    QObject::connect(process, &QProcess::errorOccurred, context, [finish](QProcess::ProcessError error) {
        if (error == QProcess::FailedToStart)
            finish({});
    });
    QObject::connect(process, &QProcess::finished, context, [finish, process](int code, QProcess::ExitStatus status) {
        if (status == QProcess::NormalExit && code == 0)
            finish(QString::fromUtf8(process->readAllStandardOutput()).trimmed());
        else
            finish({});
    });
    process->start(runner, {u"-e"_s, source});
}

std::optional<PlayerTrack> parseScriptTrack(const QString& answer)
{
    constexpr qsizetype fewestLines = 5;
    const QStringList lines = answer.split(u'\n');
    if (lines.size() < fewestLines)
        return {};
    return PlayerTrack{.isPlaying = lines.at(0) == "playing"_L1,
        .title = lines.at(1),
        .artist = lines.at(2),
        .duration = decimal(lines.at(3)),
        .position = decimal(lines.at(4)),
        .picture = lines.value(fewestLines)};
}

ScriptPlayers::ScriptPlayers(IsRunning isRunning, const QString& runner, const QString& folder)
    : m_isRunning(std::move(isRunning))
    , m_runner(runner)
    , m_pictureFile(QDir(folder.isEmpty() ? QDir::tempPath() : folder).filePath(u"ambrelle-artwork"_s))
    , m_reading(*this)
{
}

bool ScriptPlayers::isAvailable() const
{
    return QFileInfo(m_runner).isExecutable();
}

QString ScriptPlayers::whyNot() const
{
    return isAvailable() ? QString() : u"Media players cannot be asked: “%1” is missing."_s.arg(m_runner);
}

QList<Player> ScriptPlayers::players() const
{
    QList<Player> running;
    for (const KnownPlayer& player : knownPlayers) {
        if (m_isRunning(player.bundle))
            running.append({player.name, player.name});
    }
    return running;
}

void ScriptPlayers::query(const QString& player, QObject* context, Answered answered)
{
    const KnownPlayer* known = knownPlayer(player);
    runAppleScript(
        known ? queryScript(*known) : u"return \"stopped\""_s, this,
        [context = QPointer(context), answered = std::move(answered)](const std::optional<QString>& output) {
            if (context)
                answered(parseScriptTrack(output.value_or(QString())));
        },
        m_runner);
}

void ScriptPlayers::command(const QString& player, PlayerCommand command)
{
    const auto script = u"tell application %1 to %2"_s.arg(quoted(player), verb(command));
    runAppleScript(
        script, this, [](const std::optional<QString>&) {}, m_runner);
}

void ScriptPlayers::artwork(const QString& player, qint64 mostBytes, QObject* context, Delivered delivered)
{
    m_exports.append({player, mostBytes, context, std::move(delivered)});
    if (m_exports.size() == 1)
        startExport();
}

void ScriptPlayers::startExport()
{
    const QString& player = m_exports.first().player;
    const KnownPlayer* known = knownPlayer(player);
    if (!known || !known->exports) {
        readExport(false);
        return;
    }
    runAppleScript(
        exportScript(player, m_pictureFile), this,
        [this](const std::optional<QString>& output) { readExport(output == u"ok"_s); }, m_runner);
}

void ScriptPlayers::readExport(bool exported)
{
    m_reading.run(
        [exported, file = m_pictureFile, mostBytes = m_exports.first().mostBytes] {
            return exported ? takeFile(file, mostBytes) : QByteArray();
        },
        [this](const QByteArray& picture) { finishExport(picture); });
}

void ScriptPlayers::finishExport(const QByteArray& picture)
{
    const Export finished = m_exports.takeFirst();
    if (finished.context)
        finished.delivered(picture);
    if (!m_exports.isEmpty())
        startExport();
}

} // namespace ambrelle
