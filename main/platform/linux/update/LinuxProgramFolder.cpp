// SPDX-License-Identifier: MIT

#include "platform/linux/update/LinuxProgramFolder.h"

#include "platform/linux/kernel/RunningProgram.h"
#include "platform/linux/update/FolderStaging.h"

#include <QDeadlineTimer>
#include <QDir>
#include <QFileInfo>

#include <poll.h>

namespace ambrelle {

using namespace std::chrono_literals;

namespace {

constexpr std::chrono::milliseconds settlingTime = 20s; // more than a first start takes to get through
constexpr int settlingGlance = 50; // milliseconds

} // namespace

LinuxProgramFolder::LinuxProgramFolder(ProgramRoot root, QString rejectedVersion)
    : m_root(std::move(root))
    , m_rejectedVersion(std::move(rejectedVersion))
{
}

std::shared_ptr<ProgramFolder> LinuxProgramFolder::ofRunningProgram(const QString& rejectedVersion)
{
    const std::optional<ProgramRoot> root = ProgramRoot::of(runningProgram());
    return root ? std::make_shared<LinuxProgramFolder>(*root, rejectedVersion) : nullptr;
}

bool LinuxProgramFolder::isWritable() const
{
    return QFileInfo(m_root.parent()).isWritable();
}

void LinuxProgramFolder::awaitSettled(const std::stop_token& stop) const
{
    const QString journal = WorkFolder::journalOf(m_root.workFolder());
    const QDeadlineTimer deadline(settlingTime);
    while (QFileInfo::exists(journal) && !stop.stop_requested() && !deadline.hasExpired())
        ::poll(nullptr, 0, settlingGlance);
}

std::unique_ptr<StagedProgram> LinuxProgramFolder::stage(Purpose purpose)
{
    if (purpose == Purpose::rehearsal)
        return FolderStaging::apart(m_root);
    const bool canGo = m_root.isUnchanged() && isReplaceable(m_root.path);
    std::unique_ptr<WorkFolder> work = canGo ? WorkFolder::make(m_root.path) : nullptr;
    // A journal tells of an exchange that is not settled yet: the way back is not to be cut off.
    if (!work || QFileInfo::exists(work->journal()))
        return nullptr;
    work->clear();
    return FolderStaging::beside(m_root, std::move(work));
}

} // namespace ambrelle
