// SPDX-License-Identifier: MIT

#include "platform/linux/update/FolderStaging.h"
#include "PlainProgram.h"
#include "platform/linux/update/FolderExchange.h"
#include "platform/linux/update/Probation.h"
#include "platform/linux/update/ProbationGuard.h"
#include "support/Variable.h"

#include <QRegularExpression>

#include <array>
#include <csignal>
#include <functional>
#include <thread>

#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using Purpose = ProgramFolder::Purpose;
using Opened = StagedProgram::Opened;
using test::PlainProgram;

const StagedProgram::Seal seal{.signature = "lines\nof it", .keys = {u"K1"_s, u"K2"_s}, .comment = u"a comment"_s};

struct FolderStagingTest : testing::Test {
    PlainProgram program;
    LinuxProgramFolder folder{ProgramRoot::of(program.path()).value(), u"0.9"_s};

    std::unique_ptr<StagedProgram> staged(const QByteArray& archive, Purpose purpose = Purpose::update)
    {
        auto staged = folder.stage(purpose);
        EXPECT_TRUE(staged);
        const int descriptor = staged ? staged->archive() : -1;
        // The position stays at the end: whoever reads it has to begin at the start.
        EXPECT_EQ(::write(descriptor, archive.constData(), static_cast<size_t>(archive.size())), archive.size());
        return staged;
    }
    Opened opened(const QByteArray& archive) { return staged(archive)->open(seal, {}); }
};

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

/// Where a newer version has just taken the place.
struct ReplacedProgram : FolderStagingTest {
    void SetUp() override
    {
        const auto newer = staged(PlainProgram::archive(u"2.0"_s));
        ASSERT_EQ(newer->open(seal, {}), Opened::done);
        if (!foreign.isEmpty())
            program.home.write(foreign, "mine");
        ASSERT_TRUE(newer->exchange(u"1.0"_s, u"2.0"_s));
    }
    void journal(const std::function<void(FolderJournal&)>& change) const
    {
        const auto work = WorkFolder::open(program.root());
        FolderJournal journal = FolderJournal::read(*work).value();
        change(journal);
        ASSERT_TRUE(journal.write(*work));
    }
    QString foreign;
};

TEST_F(ReplacedProgram, GivesThePlaceBack)
{
    EXPECT_TRUE(Probation::undo(program.path()));
    EXPECT_EQ(program.version(), PlainProgram::information(u"1.0"_s));
    EXPECT_FALSE(Probation::undo(program.path())) << "it would put the newer one there again";
    EXPECT_FALSE(Probation::confirm(program.path(), u"1.0"_s));
    const Probation::Found found = Probation::begin(program.path(), u"1.0"_s, nullptr);
    EXPECT_EQ(found.what, Probation::Found::What::rejection);
    EXPECT_EQ(found.version, u"2.0"_s);
    Probation::settle(program.path(), u"1.0"_s);
    EXPECT_EQ(program.entries(), QStringList{u"Ambrelle"_s});
    EXPECT_EQ(Probation::begin(program.path(), u"1.0"_s, nullptr).what, Probation::Found::What::nothing);
}

TEST_F(ReplacedProgram, WithoutAWayBackTheNewerOneGoesOn)
{
    {
        const auto work = WorkFolder::open(program.root());
        FolderJournal journal = FolderJournal::read(*work).value();
        journal.attempts = 9;
        ASSERT_TRUE(journal.write(*work));
        ASSERT_TRUE(QFile::remove(work->path() + u'/' + journal.copy + u"/bin/ambrelle"_s));
    }
    EXPECT_EQ(Probation::begin(program.path(), u"2.0"_s, nullptr).what, Probation::Found::What::leftovers);
    Probation::settle(program.path(), u"2.0"_s);
    EXPECT_EQ(program.entries(), QStringList{u"Ambrelle"_s});
    EXPECT_EQ(program.version().trimmed(), PlainProgram::information(u"2.0"_s));
}

TEST_F(ReplacedProgram, TheNextUpdateWaitsUntilThisOneIsSettled)
{
    std::thread settling([this] {
        std::this_thread::sleep_for(100ms);
        Probation::settle(program.path(), u"2.0"_s);
    });
    const LinuxProgramFolder newer(ProgramRoot::of(program.path()).value(), {});
    newer.awaitSettled({});
    EXPECT_FALSE(QFileInfo::exists(program.work() + u"/journal.json"_s));
    settling.join();

    program.home.write(u".Ambrelle.update/journal.json"_s, {});
    std::stop_source stop;
    stop.request_stop();
    newer.awaitSettled(stop.get_token()); // or it would take long
}

TEST_F(ReplacedProgram, AFileBesideTheProgramsChangesNothingOfThat)
{
    program.home.write(u"Ambrelle/.directory"_s, "mine");
    EXPECT_EQ(Probation::begin(program.path(), u"2.0"_s, nullptr).what, Probation::Found::What::newcomer);
    ProbationGuard::dismiss();
    EXPECT_TRUE(Probation::undo(program.path(), 1));
    EXPECT_EQ(Probation::begin(program.path(), u"1.0"_s, nullptr).what, Probation::Found::What::rejection);
    EXPECT_TRUE(Probation::settle(program.path(), u"1.0"_s));
    EXPECT_EQ(program.entries(), (QStringList{u"Ambrelle"_s, u"Ambrelle 2.0"_s}));
    EXPECT_EQ(program.home.read(u"Ambrelle 2.0/.directory"_s), "mine");
}

TEST_F(ReplacedProgram, ALaterStartIsJudgedByItself)
{
    journal([](FolderJournal& it) { it.attempts = 2; });
    EXPECT_FALSE(Probation::undo(program.path(), 1)) << "the second start runs in the folder";
    EXPECT_TRUE(Probation::undo(program.path(), 2));
}

TEST_F(ReplacedProgram, ARejectedOneIsNotSettledByItself)
{
    EXPECT_TRUE(Probation::undo(program.path()));
    const QStringList before = program.entries();
    EXPECT_TRUE(Probation::settle(program.path(), u"2.0"_s)) << "there is nothing to be done for it";
    EXPECT_EQ(program.entries(), before);
    EXPECT_EQ(Probation::begin(program.path(), u"1.0"_s, nullptr).what, Probation::Found::What::rejection);
}

TEST_F(ReplacedProgram, AStartWaitsForWhoGivesThePlaceBack)
{
    auto work = WorkFolder::open(program.root());
    const FolderJournal begun = FolderJournal::read(*work).value();
    program.home.writeScript(
        u".Ambrelle.update/"_s + begun.copy + u"/bin/ambrelle"_s, "echo $1 > \"${0%/*}/../../told\"");
    const pid_t child = ::fork();
    if (child == 0) {
        QByteArray name = "ambrelle";
        QByteArray word = "word";
        std::array<char*, 3> arguments{name.data(), word.data(), nullptr};
        work.reset(); // its own copy of the descriptor
        Probation::begin(program.path(), u"2.0"_s, arguments.data());
        ::_exit(9);
    }
    std::this_thread::sleep_for(200ms);
    EXPECT_EQ(::waitpid(child, nullptr, WNOHANG), 0) << "it does not wait";
    EXPECT_TRUE(bringFormerBack(program.root(), *work, begun));
    work.reset();
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    EXPECT_EQ(program.home.read(u"told"_s), "word\n") << "it has to become the one that stands there";
    EXPECT_EQ(program.version(), PlainProgram::information(u"1.0"_s));
}

TEST_F(ReplacedProgram, ANewerOneThatWasPutThereAgainByHandIsNoFormerOne)
{
    EXPECT_TRUE(Probation::undo(program.path()));
    program.home.write(u"Ambrelle/share/ambrelle/org.ambrelle.Ambrelle.json"_s, PlainProgram::information(u"2.0"_s));
    EXPECT_EQ(Probation::begin(program.path(), u"2.0"_s, nullptr).what, Probation::Found::What::leftovers);
}

TEST_F(ReplacedProgram, ADamagedJournalLeadsNowhere)
{
    program.home.write(u".Ambrelle.update/journal.json"_s, "{");
    EXPECT_FALSE(Probation::undo(program.path()));
    EXPECT_EQ(Probation::begin(program.path(), u"2.0"_s, nullptr).what, Probation::Found::What::leftovers);
}

struct UserFileTest : ReplacedProgram {
    UserFileTest() { foreign = u"Ambrelle/share/my notes/list.txt"_s; }
};

TEST_F(UserFileTest, StaysWithTheFormerProgram)
{
    program.home.write(u"Ambrelle before 2.0/other"_s, "of an earlier time");
    Probation::settle(program.path(), u"2.0"_s);
    EXPECT_EQ(program.entries(), (QStringList{u"Ambrelle"_s, u"Ambrelle before 2.0"_s, u"Ambrelle before 2.0 (2)"_s}));
    EXPECT_EQ(program.home.read(u"Ambrelle before 2.0 (2)/share/my notes/list.txt"_s), "mine");
    EXPECT_EQ(program.home.read(u"Ambrelle before 2.0/other"_s), "of an earlier time");
}

TEST_F(UserFileTest, WhereItCannotBeKeptTheNewerOneIsConfirmedAllTheSame)
{
    program.home.write(u"Ambrelle before 2.0/full"_s, {});
    for (int i = 2; i <= 100; ++i)
        program.home.write(u"Ambrelle before 2.0 (%1)/full"_s.arg(i), {});
    EXPECT_FALSE(Probation::settle(program.path(), u"2.0"_s));
    for (int start = 0; start < 4; ++start)
        EXPECT_EQ(Probation::begin(program.path(), u"2.0"_s, nullptr).what, Probation::Found::What::leftovers);
    EXPECT_FALSE(Probation::undo(program.path()));
    ASSERT_TRUE(QDir(program.home.filePath(u"Ambrelle before 2.0 (100)"_s)).removeRecursively());
    EXPECT_TRUE(Probation::settle(program.path(), u"2.0"_s));
    EXPECT_EQ(program.home.read(u"Ambrelle before 2.0 (100)/share/my notes/list.txt"_s), "mine");
}

TEST(ForeignFilesTest, AreAllThatTheListDoesNotName)
{
    const PlainProgram program;
    const auto isForeign = [&] { return hasForeignFiles(program.root()); };
    EXPECT_FALSE(isForeign());
    ASSERT_TRUE(QDir().mkpath(program.root() + u"/share/empty/folders"_s));
    EXPECT_FALSE(isForeign());
    for (const char* target : {"/", "nowhere"}) {
        const QByteArray link = QFile::encodeName(program.root() + u"/share/link"_s);
        ASSERT_EQ(::symlink(target, link.constData()), 0);
        EXPECT_TRUE(isForeign()) << target;
        ASSERT_EQ(::unlink(link.constData()), 0);
    }
    program.home.write(u"Ambrelle/lib/ambrelle/.hidden"_s, {});
    EXPECT_TRUE(isForeign());
    ASSERT_TRUE(QFile::remove(program.root() + u"/lib/ambrelle/.hidden"_s));
    ASSERT_TRUE(QFile::remove(program.root() + u"/share/ambrelle/files.txt"_s));
    EXPECT_TRUE(isForeign()) << "nobody knows";
}

} // namespace
} // namespace ambrelle
