// SPDX-License-Identifier: MIT

#include "app/AppDelegate.h"
#include "app/BatchModes.h"
#include "app/BatchSurroundings.h"
#include "app/CommandLine.h"
#include "app/EndingDeadline.h"
#include "app/EndingSignals.h"
#include "app/Environment.h"
#include "app/FirstStarts.h"
#include "app/Hosts.h"
#include "app/Information.h"
#include "app/Relaunch.h"
#include "app/SessionEnd.h"
#include "app/SingleInstance.h"
#include "app/StartRequest.h"
#include "app/UpdateCheck.h"
#include "app/UpdateKeys.h"
#include "app/UserFolders.h"
#include "app/WordingFile.h"
#include "desktop/QuickMenu.h"
#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "model/ThemeAccent.h"
#include "platform/linux/desktop/Fonts.h"
#include "platform/linux/desktop/MenuRegistration.h"
#include "platform/linux/desktop/NamedDisplay.h"
#include "platform/linux/kernel/RunningProgram.h"
#include "platform/linux/update/LinuxProgramFolder.h"
#include "platform/linux/update/ProbationGuard.h"
#include "platform/network/HttpsReleaseServer.h"

#include <QApplication>
#include <QDir>
#include <QLoggingCategory>
#include <QTextStream>

#include <cstdlib>
#include <optional>
#include <thread>

namespace {

using namespace ambrelle;
using namespace Qt::StringLiterals;

constexpr int wrongUse = 2;
const QString calendarFoldersKey = u"calendarFolders"_s; ///< besides the usual ones
const QString addressesKey = u"mailAddresses"_s; ///< of the user

QStringList argumentsOf(int argc, char** argv)
{
    QStringList arguments;
    for (int i = 1; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    return arguments;
}

int complain(const QString& sentence, int status = EXIT_FAILURE)
{
    QTextStream(stderr) << sentence << '\n';
    return status;
}

/// The status to end with; none when the other has just ended, so that this start takes its place.
std::optional<int> handOver(SingleInstance& instance, const StartRequest& request, int& argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    if (instance.handOver(request))
        return EXIT_SUCCESS;
    if (instance.role() == SingleInstance::Role::first)
        return std::nullopt;
    return complain(u"Ambrelle is already running, but does not answer."_s);
}

Machine::Wishes machineWishes(const FirstStarts& firstStarts)
{
    const QString folder = UserFolders::wallpapers();
    QDir().mkpath(folder);
    UserDefaults& defaults = UserDefaults::shared();
    return {.calendarFolders = defaults.strings(calendarFoldersKey).value_or(QStringList()),
        .keepCalendarFolders = [&defaults](const QStringList& folders) { defaults.set(calendarFoldersKey, folders); },
        .addresses = defaults.strings(addressesKey).value_or(QStringList()),
        .noteFolder = folder,
        .rejectedVersion = firstStarts.rejectedVersion(defaults)};
}

Updater::Trust updateTrust()
{
    return {QUrl(Information::read().updateFeed, QUrl::StrictMode), updateKeys()};
}

int runDesktop(const CommandLine& commandLine, int argc, char** argv)
{
    ProbationGuard::openStandardDescriptors();
    const QString program = runningProgram();
    Relaunch::prepare(program);
    const StartRequest request{commandLine.files, commandLine.action, StartRequest::takeToken()};
    SingleInstance instance;
    if (instance.role() == SingleInstance::Role::second && commandLine.isRestored)
        return EXIT_SUCCESS; // the login item was faster; nobody asked for a window
    if (instance.role() == SingleInstance::Role::second) {
        if (const std::optional<int> status = handOver(instance, request, argc, argv))
            return *status;
    }
    if (request.action == rawValue(QuickAction::quit))
        return EXIT_SUCCESS; // nothing runs that could
    instance.keepLock(); // settings are flushed after this function
    // Where no version could show widgets, as on a text console, the newer one is not judged by it.
    if (!namesDisplay()) {
        if (const QString whyNot = chooseUsersHost(hostOffers(), UserDefaults::shared()).whyNot; !whyNot.isEmpty())
            return complain(whyNot);
    }
    FirstStarts firstStarts(program, argv);
    const HostChoice choice = chooseUsersHost(hostOffers(), UserDefaults::shared());
    if (!choice.whyNot.isEmpty())
        return complain(choice.whyNot);
    Environment environment(choice.plugin, choice.host.variables);
    // While the toolkit connects. It reads the environment, which nothing changes meanwhile.
    std::jthread fonts(&Fonts::prepare);
    QApplication application(argc, argv);
    fonts.join();
    Fonts::registerBundled();
    WordingFile::install(application);
    environment.restore();
    QGuiApplication::setQuitOnLastWindowClosed(false);
    const SessionEnd sessionEnd(application);
    EndingDeadline::prepare();
    const EndingSignals signals;
    QObject::connect(&signals, &EndingSignals::received, &application, [] { QCoreApplication::exit(); });
    const std::unique_ptr<Machine> machine = choice.host.make(machineWishes(firstStarts));
    if (!machine)
        return complain(u"Ambrelle cannot show widgets on this display."_s);
    AppDelegate delegate(
        *machine, {UserDefaults::shared(), AppSettings::shared(), ThemeAccent::shared()}, updateTrust());
    delegate.start();
    firstStarts.proceed(machine->ports().clock, UserDefaults::shared());
    QObject::connect(&instance, &SingleInstance::activated, &delegate, &AppDelegate::carryOut);
    QMetaObject::invokeMethod(
        &delegate, [&] { delegate.started(request); }, Qt::QueuedConnection);
    // The widgets come first; nobody waits for the socket, and hardly anybody for the name.
    QMetaObject::invokeMethod(&delegate, &AppDelegate::openDoor, Qt::QueuedConnection);
    QMetaObject::invokeMethod(&instance, &SingleInstance::listen, Qt::QueuedConnection);
    const int status = QCoreApplication::exec();
    EndingDeadline::start(); // before anything that a disk can hold up
    if (status == relaunchStatus)
        Relaunch::arrange();
    firstStarts.end(status == EXIT_SUCCESS || status == relaunchStatus); // the toolkit has others
    return status;
}

int runRegistration(CommandLine::Mode mode)
{
    const MenuRegistration registration(MenuRegistration::Places::standard());
    const bool enters = mode == CommandLine::Mode::enterMenu;
    const MenuRegistration::Outcome outcome = enters ? registration.add() : registration.remove();
    QTextStream out(stdout);
    for (const QString& file : outcome.files)
        out << (enters ? u"wrote "_s : u"removed "_s) << file << '\n';
    return outcome.fault.isEmpty() ? EXIT_SUCCESS : complain(outcome.fault);
}

int runUpdateCheck(int argc, char** argv)
{
    QCoreApplication application(argc, argv);
    WordingFile::install(application);
    EndingDeadline::prepare();
    const EndingSignals signals;
    QObject::connect(&signals, &EndingSignals::received, &application, [] { QCoreApplication::exit(); });
    const Information information = Information::read();
    return checkForUpdate(std::make_shared<HttpsReleaseServer>(), LinuxProgramFolder::ofRunningProgram({}),
        updateTrust(), {information.identifier, information.version});
}

} // namespace

int main(int argc, char** argv)
{
    const CommandLine commandLine = CommandLine::parse(argumentsOf(argc, argv));
    if (commandLine.isBatch())
        BatchSurroundings::hideUser();
    // What is wrong with a picture shows where the picture would be; what the toolkit misses on Wayland is not wanted.
    QLoggingCategory::setFilterRules(u"qt.gui.imageio*=false\nqt.qpa.wayland.warning=false"_s);
    QCoreApplication::setApplicationName(u"ambrelle"_s);
    QCoreApplication::setApplicationVersion(Information::read().version);
    QGuiApplication::setApplicationDisplayName(u"Ambrelle"_s);
    QGuiApplication::setDesktopFileName(u"org.ambrelle.Ambrelle"_s);
    switch (commandLine.mode) {
    case CommandLine::Mode::help: QTextStream(stdout) << CommandLine::helpText(); return EXIT_SUCCESS;
    case CommandLine::Mode::version:
        QTextStream(stdout) << u"Ambrelle %1\n"_s.arg(QCoreApplication::applicationVersion());
        return EXIT_SUCCESS;
    case CommandLine::Mode::unknownOption:
        return complain(CommandLine::unknownOptionText(commandLine.option), wrongUse);
    case CommandLine::Mode::unknownAction:
        return complain(CommandLine::unknownActionText(commandLine.option), wrongUse);
    case CommandLine::Mode::renderPreviews:
    case CommandLine::Mode::renderWallpapers:
    case CommandLine::Mode::renderWindow:
    case CommandLine::Mode::renderInterface:
    case CommandLine::Mode::exportSite: return runBatchMode(commandLine, argc, argv);
    case CommandLine::Mode::checkUpdate: return runUpdateCheck(argc, argv);
    case CommandLine::Mode::enterMenu:
    case CommandLine::Mode::leaveMenu: return runRegistration(commandLine.mode);
    case CommandLine::Mode::desktop: {
        const int status = runDesktop(commandLine, argc, argv);
        if (status == relaunchStatus)
            Relaunch::carryOut();
        return status;
    }
    }
    return EXIT_FAILURE;
}
