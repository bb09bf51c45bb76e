// SPDX-License-Identifier: MIT

#include "app/UpdateCheck.h"

#include "foundation/UserDefaults.h"
#include "model/AppSettings.h"
#include "platform/linux/kernel/SystemClock.h"

#include <QEventLoop>
#include <QTextStream>

#include <cstdlib>
#include <utility>

namespace ambrelle {

int checkForUpdate(std::shared_ptr<ReleaseServer> server, std::shared_ptr<ProgramFolder> folder,
    const Updater::Trust& trust, const StagedProgram::Identity& running)
{
    UserDefaults nothing = UserDefaults::temporary(); // no setting changes what the command does
    AppSettings settings(nothing);
    SystemClock clock;
    Updater updater({.settings = settings, .clock = clock, .server = std::move(server), .folder = std::move(folder)},
        trust, running);
    QEventLoop loop;
    QString line;
    updater.dryRun([&](const QString& told) {
        line = told;
        loop.quit();
    });
    if (line.isEmpty())
        loop.exec();
    if (line.isEmpty())
        return EXIT_FAILURE;
    QTextStream(stdout) << line << '\n';
    return EXIT_SUCCESS;
}

} // namespace ambrelle
