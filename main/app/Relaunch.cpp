// SPDX-License-Identifier: MIT

#include "app/Relaunch.h"

#include "platform/linux/update/Probation.h"
#include "platform/linux/update/ProgramRoot.h"

#include <QDir>
#include <QFile>

#include <algorithm>
#include <array>
#include <atomic>
#include <climits>
#include <csignal>
#include <cstdlib>

#include <unistd.h>

namespace ambrelle {

namespace {

std::array<char, PATH_MAX> theProgram{};
sigset_t theMask;
std::atomic<bool> isDue = false;

/// A folder that moved with the program, or goes with it, is no place to be in.
void leaveProgramFolder(const QString& root)
{
    const QString here = QDir::currentPath();
    const auto isIn = [&](const QString& folder) { return here == folder || here.startsWith(folder + u'/'); };
    if (here.isEmpty() || isIn(root) || isIn(ProgramRoot::workFolderOf(root)))
        QDir::setCurrent(QDir::homePath());
}

} // namespace

void Relaunch::prepare(const QString& program)
{
    const QByteArray path = QFile::encodeName(program);
    if (path.size() < static_cast<qsizetype>(theProgram.size()))
        std::ranges::copy(path, theProgram.begin());
    ::sigprocmask(SIG_SETMASK, nullptr, &theMask);
}

void Relaunch::arrange()
{
    leaveProgramFolder(ProgramRoot::pathOf(QFile::decodeName(theProgram.data())));
    isDue = true;
}

void Relaunch::carryOut()
{
    if (!isDue)
        return;
    std::signal(SIGPIPE, SIG_DFL); // of all that was set, the one thing that programs inherit
    const QString program = QFile::decodeName(theProgram.data());
    Probation::become(program);
    if (Probation::undo(program))
        Probation::become(program);
}

void Relaunch::carryOutAtOnce()
{
    if (!isDue)
        return;
    ::sigprocmask(SIG_SETMASK, &theMask, nullptr);
    const std::array<char*, 2> bare{theProgram.data(), nullptr};
    ::execv(theProgram.data(), bare.data());
}

} // namespace ambrelle
