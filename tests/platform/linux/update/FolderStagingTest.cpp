// SPDX-License-Identifier: MIT

#include "platform/linux/update/FolderStaging.h"
#include "platform/linux/update/Probation.h"
#include "StagingHome.h"
#include "support/Variable.h"

#include <QRegularExpression>

#include <csignal>
#include <thread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using test::PlainProgram;

struct FolderStagingTest : test::StagingHome { };

TEST_F(FolderStagingTest, TakesThePlaceOfTheRunningProgram)
{
    ASSERT_EQ(::chmod(qPrintable(program.root()), 0750), 0);
    EXPECT_EQ(folder.parent(), program.home.path());
    EXPECT_TRUE(folder.isWritable());
    EXPECT_EQ(folder.rejectedVersion(), u"0.9"_s);
    auto newer = staged(PlainProgram::archive(u"2.0"_s));
    EXPECT_FALSE(folder.stage(Purpose::update)) << "the place is taken";
    EXPECT_FALSE(newer->identity()) << "nothing is unpacked yet";
    EXPECT_FALSE(newer->starts(u"2.0"_s, {}));
    EXPECT_FALSE(newer->exchange(u"1.0"_s, u"2.0"_s));
    ASSERT_EQ(newer->open(seal, {}), Opened::done);
    EXPECT_EQ(newer->identity(), (StagedProgram::Identity{u"org.ambrelle.Ambrelle"_s, u"2.0"_s}));
    EXPECT_TRUE(newer->starts(u"2.0"_s, {}));
    EXPECT_FALSE(newer->starts(u"2"_s, {}));
    EXPECT_FALSE(newer->exchange(u"2.0"_s, u"2.0"_s));
    ASSERT_TRUE(newer->exchange(u"1.0"_s, u"2.0"_s));
    EXPECT_EQ(program.version().trimmed(), PlainProgram::information(u"2.0"_s));
    struct stat status { };
    EXPECT_EQ(::stat(qPrintable(program.root()), &status), 0);
    EXPECT_EQ(status.st_mode & 0777, 0750U);
    newer.reset();
    EXPECT_TRUE(QFileInfo::exists(program.work() + u"/journal.json"_s)) << "the way back";
    EXPECT_FALSE(folder.stage(Purpose::update)) << "one update after the other";

    EXPECT_TRUE(Probation::confirm(program.path(), u"2.0"_s));
    EXPECT_FALSE(Probation::undo(program.path()));
    Probation::settle(program.path(), u"2.0"_s);
    EXPECT_EQ(program.entries(), QStringList{u"Ambrelle"_s});
}

TEST_F(FolderStagingTest, TheHelperGetsWhatItNeedsAndNothingElse)
{
    const test::Variable secret("AMBRELLE_SECRET", "42");
    const test::Variable preloaded("LD_BIND_NOW", "1");
    const auto newer = staged("(echo \"$@\" | sed 's|/proc/[0-9]*/fd/[0-9]*|SIGNATURE|; s|^/.*update-[^ ]*|FOLDER|'\n"
                              "cat \"$2\"; tr '\\0' '\\n' < /proc/self/environ | grep -v ^PWD=) > told\n"
                              "yes | head -c 3000000\n");
    ASSERT_EQ(newer->open(seal, {}), Opened::done);
    EXPECT_EQ(program.home.read(QDir(program.home.path()).relativeFilePath(newer->folder()) + u"/told"_s),
        "FOLDER SIGNATURE a comment K1 K2\nlines\nof it");
}

TEST_F(FolderStagingTest, WhatIsNotAWholeProgramIsLeftAlone)
{
    EXPECT_EQ(opened("exit 3"), Opened::otherRelease);
    EXPECT_EQ(opened("exit 1"), Opened::refused);
    EXPECT_EQ(opened("kill -SEGV $$"), Opened::refused);
    EXPECT_EQ(opened("touch half; ulimit -t 1; while :; do :; done"), Opened::refused) << "it took too much time";
    EXPECT_EQ(folder.stage(Purpose::update)->open(seal, {}), Opened::refused) << "there is no archive";
    const QByteArray whole = PlainProgram::archive(u"2.0"_s);
    struct Case {
        QByteArray archive;
        bool isKnown;
        bool starts;
    };
    for (const Case& c : {
             Case{whole, true, true},
             Case{whole + "mv ../Ambrelle ../Zebra; mkdir ../Ambrelle ../Bear; touch ../Aardvark", true, true},
             Case{"mkdir Ambrelle", false, false},
             Case{whole + "rm share/ambrelle/*.json", false, false},
             Case{whole + "rm bin/ambrelle; ln -s /bin/true bin/ambrelle", false, false},
             Case{whole + "echo { > share/ambrelle/org.ambrelle.Ambrelle.json", false, true},
             Case{whole + "chmod -x bin/ambrelle", true, false},
             Case{PlainProgram::archive(u"2.0"_s, "echo Ambrelle 2.0; exit 1"), true, false},
             Case{PlainProgram::archive(u"2.0"_s, "echo Ambrelle 2.0; kill -ABRT $$"), true, false},
             Case{PlainProgram::archive(u"2.0"_s, "yes Ambrelle 2.0 | head -c 9000"), true, false},
         }) {
        const auto newer = staged(c.archive);
        EXPECT_EQ(newer->open(seal, {}), Opened::done);
        EXPECT_EQ(newer->identity().has_value(), c.isKnown) << c.archive.constData();
        EXPECT_EQ(newer->starts(u"2.0"_s, {}), c.starts) << c.archive.constData();
    }
    EXPECT_EQ(program.entries(), QStringList{u"Ambrelle"_s}) << "nothing stays of what did not take the place";
}

TEST_F(FolderStagingTest, StopsAtOnceWithWhatItRuns)
{
    for (const char* archive : {"echo $$ > pid; exec sleep 1000", "echo $$ > pid; while :; do echo x; done"}) {
        const auto newer = staged(archive);
        const QString note = QDir(program.home.path()).relativeFilePath(newer->folder() + u"/pid"_s);
        std::stop_source stop;
        std::thread asker([&] {
            while (program.home.read(note).trimmed().isEmpty())
                std::this_thread::yield();
            stop.request_stop();
        });
        EXPECT_EQ(newer->open(seal, stop.get_token()), Opened::refused);
        asker.join();
        EXPECT_EQ(::kill(program.home.read(note).trimmed().toInt(), 0), -1) << archive;
    }
}

TEST_F(FolderStagingTest, AnotherProgramAtThePlaceIsNotReplaced)
{
    const auto newer = staged(PlainProgram::archive(u"2.0"_s));
    ASSERT_EQ(newer->open(seal, {}), Opened::done);
    program.home.write(u"Ambrelle/notes.txt"_s, "mine");
    EXPECT_FALSE(newer->exchange(u"1.0"_s, u"2.0"_s));
    EXPECT_FALSE(QFileInfo::exists(program.work() + u"/journal.json"_s));
    EXPECT_FALSE(folder.stage(Purpose::update));
}

TEST_F(FolderStagingTest, WhatCouldNotBeReplacedInItsTurnDoesNotTakeThePlace)
{
    for (const char* change : {"mkdir games", "touch .directory", "rm share/ambrelle/files.txt", "rm -r lib",
             "rm lib/ambrelle/ambrelle-update", "chmod -x lib/ambrelle/ambrelle-update", "mv share s; ln -s s share"}) {
        const auto newer = staged(PlainProgram::archive(u"2.0"_s) + change);
        ASSERT_EQ(newer->open(seal, {}), Opened::done);
        EXPECT_FALSE(newer->exchange(u"1.0"_s, u"2.0"_s)) << change;
        EXPECT_FALSE(QFileInfo::exists(program.work() + u"/journal.json"_s)) << change;
    }
    EXPECT_EQ(program.version(), PlainProgram::information(u"1.0"_s));
}

TEST_F(FolderStagingTest, TheArchiveIsNotInTheFolderThatHasToBeEmpty)
{
    const test::Variable place("TMPDIR", QFile::encodeName(program.home.path()));
    for (const Purpose purpose : {Purpose::update, Purpose::rehearsal}) {
        const auto newer = staged({}, purpose);
        const QString link = QFile::symLinkTarget(u"/proc/self/fd/%1"_s.arg(newer->archive()));
        const QString expected = purpose == Purpose::update ? program.work() : program.home.path();
        EXPECT_EQ(QFileInfo(link).path(), expected) << qPrintable(link);
        struct stat status { };
        EXPECT_EQ(::fstat(newer->archive(), &status), 0);
        EXPECT_EQ(status.st_nlink, 0U) << "somebody could put another one into its place";
    }
}

TEST_F(FolderStagingTest, WhereNothingCanBeStagedNoWorkFolderStays)
{
    const QByteArray work = QFile::encodeName(program.work());
    ASSERT_TRUE(WorkFolder::make(program.root()));
    // No more entries: a full disk, as far as a test can have one.
    const pid_t child = ::fork();
    if (child == 0) {
        const bool became = ::geteuid() != 0
            || (::chmod(qPrintable(program.home.path()), 0777) == 0 && ::chown(work.constData(), 1234, 1234) == 0
                && ::setresuid(1234, 1234, 1234) == 0);
        if (!became || ::chmod(work.constData(), 0500) != 0)
            ::_exit(2);
        ::_exit(
            FolderStaging::beside(ProgramRoot::of(program.path()).value(), WorkFolder::open(program.root())) ? 1 : 0);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(program.entries(), QStringList{u"Ambrelle"_s});
}

TEST_F(FolderStagingTest, ARehearsalStaysInTheFolderForTemporaryFiles)
{
    const test::Variable place("TMPDIR", QFile::encodeName(program.home.path()));
    QString kept;
    for (const bool keep : {false, true}) {
        const auto newer = staged(PlainProgram::archive(u"2.0"_s), Purpose::rehearsal);
        ASSERT_EQ(newer->open(seal, {}), Opened::done);
        EXPECT_TRUE(newer->starts(u"2.0"_s, {}));
        EXPECT_FALSE(newer->exchange(u"1.0"_s, u"2.0"_s)) << "it is for looking at only";
        static const QRegularExpression expected(u"^Ambrelle-update-[0-9A-F]{8}(-[0-9A-F]{4}){3}-[0-9A-F]{12}$"_s);
        EXPECT_TRUE(expected.match(QFileInfo(newer->folder()).fileName()).hasMatch()) << qPrintable(newer->folder());
        kept = QFileInfo(newer->folder()).fileName();
        if (keep)
            newer->keep();
    }
    EXPECT_EQ(program.entries(), (QStringList{u"Ambrelle"_s, kept}));
}

TEST_F(FolderStagingTest, LeftoversOfAKilledProgramAreGoneWithTheNextUpdate)
{
    program.home.write(u".Ambrelle.update/Ambrelle-update-1/Ambrelle/bin/ambrelle"_s, "half");
    program.home.write(u".Ambrelle.update/.ambrelle-part"_s, "half");
    ASSERT_EQ(::chmod(qPrintable(program.work()), 0700), 0);
    const auto newer = staged({});
    EXPECT_EQ(QDir(program.work()).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot),
        QStringList{QFileInfo(newer->folder()).fileName()});
}

TEST_F(FolderStagingTest, WhereNothingCanBeWrittenNothingIsBegun)
{
    // Without the rights of the superuser, who may write everywhere.
    ASSERT_EQ(::chmod(qPrintable(program.home.path()), 0755), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const bool became =
            ::geteuid() != 0 ? ::chmod(qPrintable(program.home.path()), 0555) == 0 : ::setresuid(1234, 1234, 1234) == 0;
        ::_exit(became && !folder.isWritable() && !folder.stage(Purpose::update) ? 0 : 1);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    ASSERT_EQ(::chmod(qPrintable(program.home.path()), 0700), 0);
    EXPECT_EQ(program.entries(), QStringList{u"Ambrelle"_s});
}

} // namespace
} // namespace ambrelle
