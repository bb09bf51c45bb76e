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
#include <cstdio>
#include <cstdlib>

#include <fcntl.h>
#include <unistd.h>

namespace ambrelle {

namespace {

std::array<char, PATH_MAX> theProgram{};
sigset_t theMask;
std::atomic<bool> isDue = false;
std::array<char, PATH_MAX> theRoot{}; // both for a signal handler
std::array<char, PATH_MAX> theFormer{};
std::atomic<bool> isFormerKnown = false;

bool put(const QString& path, std::array<char, PATH_MAX>& into)
{
    const QByteArray name = QFile::encodeName(path);
    if (name.isEmpty() || name.size() >= static_cast<qsizetype>(into.size()))
        return false;
    std::ranges::copy(name, into.begin());
    return true;
}

void noteFormer(const QString& program)
{
    isFormerKnown = put(ProgramRoot::pathOf(program), theRoot) && put(Probation::formerOf(program), theFormer);
}

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
    put(program, theProgram);
    ::sigprocmask(SIG_SETMASK, nullptr, &theMask);
}

void Relaunch::arrange()
{
    const QString program = QFile::decodeName(theProgram.data());
    isDue = true; // the rest takes the disk
    leaveProgramFolder(ProgramRoot::pathOf(program));
    noteFormer(program);
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
    // The former program without its journal, which takes more than a signal handler may do: nothing is then known of
    // a rejection, and the newer version will be tried once more.
    if (isFormerKnown && ::renameat2(AT_FDCWD, theRoot.data(), AT_FDCWD, theFormer.data(), RENAME_EXCHANGE) == 0)
        ::execv(theProgram.data(), bare.data());
}

} // namespace ambrelle
