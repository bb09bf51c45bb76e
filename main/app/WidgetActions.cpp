// SPDX-License-Identifier: MIT

#include "app/WidgetActions.h"

#include "foundation/Wording.h"
#include "platform/ProgramLauncher.h"
#include "services/NowPlayingService.h"

#include <array>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

enum class Target {
    clock,
    dateAndTime,
    calendar,
    systemMonitor,
    storage,
    power,
    network,
    weather,
    music,
    reminders,
    screenTime,
    bluetooth,
};

struct Program {
    Target target;
    QLatin1StringView name;
    QLatin1StringView desktop; ///< where it comes first; empty: it belongs to none
};

// Within a target in the order of preference.
constexpr std::array programs{
    Program{Target::clock, "org.gnome.clocks"_L1, "GNOME"_L1},
    Program{Target::clock, "org.kde.kclock"_L1, "KDE"_L1},
    Program{Target::clock, "org.xfce.orage.globaltime"_L1, "XFCE"_L1},

    Program{Target::dateAndTime, "gnome-datetime-panel"_L1, "GNOME"_L1},
    Program{Target::dateAndTime, "kcm_clock"_L1, "KDE"_L1},
    Program{Target::dateAndTime, "cinnamon-settings-calendar"_L1, "X-Cinnamon"_L1},
    Program{Target::dateAndTime, "time-admin"_L1, "MATE"_L1},

    Program{Target::calendar, "org.gnome.Calendar"_L1, "GNOME"_L1},
    Program{Target::calendar, "org.kde.merkuro.calendar"_L1, "KDE"_L1},
    Program{Target::calendar, "org.kde.kalendar"_L1, "KDE"_L1},
    Program{Target::calendar, "org.kde.korganizer"_L1, "KDE"_L1},
    Program{Target::calendar, "org.xfce.orage"_L1, "XFCE"_L1},
    Program{Target::calendar, "org.gnome.Evolution"_L1, {}},
    Program{Target::calendar, "thunderbird"_L1, {}},

    Program{Target::systemMonitor, "org.gnome.SystemMonitor"_L1, "GNOME"_L1},
    Program{Target::systemMonitor, "gnome-system-monitor"_L1, "GNOME"_L1},
    Program{Target::systemMonitor, "org.gnome.Usage"_L1, "GNOME"_L1},
    Program{Target::systemMonitor, "org.kde.plasma-systemmonitor"_L1, "KDE"_L1},
    Program{Target::systemMonitor, "org.kde.systemmonitor"_L1, "KDE"_L1},
    Program{Target::systemMonitor, "xfce4-taskmanager"_L1, "XFCE"_L1},
    Program{Target::systemMonitor, "mate-system-monitor"_L1, "MATE"_L1},
    Program{Target::systemMonitor, "qps"_L1, "LXQt"_L1},
    Program{Target::systemMonitor, "lxtask"_L1, "LXDE"_L1},
    Program{Target::systemMonitor, "htop"_L1, {}},

    Program{Target::storage, "org.gnome.baobab"_L1, "GNOME"_L1},
    Program{Target::storage, "org.kde.filelight"_L1, "KDE"_L1},
    Program{Target::storage, "mate-disk-usage-analyzer"_L1, "MATE"_L1},
    Program{Target::storage, "org.gnome.DiskUtility"_L1, "GNOME"_L1},
    Program{Target::storage, "org.kde.partitionmanager"_L1, "KDE"_L1},

    Program{Target::power, "gnome-power-panel"_L1, "GNOME"_L1},
    Program{Target::power, "kcm_powerdevilprofilesconfig"_L1, "KDE"_L1},
    Program{Target::power, "xfce4-power-manager-settings"_L1, "XFCE"_L1},
    Program{Target::power, "mate-power-preferences"_L1, "MATE"_L1},
    Program{Target::power, "cinnamon-settings-power"_L1, "X-Cinnamon"_L1},
    Program{Target::power, "lxqt-config-powermanagement"_L1, "LXQt"_L1},

    Program{Target::network, "gnome-network-panel"_L1, "GNOME"_L1},
    Program{Target::network, "kcm_networkmanagement"_L1, "KDE"_L1},
    Program{Target::network, "cinnamon-network-panel"_L1, "X-Cinnamon"_L1},
    Program{Target::network, "nm-connection-editor"_L1, {}},

    Program{Target::weather, "org.gnome.Weather"_L1, "GNOME"_L1},
    Program{Target::weather, "org.kde.kweather"_L1, "KDE"_L1},

    Program{Target::music, "org.gnome.Music"_L1, "GNOME"_L1},
    Program{Target::music, "org.kde.elisa"_L1, "KDE"_L1},
    Program{Target::music, "org.gnome.Rhythmbox3"_L1, "GNOME"_L1},
    Program{Target::music, "org.gnome.Lollypop"_L1, {}},
    Program{Target::music, "org.strawberrymusicplayer.strawberry"_L1, {}},
    Program{Target::music, "audacious"_L1, {}},

    Program{Target::reminders, "org.gnome.Todo"_L1, "GNOME"_L1},
    Program{Target::reminders, "org.kde.zanshin"_L1, "KDE"_L1},
    Program{Target::reminders, "io.github.alainm23.planify"_L1, {}},
    Program{Target::reminders, "org.gnome.GTG"_L1, {}},

    Program{Target::screenTime, "gnome-wellbeing-panel"_L1, "GNOME"_L1},

    Program{Target::bluetooth, "gnome-bluetooth-panel"_L1, "GNOME"_L1},
    Program{Target::bluetooth, "kcm_bluetooth"_L1, "KDE"_L1},
    Program{Target::bluetooth, "blueman-manager"_L1, {}},
};

std::optional<Target> targetOf(WidgetKind kind)
{
    switch (kind) {
    case WidgetKind::clock: return Target::clock;
    case WidgetKind::calendar:
    case WidgetKind::events:
    case WidgetKind::countdown: return Target::calendar;
    case WidgetKind::cpu:
    case WidgetKind::memory:
    case WidgetKind::processes: return Target::systemMonitor;
    case WidgetKind::disk: return Target::storage;
    case WidgetKind::battery: return Target::power;
    case WidgetKind::network:
    case WidgetKind::downloads: return Target::network;
    case WidgetKind::weather:
    case WidgetKind::sky: return Target::weather;
    case WidgetKind::nowPlaying: return Target::music;
    case WidgetKind::reminders: return Target::reminders;
    case WidgetKind::activity: return Target::screenTime;
    case WidgetKind::devices: return Target::bluetooth;
    case WidgetKind::photo:
    case WidgetKind::focus:
    case WidgetKind::quote: return std::nullopt;
    }
    return std::nullopt;
}

QString notFound(Target target)
{
    switch (target) {
    case Target::clock:
    case Target::dateAndTime: return Wording::tr("No clock program found");
    case Target::calendar: return Wording::tr("No calendar program found");
    case Target::systemMonitor: return Wording::tr("No system monitor found");
    case Target::storage: return Wording::tr("No program that shows disk usage found");
    case Target::power: return Wording::tr("No power settings found");
    case Target::network: return Wording::tr("No network settings found");
    case Target::weather: return Wording::tr("No weather program found");
    case Target::music: return Wording::tr("No music player found");
    case Target::reminders: return Wording::tr("No reminders program found");
    case Target::screenTime: return Wording::tr("No screen time settings found");
    case Target::bluetooth: return Wording::tr("No Bluetooth settings found");
    }
    return {};
}

bool openFirst(Target target, ProgramLauncher& launcher, const QStringList& desktops)
{
    for (const bool ofThisDesktop : {true, false}) {
        for (const Program& program : programs) {
            const bool fits = program.target == target && desktops.contains(program.desktop) == ofThisDesktop;
            if (fits && launcher.has(program.name)) {
                launcher.open(program.name);
                return true;
            }
        }
    }
    return false;
}

} // namespace

WidgetActions::WidgetActions(ProgramLauncher& launcher, NowPlayingService& player, QStringList desktops)
    : m_launcher(launcher)
    , m_player(player)
    , m_desktops(std::move(desktops))
{
}

bool WidgetActions::hasAction(WidgetKind kind)
{
    return targetOf(kind).has_value();
}

QString WidgetActions::open(WidgetKind kind) const
{
    const std::optional<Target> target = targetOf(kind);
    if (!target || (target == Target::music && openPlayer()) || openFirst(*target, m_launcher, m_desktops))
        return {};
    // Any clock is better than the settings of date and time, and these are better than nothing.
    if (target == Target::clock && openFirst(Target::dateAndTime, m_launcher, m_desktops))
        return {};
    return notFound(*target);
}

/// The player whose track shows comes forward; false when there is none, or none that can.
bool WidgetActions::openPlayer() const
{
    const std::optional<Player> player = m_player.player();
    if (!player)
        return false;
    if (player->canRaise)
        m_player.send(PlayerCommand::raise);
    else if (m_launcher.has(player->program))
        m_launcher.open(player->program);
    else
        return false;
    return true;
}

} // namespace ambrelle
