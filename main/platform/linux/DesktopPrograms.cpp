#include "platform/linux/DesktopPrograms.h"

#include "platform/linux/DesktopEntry.h"

#include <QDir>
#include <QProcess>
#include <QStandardPaths>

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

} // namespace

DesktopPrograms::DesktopPrograms(QStringList desktops)
    : m_desktops(std::move(desktops))
{
}

QString DesktopPrograms::usableEntry(const QString& program) const
{
    if (program.isEmpty() || program.contains(u'/'))
        return {};
    // The first folder that has an entry of the name hides the others.
    const QString file = QStandardPaths::locate(QStandardPaths::ApplicationsLocation, program + u".desktop"_s);
    const auto entry = file.isEmpty() ? std::nullopt : DesktopEntry::read(file);
    return entry && entry->isUsable(m_desktops) ? file : QString();
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
    for (const Launcher& launcher : launchers) {
        if (!launcher.desktop.isEmpty() && !m_desktops.contains(launcher.desktop))
            continue;
        const QString tool = QStandardPaths::findExecutable(launcher.program);
        if (tool.isEmpty())
            continue;
        QStringList arguments{launcher.verb, file};
        arguments.removeAll(QString());
        QProcess::startDetached(tool, arguments, QDir::homePath());
        return;
    }
}

} // namespace ambrelle
