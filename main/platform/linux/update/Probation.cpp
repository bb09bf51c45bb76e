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

/// Where there is no journal, whoever holds the lock may take long, and nothing hangs on it.
std::unique_ptr<WorkFolder> openForStart(const QString& rootPath)
{
    const bool hasJournal = QFileInfo::exists(WorkFolder::journalOf(ProgramRoot::workFolderOf(rootPath)));
    return hasJournal ? openSoon(rootPath) : WorkFolder::open(rootPath);
}

/// Whether the other version has taken the place since this process was started.
bool wasOvertaken(const QString& rootPath, const FolderJournal& journal, const QString& version)
{
    const QString standing = versionOf(rootPath);
    return (version == journal.to && standing == journal.from) || (version == journal.from && standing == journal.to);
}

/// Gives the former version its place back and becomes it. Returns only where that fails.
Found rollBack(const QString& path, std::unique_ptr<WorkFolder> work, const FolderJournal& journal, char** arguments)
{
    if (!isFormerThere(*work, journal)) {
        FolderJournal::remove(*work);
        return {.what = Found::What::leftovers};
    }
    if (!bringFormerBack(path, *work, journal))
        return {}; // the next start tries again
    const QString copy = work->path() + u'/' + journal.copy;
    work.reset();
    become(programFile(path), arguments);
    exchangeFolders(path, copy); // neither starts well; this one runs at least
    return {};
}

} // namespace

Step nextStep(const FolderJournal& journal, const QString& version)
{
    if (version == journal.to && journal.isConfirmed)
        return Step::clear;
    if (version == journal.to)
        return journal.isRejected || journal.attempts >= mostAttempts ? Step::rollBack : Step::watch;
    return version == journal.from && journal.isRejected ? Step::tellRejection : Step::clear;
}

Found begin(const QString& program, const QString& version, char** arguments)
{
    const QString path = ProgramRoot::pathOf(program);
    if (path.isEmpty() || !WorkFolder::exists(path) || program != programFile(path) || !holdsProgram(path))
        return {};
    std::unique_ptr<WorkFolder> work = openForStart(path);
    if (!work)
        return {};
    std::optional<FolderJournal> journal = FolderJournal::read(*work);
    if (!journal)
        return {.what = Found::What::leftovers};
    if (wasOvertaken(path, *journal, version)) {
        work.reset();
        become(program, arguments);
        return {};
    }
    switch (nextStep(*journal, version)) {
    case Step::clear: break;
    case Step::tellRejection: return {.what = Found::What::rejection, .version = journal->to};
    case Step::watch:
        ++journal->attempts;
        if (!journal->write(*work)) // a full disk is no reason not to start
            --journal->attempts;
        work.reset(); // the guard has to be able to open it
        ProbationGuard::start(program, journal->attempts);
        return {.what = Found::What::newcomer};
    case Step::rollBack: return rollBack(path, std::move(work), *journal, arguments);
    }
    return {.what = Found::What::leftovers};
}

bool confirm(const QString& program, const QString& version)
{
    const QString path = ProgramRoot::pathOf(program);
    const auto work = WorkFolder::open(path);
    const std::optional<FolderJournal> journal = work ? FolderJournal::read(*work) : std::nullopt;
    return journal && version == journal->to && !journal->isRejected && confirmNewer(path, *work, *journal);
}

bool settle(const QString& program, const QString& version)
{
    const QString path = ProgramRoot::pathOf(program);
    if (!WorkFolder::exists(path))
        return true;
    const auto work = WorkFolder::open(path);
    if (!work)
        return false;
    const std::optional<FolderJournal> journal = FolderJournal::read(*work);
    if (journal && journal->isRejected && version == journal->to)
        return true; // it was too late: the former version has its place back, and sees to the rest
    if (journal && version != journal->from && !confirmNewer(path, *work, *journal))
        return false;
    if (journal && journal->isRejected && version == journal->from && !keepOfRejected(path, *work, *journal))
        return false;
    if (!FolderJournal::remove(*work))
        return false;
    work->clear();
    work->removeIfEmpty();
    return true;
}

bool undo(const QString& program, int attempt)
{
    const QString path = ProgramRoot::pathOf(program);
    const auto work = openSoon(path);
    const std::optional<FolderJournal> journal = work ? FolderJournal::read(*work) : std::nullopt;
    return journal && !journal->isRejected && !journal->isConfirmed && journal->attempts == attempt
        && bringFormerBack(path, *work, *journal);
}

QString formerOf(const QString& program)
{
    const auto work = WorkFolder::open(ProgramRoot::pathOf(program));
    const std::optional<FolderJournal> journal = work ? FolderJournal::read(*work) : std::nullopt;
    return journal && isFormerThere(*work, *journal) ? work->path() + u'/' + journal->copy : QString();
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
