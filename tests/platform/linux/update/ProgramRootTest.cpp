// SPDX-License-Identifier: MIT

#include "PlainProgram.h"
#include "platform/linux/update/FolderJournal.h"
#include "platform/linux/update/Probation.h"
#include "platform/linux/update/WorkFolder.h"

#include <cstdlib>
#include <functional>

#include <sys/stat.h>
#include <unistd.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

TEST(ProgramRootTest, OnlyAFolderOfItsOwnIsReplaced)
{
    struct Case {
        const char* what;
        std::function<void(const test::PlainProgram&)> change;
        bool isRoot;
        bool isReplaceable;
    };
    const auto removed = [](const char* name) {
        return
            [name](const test::PlainProgram& it) { EXPECT_TRUE(QFile::remove(it.root() + QLatin1StringView(name))); };
    };
    const auto added = [](const char* name) {
        return [name](const test::PlainProgram& it) { it.home.write(u"Ambrelle/"_s + QLatin1StringView(name), {}); };
    };
    for (const Case& c : {
             Case{"as it was unpacked", [](const test::PlainProgram&) {}, true, true},
             Case{"a file of the user within", added("share/notes.txt"), true, true},
             Case{"among other folders", added("games/nethack"), false},
             Case{"a file of the user beside", added("notes.txt"), true},
             Case{"what a file manager leaves", added(".directory"), true},
             Case{"no helper", removed("/lib/ambrelle/ambrelle-update"), true},
             Case{"something hidden", added(".git/config"), false},
             Case{"no list of its files", removed("/share/ambrelle/files.txt"), false},
             Case{"the list is a link",
                 [](const test::PlainProgram& it) {
                     const QString list = it.root() + u"/share/ambrelle/files.txt"_s;
                     EXPECT_TRUE(
                         QFile::rename(list, it.home.filePath(u"list"_s)) && QFile::link(u"/etc/passwd"_s, list));
                 },
                 false},
         }) {
        const test::PlainProgram program;
        c.change(program);
        EXPECT_EQ(ProgramRoot::of(program.path()).has_value(), c.isRoot) << c.what;
        EXPECT_EQ(isReplaceable(program.root()), c.isReplaceable) << c.what;
    }
    const test::PlainProgram program;
    EXPECT_FALSE(ProgramRoot::of(program.root() + u"/bin/other"_s));
    EXPECT_FALSE(ProgramRoot::of(program.root() + u"/lib/ambrelle/ambrelle-update"_s));
    EXPECT_FALSE(ProgramRoot::of(QString()));
    EXPECT_FALSE(ProgramRoot::of(u"bin/ambrelle"_s));
}

TEST(ProgramRootTest, AnotherFolderAtItsPlaceIsNotIt)
{
    const test::PlainProgram program;
    const ProgramRoot root = ProgramRoot::of(program.path()).value();
    EXPECT_TRUE(root.isUnchanged());
    ASSERT_TRUE(QFile::rename(program.root(), program.home.filePath(u"old"_s)));
    EXPECT_FALSE(root.isUnchanged());
    ASSERT_EQ(std::system(qPrintable(u"cp -r '%1/old' '%1/Ambrelle'"_s.arg(program.home.path()))), 0);
    EXPECT_TRUE(ProgramRoot::of(program.path()));
    EXPECT_FALSE(root.isUnchanged()) << "another updater was here";
}

TEST(WorkFolderTest, IsOursAloneAndOfOneAtATime)
{
    const test::PlainProgram program;
    const QByteArray path = QFile::encodeName(program.work());
    EXPECT_FALSE(WorkFolder::exists(program.root()) || WorkFolder::open(program.root()));
    {
        const auto work = WorkFolder::make(program.root());
        ASSERT_TRUE(work);
        struct stat status { };
        ASSERT_EQ(::stat(path.constData(), &status), 0);
        EXPECT_EQ(status.st_mode & 0777, 0700U);
        EXPECT_FALSE(WorkFolder::make(program.root())) << "somebody works in it";
    }
    EXPECT_TRUE(WorkFolder::open(program.root()));
    for (const mode_t mode : {0770, 0702, 0705}) {
        ASSERT_EQ(::chmod(path.constData(), mode), 0);
        EXPECT_FALSE(WorkFolder::make(program.root())) << "others may see or write it: " << mode;
    }
    ASSERT_EQ(::chmod(path.constData(), 0700), 0);
    if (::geteuid() == 0) {
        ASSERT_EQ(::chown(path.constData(), 1234, 1234), 0);
        EXPECT_FALSE(WorkFolder::make(program.root())) << "it is another user's";
    }
    ASSERT_EQ(::rmdir(path.constData()), 0);
    ASSERT_TRUE(QDir().mkdir(program.home.filePath(u"trap"_s)));
    ASSERT_EQ(::symlink("trap", path.constData()), 0);
    EXPECT_FALSE(WorkFolder::make(program.root())) << "it is a link";
    EXPECT_TRUE(WorkFolder::exists(program.root()));
}

TEST(FolderJournalTest, IsReadAsWritten)
{
    const test::PlainProgram program;
    const auto work = WorkFolder::make(program.root());
    EXPECT_FALSE(FolderJournal::read(*work));
    const FolderJournal journal{.from = u"1.0"_s,
        .to = u"1.10"_s,
        .copy = u"a b/Ambrelle"_s,
        .attempts = 1,
        .isRejected = true,
        .isConfirmed = true};
    ASSERT_TRUE(journal.write(*work));
    EXPECT_EQ(FolderJournal::read(*work), journal);
    EXPECT_TRUE(FolderJournal::remove(*work) && FolderJournal::remove(*work));
    EXPECT_FALSE(FolderJournal::read(*work));
    for (const char* text :
        {"", "{", "[]", "{}", R"({"from": "1", "copy": "a"})", R"({"from": 1, "to": "2", "copy": "a"})",
            R"({"from": "1", "to": "2", "copy": "../Ambrelle"})", R"({"from": "1", "to": "2", "copy": "a/../../b"})",
            R"({"from": "1", "to": "2", "copy": "/usr"})", R"({"from": "1", "to": "2"})"}) {
        program.home.write(u".Ambrelle.update/journal.json"_s, text);
        EXPECT_FALSE(FolderJournal::read(*work)) << text;
    }
}

TEST(ProbationTest, TheJournalTellsOnWhichSideOfTheExchangeThingsAre)
{
    using Probation::Step;
    struct Case {
        const char* version;
        int attempts;
        bool isRejected;
        Step step;
        bool isConfirmed = false;
    };
    for (const Case& c : {
             Case{"1.0", 0, false, Step::clear}, // killed before the exchange
             Case{"1.0", 2, true, Step::tellRejection},
             Case{"2.0", 0, false, Step::watch},
             Case{"2.0", 1, false, Step::watch}, // a power cut in the first seconds
             Case{"2.0", 2, false, Step::rollBack},
             Case{"2.0", 0, true, Step::rollBack}, // the guard was killed on its way
             Case{"2.0", 2, false, Step::clear, true},
             Case{"3.0", 1, false, Step::clear}, // somebody unpacked another one
             Case{"3.0", 1, true, Step::clear},
         }) {
        const FolderJournal journal{.from = u"1.0"_s,
            .to = u"2.0"_s,
            .attempts = c.attempts,
            .isRejected = c.isRejected,
            .isConfirmed = c.isConfirmed};
        EXPECT_EQ(Probation::nextStep(journal, QString::fromLatin1(c.version)), c.step)
            << c.version << ' ' << c.attempts << ' ' << c.isRejected;
    }
}

} // namespace
} // namespace ambrelle
