// SPDX-License-Identifier: MIT

#include "app/UserInterface.h"

#include "app/Hosts.h"
#include "app/Information.h"
#include "app/StartRequest.h"
#include "app/UserFolders.h"
#include "app/WindowPictures.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/linux/kernel/RunningProgram.h"
#include "platform/SystemAppearance.h"
#include "platform/TrayPresence.h"
#include "platform/WindowHost.h"
#include "updates/Updater.h"
#include "window/frame/MainWindow.h"
#include "window/look/AppLook.h"
#include "window/WindowMaker.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPointer>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr std::chrono::milliseconds trayDelay{500};
constexpr std::chrono::milliseconds welcomeDelay{700};

/// Paragraphs without the line breaks within them.
QString unwrapped(const QString& text)
{
    QStringList paragraphs = text.split(u"\n\n"_s);
    for (QString& paragraph : paragraphs)
        paragraph = paragraph.simplified();
    return paragraphs.join(u"\n\n"_s);
}

ProgramFacts programFacts()
{
    const Information information = Information::read();
    return {.version = information.version,
        .build = information.build,
        .isOfSystem = isOfSystem(runningProgram()),
        .wallpapers = UserFolders::wallpapers(),
        .settings = UserFolders::settings(),
        .previews = UserFolders::previews(),
        .licence = [] { return unwrapped(dataText(u"LICENSE"_s)); },
        .fonts = [] { return dataText(u"fonts.txt"_s).split(u'\n', Qt::SkipEmptyParts); },
        .hasWindowSystems = [] { return hasChoiceOfHosts(hostOffers()); },
        .isWindowSystemForced = !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")};
}

} // namespace

UserInterface::UserInterface(const Collaborators& with)
    : m_host(with.ports.windows)
    , m_appearance(with.ports.appearance)
    , m_trays(with.ports.trays)
    , m_clock(with.ports.clock)
    , m_updater(with.updater)
    , m_quickMenu({.manager = with.manager,
          .settings = with.settings,
          .focus = with.services.focus,
          .open = [this](std::optional<MainTab> tab) { open(tab); },
          // Not quit(): it would ask the panels first, and they refuse to be closed by a window manager.
          .quit = [] { QCoreApplication::exit(); },
          .updates = [this] { return updates(); }})
    , m_model(with.defaults)
    , m_undo(with.ports.clock)
    , m_themes(with.defaults)
    , m_facts(programFacts())
    , m_context{.model = m_model,
          .sheets = m_sheets,
          .undo = m_undo,
          .manager = with.manager,
          .settings = with.settings,
          .accents = with.accents,
          .themes = m_themes,
          .themeActions = m_themeActions,
          .wallpaper = with.wallpaper,
          .thumbnails = with.pictures.wallpapers(),
          .snapshots = with.pictures.desktops(),
          .shelf = with.pictures.shelf(),
          .sorter = m_sorter,
          .host = with.ports.windows,
          .otherWindows = with.ports.otherWindows,
          .appearance = with.ports.appearance,
          .monitor = with.monitor,
          .services = with.services,
          .feed = with.feed,
          .calendars = with.ports.calendars,
          .login = with.ports.loginItem,
          .programs = with.ports.programs,
          .clock = with.ports.clock,
          .quickMenu = m_quickMenu,
          .updater = with.updater,
          .facts = m_facts}
    , m_themeActions(m_context)
    , m_mainWindow({m_model, with.ports.windows, with.ports.clock, [this] { return makeMainWindow(m_context); }})
    , m_widgetMenu(with.manager, m_quickMenu)
    , m_widgetSettings({with.manager, with.ports.windows, with.ports.appearance, with.ports.clock})
    , m_statusItem([this] { return m_quickMenu.items(); }, [this] { m_mainWindow.toggle(); }, with.ports.clock)
{
    // Later, when a sentence of whoever wrote may stand there.
    with.defaults.setRefused([self = QPointer<UserInterface>(this), &defaults = with.defaults] {
        if (self)
            QMetaObject::invokeMethod(
                self.get(), [self, &defaults] { self->tellRefused(defaults); }, Qt::QueuedConnection);
    });
    connect(&m_appearance, &SystemAppearance::changed, this, &UserInterface::followAppearance);
    connect(&m_mainWindow, &MainWindowController::forgotten, this, [&pictures = with.pictures] { pictures.release(); });
    connect(&m_themeActions, &ThemeActions::windowWanted, this, [this] { open({}); });
    connect(&m_statusItem, &StatusItemController::appeared, this, [this] { m_model.setHasTray(true); });
    for (const TrayPresence* tray : m_trays)
        connect(tray, &TrayPresence::appeared, &m_statusItem, &StatusItemController::show);
}

/// What was changed is as the user wants it, and shown so, but would not outlive the program.
void UserInterface::tellRefused(UserDefaults& defaults)
{
    if (m_undo.failure())
        return;
    m_undo.fail(Wording::tr("The disk takes no changes. They are kept while Ambrelle runs."), [this, &defaults] {
        if (!defaults.storeAgain())
            tellRefused(defaults);
    });
}

void UserInterface::start()
{
    m_start = m_clock.after(trayDelay, [this] {
        followAppearance();
        for (TrayPresence* tray : m_trays)
            tray->start();
    });
}

void UserInterface::welcome()
{
    m_model.setShowWelcome(true);
    m_welcome = m_clock.after(welcomeDelay, [this] { open(MainTab::themes); });
}

void UserInterface::askForCity()
{
    m_model.askForCity();
    open({});
}

void UserInterface::showCalendars()
{
    m_model.setSettingsChapter(SettingsChapter::calendars);
    open(MainTab::settings);
}

QuickMenu::Updates UserInterface::updates()
{
    const std::optional<Release> found = m_updater.isEnabled() ? m_updater.available() : std::nullopt;
    return {.found = found ? std::optional(found->version) : std::nullopt,
        .enabled = m_updater.isEnabled(),
        .busy = m_updater.isBusy(),
        .install =
            [this] {
                m_updater.install();
                showUpdates();
            },
        .check =
            [this] {
                m_updater.check();
                showUpdates();
            }};
}

/// Who asks in a menu learns there what came of it.
void UserInterface::showUpdates()
{
    m_model.setSearch(MainTab::settings, {});
    m_model.setSettingsChapter(SettingsChapter::updates);
    open(MainTab::settings);
}

bool UserInterface::isInUse() const
{
    return m_mainWindow.window() || m_widgetSettings.popover();
}

void UserInterface::carryOut(const StartRequest& request)
{
    m_token = request.token;
    if (!request.files.isEmpty() || request.action.isEmpty()) {
        QStringList paths;
        for (const QString& file : request.files)
            paths += QFileInfo(file).absoluteFilePath();
        m_model.addHandedFiles(paths);
        open({});
    }
    if (!request.action.isEmpty())
        perform(request.action);
    if (const QString unused = std::exchange(m_token, {}); !unused.isEmpty())
        m_host.dismiss(unused);
}

void UserInterface::perform(const QString& action)
{
    const auto known = parse<QuickAction>(action);
    const std::optional<ActionItem> item = known ? m_quickMenu.item(*known) : std::nullopt;
    if (item && item->handler)
        item->handler();
}

void UserInterface::open(std::optional<MainTab> tab)
{
    followAppearance(); // it may be wanted before the tray is
    if (tab)
        m_mainWindow.show(*tab, std::exchange(m_token, {}));
    else
        m_mainWindow.show(std::exchange(m_token, {}));
}

void UserInterface::followAppearance()
{
    AppLook::shared().apply(LookWishes::of(m_appearance));
}

} // namespace ambrelle
