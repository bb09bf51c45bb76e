// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/DesktopPrograms.h"

#include "foundation/Wording.h"
#include "platform/linux/desktop/DesktopEntryText.h"

#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QUrl>

#include <algorithm>
#include <array>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

struct Launcher {
    QLatin1StringView program;
    QLatin1StringView verb; ///< empty: none
    QLatin1StringView desktop; ///< empty: good anywhere
};

// Each takes the file of an entry. In the order of preference.
constexpr std::array launchers{
    Launcher{"kioclient"_L1, "exec"_L1, "KDE"_L1},
    Launcher{"kioclient5"_L1, "exec"_L1, "KDE"_L1},
    Launcher{"gio"_L1, "launch"_L1, {}},
    Launcher{"kioclient"_L1, "exec"_L1, {}},
    Launcher{"kioclient5"_L1, "exec"_L1, {}},
    Launcher{"dex"_L1, {}, {}},
};

// Each takes a folder; the first one knows all desktops.
constexpr std::array folderOpeners{
    Launcher{"xdg-open"_L1, {}, {}},
    Launcher{"gio"_L1, "open"_L1, {}},
    Launcher{"kioclient"_L1, "exec"_L1, {}},
    Launcher{"kioclient5"_L1, "exec"_L1, {}},
};

constexpr int fileManagerPatience = 20000; // milliseconds; the bus may have to start it

bool startDetached(const QStringList& command, const QProcessEnvironment& environment)
{
    QProcess process;
    process.setProgram(command.first());
    process.setArguments(command.sliced(1));
    process.setProcessEnvironment(environment);
    process.setWorkingDirectory(QDir::homePath());
    return process.startDetached();
}

} // namespace

DesktopPrograms::DesktopPrograms(QStringList desktops, OpenBus openBus)
    : m_desktops(std::move(desktops))
    , m_openBus(std::move(openBus))
{
}

bool DesktopPrograms::isUsable(const DesktopEntryText& entry, const QStringList& desktops)
{
    if (entry.value("Type") != "Application" || entry.isTrue("Hidden"))
        return false;
    const auto names = [&](const QByteArray& key) {
        const QStringList listed = entry.list(key);
        return std::ranges::any_of(desktops, [&](const QString& desktop) { return listed.contains(desktop); });
    };
    if (names("NotShowIn") || (!entry.list("OnlyShowIn").isEmpty() && !names("OnlyShowIn")))
        return false;
    const QString tried = QString::fromUtf8(entry.value("TryExec").value_or(QByteArray()));
    if (!tried.isEmpty() && QStandardPaths::findExecutable(tried).isEmpty())
        return false;
    return entry.value("Exec") || entry.isTrue("DBusActivatable");
}

QString DesktopPrograms::usableEntry(const QString& program) const
{
    if (program.isEmpty() || program.contains(u'/'))
        return {};
    // The first folder that has an entry of the name hides the others.
    const QString file = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, program + u".desktop"_s);
    const std::optional<QByteArray> content = DesktopEntryText::contentOf(file);
    return content && isUsable(DesktopEntryText(*content), m_desktops) ? file : QString();
}

bool DesktopPrograms::has(const QString& program) const
{
    return !usableEntry(program).isEmpty();
}

void DesktopPrograms::open(const QString& program)
{
    const QString file = usableEntry(program);
    if (file.isEmpty())
        return;
    QList<QStringList> commands;
    for (const Launcher& launcher : launchers) {
        const QString tool = QStandardPaths::findExecutable(launcher.program);
        if (tool.isEmpty() || (!launcher.desktop.isEmpty() && !m_desktops.contains(launcher.desktop)))
            continue;
        commands.append({tool, launcher.verb, file});
    }
    start(commands);
}

/// The first of the commands that can be started; their empty arguments are none.
void DesktopPrograms::start(QList<QStringList> commands)
{
    const auto startFirst = [commands = std::move(commands)](const QProcessEnvironment& environment) {
        for (QStringList command : commands) {
            command.removeAll(QString());
            if (startDetached(command, environment))
                return;
        }
    };
    if (m_environment)
        m_environment(startFirst);
    else
        startFirst(QProcessEnvironment::systemEnvironment());
}

QString DesktopPrograms::openFolder(const QString& folder)
{
    QList<QStringList> commands;
    for (const Launcher& launcher : folderOpeners) {
        const QString tool = QStandardPaths::findExecutable(launcher.program);
        // Another process makes the folder: its disk may be slow.
        const QString script = u"mkdir -p -- \"$0\"; exec \"$@\" \"$0\""_s;
        if (!tool.isEmpty())
            commands.append({u"/bin/sh"_s, u"-c"_s, script, folder, tool, launcher.verb});
    }
    if (commands.isEmpty())
        return Wording::tr("No program that opens “%1” is installed.").arg(folder);
    start(commands);
    return {};
}

void DesktopPrograms::showInFolder(const QString& file, Done done)
{
    const QString name = u"org.freedesktop.FileManager1"_s;
    QDBusMessage request =
        QDBusMessage::createMethodCall(name, u"/org/freedesktop/FileManager1"_s, name, u"ShowItems"_s);
    request.setArguments({QStringList{QString::fromLatin1(QUrl::fromLocalFile(file).toEncoded())}, QString()});
    auto* answer = new QDBusPendingCallWatcher(m_openBus().asyncCall(request, fileManagerPatience), &m_asked);
    const auto finish = [this, answer, file, done = std::move(done)] {
        answer->deleteLater();
        done(answer->isError() ? openFolder(QFileInfo(file).path()) : QString());
    };
    QObject::connect(answer, &QDBusPendingCallWatcher::finished, &m_asked, finish);
}

} // namespace ambrelle
