// SPDX-License-Identifier: MIT

#include "platform/linux/update/Probation.h"

#include "platform/linux/update/FolderExchange.h"
#include "platform/linux/update/ProbationGuard.h"
#include "platform/linux/update/ProgramRoot.h"
#include "platform/linux/update/WorkFolder.h"

#include <QFile>
#include <QFileInfo>

#include <array>
#include <cstdlib>

#include <poll.h>
#include <unistd.h>

namespace ambrelle::Probation {

namespace {

/// A power cut in the first seconds must not condemn a good version.
constexpr int mostAttempts = 2;
constexpr int lockPause = 50; // milliseconds
constexpr int lockTrials = 60; // a process that just died, or its last thread, may still hold the lock

std::unique_ptr<WorkFolder> openSoon(const QString& rootPath)
{
    for (int i = 0; i < lockTrials && WorkFolder::exists(rootPath); ++i) {
        if (auto work = WorkFolder::open(rootPath))
            return work;
        ::poll(nullptr, 0, lockPause);
    }
    return nullptr;
}

bool isCopyThere(const WorkFolder& work, const FolderJournal& journal)
{
    return holdsProgram(work.path() + u'/' + journal.copy);
}

/// Gives the former version its place back and becomes it. Returns only where that fails.
Found rollBack(
    const ProgramRoot& root, std::unique_ptr<WorkFolder> work, const FolderJournal& journal, char** arguments)
{
    if (!isCopyThere(*work, journal)) {
        FolderJournal::remove(*work);
        return {.what = Found::What::leftovers};
    }
    if (!bringFormerBack(root.path, *work, journal))
        return {}; // the next start tries again
    const QString copy = work->path() + u'/' + journal.copy;
    work.reset();
    become(root.program(), arguments);
    exchangeFolders(root.path, copy); // neither starts well; this one runs at least
    return {};
}

} // namespace

Step nextStep(const FolderJournal& journal, const QString& version)
{
    if (version == journal.to)
        return journal.isRejected || journal.attempts >= mostAttempts ? Step::rollBack : Step::watch;
    return version == journal.from && journal.isRejected ? Step::tellRejection : Step::clear;
}

Found begin(const QString& program, const QString& version, char** arguments)
{
    const QString path = ProgramRoot::pathOf(program);
    if (path.isEmpty() || !WorkFolder::exists(path))
        return {};
    const std::optional<ProgramRoot> root = ProgramRoot::of(program);
    std::unique_ptr<WorkFolder> work = root ? WorkFolder::open(path) : nullptr;
    if (!work)
        return {};
    std::optional<FolderJournal> journal = FolderJournal::read(*work);
    if (!journal)
        return {.what = Found::What::leftovers};
    switch (nextStep(*journal, version)) {
    case Step::clear: break;
    case Step::tellRejection: return {.what = Found::What::rejection, .version = journal->to};
    case Step::watch:
        ++journal->attempts;
        journal->write(*work); // a full disk is no reason not to start
        work.reset(); // the guard has to be able to open it
        ProbationGuard::start(program);
        return {.what = Found::What::newcomer};
    case Step::rollBack: return rollBack(*root, std::move(work), *journal, arguments);
    }
    return {.what = Found::What::leftovers};
}

bool confirm(const QString& program, const QString& version)
{
    const QString path = ProgramRoot::pathOf(program);
    const auto work = WorkFolder::open(path);
    const std::optional<FolderJournal> journal = work ? FolderJournal::read(*work) : std::nullopt;
    return journal && nextStep(*journal, version) == Step::watch && confirmNewer(path, *work, *journal);
}

void settle(const QString& program, const QString& version)
{
    const QString path = ProgramRoot::pathOf(program);
    const auto work = WorkFolder::open(path);
    if (!work)
        return;
    const std::optional<FolderJournal> journal = FolderJournal::read(*work);
    if (journal && version != journal->from && !confirmNewer(path, *work, *journal))
        return;
    if (!FolderJournal::remove(*work))
        return;
    work->clear();
    work->removeIfEmpty();
}

bool undo(const QString& program)
{
    const QString path = ProgramRoot::pathOf(program);
    const auto work = openSoon(path);
    const std::optional<FolderJournal> journal = work ? FolderJournal::read(*work) : std::nullopt;
    return journal && !journal->isRejected && bringFormerBack(path, *work, *journal);
}

void become(const QString& program, char** arguments)
{
    // They belong to the start that somebody asked for.
    ::unsetenv("DESKTOP_STARTUP_ID");
    ::unsetenv("XDG_ACTIVATION_TOKEN");
    QByteArray path = QFile::encodeName(program);
    std::array<char*, 2> bare{path.data(), nullptr};
    ::execv(path.constData(), arguments ? arguments : bare.data());
}

} // namespace ambrelle::Probation
