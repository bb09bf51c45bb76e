// SPDX-License-Identifier: MIT

#pragma once

#include "foundation/SerialWorker.h"
#include "platform/PlayerSource.h"

#include <QPointer>

#include <functional>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

inline const QString scriptRunner = u"/usr/bin/osascript"_s;

using ScriptDone = std::function<void(const std::optional<QString>& output)>;

/// Runs an AppleScript and gives what it printed, trimmed; none when the runner cannot be started or fails. The answer
/// comes later on this thread. When `context` goes before, the script is stopped.
void runAppleScript(const QString& source, QObject* context, ScriptDone done, const QString& runner = scriptRunner);

/// Reads what a player answered to the script of ScriptPlayers::query(): "playing" or another state, title, artist,
/// length and position in seconds, each in a line of its own, and perhaps the address of a picture. None unless there
/// are five lines; numbers that cannot be read are 0.
std::optional<PlayerTrack> parseScriptTrack(const QString& answer);

/// The players of a system with a script runner. Scripts tell nothing by themselves: they have to be asked regularly.
class ScriptPlayers final : public PlayerSource {
public:
    /// Whether the application with that bundle identifier runs.
    using IsRunning = std::function<bool(const QString& bundle)>;

    /// Pictures on their way to the program lie in `folder` for a moment.
    explicit ScriptPlayers(IsRunning isRunning, const QString& runner = scriptRunner, const QString& folder = {});

    bool isAvailable() const override;
    QString whyNot() const override;
    void start() override { }
    QList<Player> players() const override;
    bool notifies() const override { return false; }
    bool keepsTime(const QString&) const override { return true; }
    void query(const QString& player, QObject* context, Answered answered) override;
    void artwork(const QString& player, qint64 mostBytes, QObject* context, Delivered delivered) override;
    void command(const QString& player, PlayerCommand command) override;

private:
    struct Export {
        QString player;
        qint64 mostBytes = 0;
        QPointer<QObject> context;
        Delivered delivered;
    };

    void startExport();
    void readExport(bool exported);
    void finishExport(const QByteArray& picture);

    IsRunning m_isRunning;
    QString m_runner;
    QString m_pictureFile;
    QList<Export> m_exports; // the first one runs: they share the file
    SerialWorker m_reading;
};

} // namespace ambrelle
