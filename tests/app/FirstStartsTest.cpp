// SPDX-License-Identifier: MIT

#include "app/FirstStarts.h"
#include "app/Information.h"
#include "foundation/ManualClock.h"
#include "foundation/UserDefaults.h"
#include "platform/linux/update/PlainProgram.h"
#include "platform/linux/update/WorkFolder.h"
#include "support/WaitUntil.h"

#include <QCoreApplication>

#include <sys/wait.h>
#include <unistd.h>

namespace ambrelle {
namespace {

using namespace std::chrono_literals;

/// This version, where it has just taken the place of an older one.
struct FirstStartsTest : testing::Test {
    void SetUp() override
    {
        LinuxProgramFolder folder(ProgramRoot::of(program.path()).value(), {});
        const auto newer = folder.stage(ProgramFolder::Purpose::update);
        const QByteArray archive = test::PlainProgram::archive(version);
        ASSERT_EQ(::write(newer->archive(), archive.constData(), static_cast<size_t>(archive.size())), archive.size());
        ASSERT_EQ(newer->open({}, {}), StagedProgram::Opened::done);
        ASSERT_TRUE(newer->exchange(older, version));
    }

    FirstStarts start() const { return FirstStarts(program.path(), nullptr); }
    std::optional<FolderJournal> journal() const
    {
        const auto work = WorkFolder::open(program.root());
        return work ? FolderJournal::read(*work) : std::nullopt;
    }
    bool isSettled() const
    {
        return waitUntil([this] { return program.entries() == QStringList{u"Ambrelle"_s}; });
    }

    const QString version = Information::read().version;
    const QString older = u"0.0.1"_s;
    test::PlainProgram program{older};
    ManualClock clock;
    UserDefaults defaults = UserDefaults::temporary();
};

TEST_F(FirstStartsTest, OnlyAnEndThatSomebodyAskedForConfirms)
{
    program.home.writeScript(
        QFileInfo(program.work()).fileName() + u'/' + journal()->copy + u"/bin/ambrelle"_s, "exit 7");
    {
        const FirstStarts complains = start();
        EXPECT_EQ(journal()->attempts, 1);
    }
    {
        FirstStarts losesItsDisplay = start();
        losesItsDisplay.proceed(clock, defaults);
        clock.advance(9s);
        losesItsDisplay.end(false);
    }
    EXPECT_EQ(journal()->attempts, 2);
    EXPECT_FALSE(journal()->isRejected) << "the guard took it for a crash";
    const pid_t child = ::fork();
    if (child == 0) {
        const FirstStarts third = start();
        ::_exit(0);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(WEXITSTATUS(status), 7) << "it is the former version's turn";
    EXPECT_TRUE(journal()->isRejected);
}

TEST_F(FirstStartsTest, WhoIsAskedToEndGetsThrough)
{
    start(); // and complains: the next start is the last one that is allowed
    start().end(true);
    EXPECT_FALSE(journal());
    EXPECT_EQ(program.version().trimmed(), test::PlainProgram::information(version));
}

TEST_F(FirstStartsTest, WhatCannotBeSettledYetIsTriedAgain)
{
    program.home.write(QFileInfo(program.work()).fileName() + u'/' + journal()->copy + u"/note"_s, "mine");
    const QString kept = u"Ambrelle before "_s + version;
    program.home.write(kept + u"/full"_s, {});
    for (int i = 2; i <= 100; ++i)
        program.home.write(kept + u" (%1)/full"_s.arg(i), {});
    FirstStarts newcomer = start();
    newcomer.proceed(clock, defaults);
    clock.advance(FirstStarts::probationTime);
    EXPECT_TRUE(waitUntil([this] {
        return program.home.read(u".Ambrelle.update/journal.json"_s).contains("\"confirmed\": true");
    })) << "there is no place for the user's files, but it has stood its time";
    QDir(program.home.filePath(kept)).removeRecursively();
    EXPECT_TRUE(waitUntil([&] {
        clock.advance(FirstStarts::retryTime);
        return !QFileInfo::exists(program.work());
    }));
    EXPECT_EQ(program.home.read(kept + u"/note"_s), "mine");
}

TEST_F(FirstStartsTest, ARejectionIsKeptUntilTheSettingsHaveIt)
{
    // This version as the former one, as it finds itself after the newer one did not get through.
    {
        const auto work = WorkFolder::open(program.root());
        const FolderJournal rejected{
            .from = version, .to = u"9999.0"_s, .copy = FolderJournal::read(*work)->copy, .isRejected = true};
        ASSERT_TRUE(rejected.write(*work));
    }
    UserDefaults refusing(u"/dev/null/defaults.json"_s);
    FirstStarts former = start();
    EXPECT_EQ(former.rejectedVersion(refusing), u"9999.0"_s);
    former.proceed(clock, refusing);
    former.end(true);
    EXPECT_TRUE(journal()) << "the next start would try that version again";

    FirstStarts next = start();
    next.proceed(clock, defaults);
    EXPECT_TRUE(isSettled());
    EXPECT_EQ(next.rejectedVersion(defaults), u"9999.0"_s);
}

} // namespace
} // namespace ambrelle
