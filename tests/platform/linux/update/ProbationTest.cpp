// SPDX-License-Identifier: MIT

#include "platform/linux/update/Probation.h"
#include "platform/linux/update/FolderExchange.h"
#include "platform/linux/update/ProbationGuard.h"
#include "StagingHome.h"

#include <array>
#include <functional>
#include <thread>

#include <sys/wait.h>
#include <unistd.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;
using test::PlainProgram;

/// Where a newer version has just taken the place.
struct ReplacedProgram : test::StagingHome {
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
