// SPDX-License-Identifier: MIT

// replacement PROGRAM ARCHIVE FROM TO SIGNATURE [KEY...]
//
// Plays the program file PROGRAM of version FROM, which replaces itself by version TO in ARCHIVE and relaunches. Ends
// with the number of the step that failed.

#include "app/Relaunch.h"
#include "platform/linux/update/LinuxProgramFolder.h"

#include <QCoreApplication>
#include <QFile>

#include <unistd.h>

namespace {

using namespace ambrelle;
using namespace Qt::StringLiterals;

enum Failure : int {
    none,
    wrongUse,
    notARoot,
    notStaged,
    notCopied,
    notOpened,
    otherIdentity,
    startsNot,
    notExchanged,
    notRelaunched
};

QByteArray contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

Failure replace(const QStringList& words)
{
    const std::optional<ProgramRoot> root = ProgramRoot::of(words[1]);
    if (!root)
        return notARoot;
    LinuxProgramFolder folder(*root, {});
    const auto staged = folder.stage(ProgramFolder::Purpose::update);
    const int archive = staged ? staged->archive() : -1;
    if (archive < 0)
        return notStaged;
    const QByteArray bytes = contentOf(words[2]);
    if (::write(archive, bytes.constData(), static_cast<size_t>(bytes.size())) != bytes.size())
        return notCopied;
    const StagedProgram::Seal seal{
        .signature = contentOf(words[5]), .keys = words.mid(6), .comment = u"org.ambrelle.Ambrelle "_s + words[4]};
    if (staged->open(seal, {}) != StagedProgram::Opened::done)
        return notOpened;
    if (staged->identity() != StagedProgram::Identity{u"org.ambrelle.Ambrelle"_s, words[4]})
        return otherIdentity;
    if (!staged->starts(words[4], {}))
        return startsNot;
    return staged->exchange(words[3], words[4]) ? none : notExchanged;
}

int play(int argc, char** argv)
{
    const QCoreApplication application(argc, argv);
    const QStringList words = QCoreApplication::arguments();
    if (words.size() < 6)
        return wrongUse;
    Relaunch::prepare(words[1]);
    const Failure failure = replace(words);
    if (failure != none)
        return failure;
    Relaunch::arrange();
    return relaunchStatus;
}

} // namespace

int main(int argc, char** argv)
{
    const int status = play(argc, argv);
    if (status != relaunchStatus)
        return status;
    Relaunch::carryOut();
    return notRelaunched;
}
