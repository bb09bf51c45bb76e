// SPDX-License-Identifier: MIT

#include "app/Relaunch.h"
#include "app/EndingDeadline.h"
#include "app/Environment.h"
#include "platform/linux/desktop/NamedDisplay.h"
#include "platform/linux/update/PlainProgram.h"
#include "support/TestFolder.h"
#include "support/Variable.h"

#include <string>

#include <sys/wait.h>
#include <unistd.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

/// A process for which a relaunch is due, and whose end hangs. Gives its number, once it is over in good order.
pid_t hangAtTheEnd(const QString& program)
{
    const pid_t child = ::fork();
    if (child == 0) {
        Relaunch::prepare(program);
        EndingDeadline::prepare();
        EndingDeadline::start();
        Relaunch::arrange();
        while (true)
            ::pause();
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
    return child;
}

TEST(RelaunchTest, AnEndThatHangsIsCutShortByIt)
{
    const TestFolder folder;
    const QString program = folder.writeScript(u"Ambrelle/bin/ambrelle"_s,
        "while read -r name mask; do [ $name = SigBlk: ] && echo $# $$ $mask; done < /proc/$$/status > \"$0.told\"\n:");
    const pid_t child = hangAtTheEnd(program);
    EXPECT_EQ(folder.read(u"Ambrelle/bin/ambrelle.told"_s).toStdString(),
        "0 " + std::to_string(child) + " 0000000000000000\n");
}

TEST(RelaunchTest, WhereTheNewerProgramCannotBeStartedTheFormerOneIs)
{
    const test::PlainProgram program;
    LinuxProgramFolder folder(ProgramRoot::of(program.path()).value(), {});
    auto newer = folder.stage(ProgramFolder::Purpose::update);
    const QByteArray archive = test::PlainProgram::archive(u"2.0"_s);
    ASSERT_EQ(::write(newer->archive(), archive.constData(), static_cast<size_t>(archive.size())), archive.size());
    ASSERT_EQ(newer->open({}, {}), StagedProgram::Opened::done);
    program.home.writeScript(u"Ambrelle/bin/ambrelle"_s, "echo $0 > \"$0.told\"");
    ASSERT_TRUE(newer->exchange(u"1.0"_s, u"2.0"_s));
    newer.reset();
    ASSERT_TRUE(QFile::setPermissions(program.path(), QFile::ReadOwner));
    hangAtTheEnd(program.path());
    EXPECT_EQ(program.home.read(u"Ambrelle/bin/ambrelle.told"_s), QFile::encodeName(program.path()) + '\n');
}

TEST(RelaunchTest, ATextConsoleHasNoDisplay)
{
    const test::Variable none("DISPLAY", "");
    const test::Variable neither("WAYLAND_DISPLAY", "");
    EXPECT_FALSE(namesDisplay());
    const test::Variable some("DISPLAY", ":1");
    EXPECT_TRUE(namesDisplay());
}

TEST(RelaunchTest, WhatTheToolkitWasToldIsUntold)
{
    const test::Variable set("QT_QPA_UPDATE_IDLE_TIME", "7");
    const test::Variable other("QT_QPA_PLATFORM", "offscreen");
    qunsetenv("QT_XCB_GL_INTEGRATION");
    {
        Environment environment("xcb", {});
        EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "xcb");
        EXPECT_NE(qgetenv("QT_QPA_UPDATE_IDLE_TIME"), "7");
        environment.restore(); // and no window was ever painted
    }
    EXPECT_EQ(qgetenv("QT_QPA_UPDATE_IDLE_TIME"), "7");
    EXPECT_EQ(qgetenv("QT_QPA_PLATFORM"), "offscreen");
    EXPECT_FALSE(qEnvironmentVariableIsSet("QT_XCB_GL_INTEGRATION"));
}

} // namespace
} // namespace ambrelle
