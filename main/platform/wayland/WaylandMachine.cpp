// SPDX-License-Identifier: MIT

#include "platform/wayland/WaylandMachine.h"

#include "platform/linux/kernel/RunningProgram.h"

#include <QCoreApplication>
#include <QDir>
#include <QFileInfo>
#include <QJsonDocument>
#include <QJsonObject>
#include <QLibraryInfo>

#include <algorithm>
#include <array>
#include <chrono>
#include <cstring>
#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

// The toolkit reads them with its windows: panels are surfaces that it has to leave bare, and that have a place of
// their own; a graphics library would cost 50 MB.
constexpr std::array<std::pair<const char*, const char*>, 3> toolkitVariables{{
    {"QT_WAYLAND_USE_BYPASSWINDOWMANAGERHINT", "1"},
    {"QT_WAYLAND_DISABLE_FIXED_POSITIONS", "1"},
    {"QT_WAYLAND_CLIENT_BUFFER_INTEGRATION", "shm"},
}};

constexpr int firstThatJoinsAbove = 10; // of Sway 1

// For Sway to say what its outputs are; it takes a few milliseconds.
constexpr std::chrono::milliseconds screenPatience{200};

/// Asked on a connection of its own: the toolkit has none yet.
bool hasLayerShell(wl_display* display)
{
    static const wl_registry_listener listener{
        .global =
            [](void* found, wl_registry*, uint32_t, const char* interface, uint32_t) {
                if (std::strcmp(interface, zwlr_layer_shell_v1_interface.name) == 0)
                    *static_cast<bool*>(found) = true;
            },
        .global_remove = [](void*, wl_registry*, uint32_t) {},
    };
    bool found = false;
    const Handle<wl_registry> registry(wl_display_get_registry(display));
    wl_registry_add_listener(registry.get(), &listener, &found);
    return wl_display_roundtrip(display) >= 0 && found;
}

/// As the toolkit will look for it once there is an application object.
bool isPluginThere()
{
    QStringList folders = qEnvironmentVariable("QT_PLUGIN_PATH").split(QDir::listSeparator(), Qt::SkipEmptyParts);
    const QString own =
        QFileInfo(runningProgram()).path() + u"/../lib/ambrelle/plugins"_s; // of a folder with all it needs
    folders.append(QFileInfo::exists(own) ? own : QLibraryInfo::path(QLibraryInfo::PluginsPath));
    return std::ranges::any_of(folders,
        [](const QString& folder) { return QFileInfo::exists(folder + u"/platforms/libqwayland-generic.so"_s); });
}

QString whyNoLayers()
{
    if (qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") && qEnvironmentVariableIsEmpty("WAYLAND_SOCKET"))
        return u"The variable WAYLAND_DISPLAY names no Wayland display."_s;
    const Handle<wl_display> display(wl_display_connect(nullptr));
    if (!display)
        return u"Ambrelle cannot reach the Wayland display “%1”."_s.arg(qEnvironmentVariable("WAYLAND_DISPLAY"));
    if (!hasLayerShell(display.get()))
        return u"The Wayland compositor offers no layer shell."_s;
    return isPluginThere() ? QString() : u"The toolkit’s plug-in for Wayland is not installed."_s;
}

std::unique_ptr<Machine> makeWaylandMachine(const Machine::Wishes& wishes)
{
    auto machine = std::make_unique<WaylandMachine>(wishes);
    return machine->windows().isAvailable() ? std::move(machine) : nullptr;
}

} // namespace

WaylandMachine::WaylandMachine(const Wishes& wishes)
    : m_system(wishes, [] { return std::unique_ptr<DesktopPicture>(); })
    , m_outputs(m_system.session.swaySocket)
    , m_windows([this](const QString& connector) { return factsOf(connector); })
    , m_sway(m_system.session.swaySocket, {})
    , m_otherWindows(
          m_system.session.swaySocket, [this](const QRectF& place) { return m_windows.fromLayout(place); },
          QCoreApplication::applicationPid())
    , m_idle(m_windows.connection())
    , m_power(m_windows.connection())
    , m_visibility({&m_system.visibility, &m_power})
{
    if (!m_windows.isAvailable())
        return;
    QObject::connect(&m_sway, &SwaySocket::opened, &m_windows, [this] {
        m_sway.ask(SwaySocket::Question::version, [this](const QByteArray& version) { learnOrder(version); });
    });
    if (!m_system.session.swaySocket.isEmpty())
        m_sway.open();
    m_system.programs.setProgramEnvironment([this](const auto& start) { givePrograms(start); });
    QObject::connect(&m_outputs, &SwayOutputs::changed, &m_windows, [this] { m_windows.screenList()->factsChanged(); });
    QObject::connect(
        &m_idle, &IdleWatch::idleChanged, &m_windows, [this](bool idle) { m_otherWindows.setResting(idle); });
}

/// Before version 1.10 Sway put the surfaces of a layer below those that were there.
void WaylandMachine::learnOrder(const QByteArray& version)
{
    const QJsonObject told = QJsonDocument::fromJson(version).object();
    const int major = told["major"_L1].toInt(1);
    if (major < 1 || (major == 1 && told["minor"_L1].toInt(firstThatJoinsAbove) < firstThatJoinsAbove))
        m_windows.order().setJoining(Joining::below);
    m_sway.close();
}

std::optional<ScreenFacts> WaylandMachine::factsOf(const QString& connector)
{
    // Widgets go to the screen that they were on, so it has to be known before the first of them.
    if (!std::exchange(m_hasWaited, true))
        m_outputs.waitForAnswer(screenPatience);
    const std::optional<SwayOutput> output = m_outputs.output(connector);
    if (!output || output->place.isEmpty())
        return std::nullopt;
    const QRectF usable = output->usable.translated(-output->place.topLeft());
    const double width = output->place.width();
    const double height = output->place.height();
    return ScreenFacts{output->maker, output->model, output->serial,
        {usable.x() / width, usable.y() / height, usable.width() / width, usable.height() / height}};
}

/// The program that the user opens may come to the front, and knows nothing of how this one's surfaces are made.
void WaylandMachine::givePrograms(const std::function<void(const QProcessEnvironment&)>& start)
{
    m_windows.activation().request([start](const QString& token) {
        QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
        for (const auto& [name, value] : toolkitVariables)
            environment.remove(QString::fromLatin1(name));
        if (!token.isEmpty()) {
            environment.insert(u"XDG_ACTIVATION_TOKEN"_s, token);
            environment.insert(u"DESKTOP_STARTUP_ID"_s, token); // for programs that run on XWayland
        }
        start(environment);
    });
}

Machine::Ports WaylandMachine::ports()
{
    return m_system.ports({
        .windows = m_windows,
        .otherWindows = m_otherWindows,
        .visibility = m_visibility,
        .input = m_idle.isAvailable() ? static_cast<InputMonitor&>(m_idle) : m_system.input,
        .trays = {&m_system.tray},
    });
}

HostOffer WaylandMachine::offer()
{
    return {.plugins = {"wayland"},
        .whyNot = whyNoLayers,
        .make = makeWaylandMachine,
        .isThere = [] { return whyNoLayers().isEmpty(); },
        .variables = {toolkitVariables.begin(), toolkitVariables.end()}};
}

} // namespace ambrelle
