// SPDX-License-Identifier: MIT

#include "app/SingleInstance.h"

#include "support/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QLocalSocket>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <sys/wait.h>
#include <thread>
#include <unistd.h>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using Role = SingleInstance::Role;

struct SingleInstanceTest : ::testing::Test {
    QTemporaryDir temporary;
    QString folder = temporary.filePath(u"ambrelle"_s);
    QList<StartRequest> heard;

    void hear(SingleInstance& instance)
    {
        QObject::connect(&instance, &SingleInstance::activated, &instance,
            [this](const StartRequest& request) { heard.append(request); });
    }
    /// Runs a second start in a thread of its own, and the first meanwhile.
    bool second(const StartRequest& request) const
    {
        std::atomic<int> result = -1;
        std::thread other([&] {
            SingleInstance instance(folder);
            result = instance.role() == Role::second && instance.handOver(request, 3000);
        });
        while (result < 0)
            QCoreApplication::processEvents(QEventLoop::AllEvents, 10);
        other.join();
        QCoreApplication::processEvents();
        return result == 1;
    }
    /// What comes back for raw bytes, until the first closes the connection.
    QByteArray send(const QByteArray& bytes) const
    {
        QLocalSocket socket;
        socket.connectToServer(folder + u"/socket"_s);
        socket.write(bytes);
        EXPECT_TRUE(waitUntil([&socket] { return socket.state() == QLocalSocket::UnconnectedState; }));
        return socket.readAll();
    }
};

TEST_F(SingleInstanceTest, HandsOverWhatItWasStartedFor)
{
    SingleInstance first(folder);
    ASSERT_EQ(first.role(), Role::first);
    ASSERT_TRUE(first.listen());
    hear(first);
    EXPECT_TRUE(second({.files = {u"my theme.ambrelle"_s, u"/tmp/\u00E9.ambrelle"_s}}));
    EXPECT_TRUE(second({.action = u"edit"_s, .token = u"host_TIME12"_s}));
    const QList<StartRequest> expected{
        {.files = {QDir::current().absoluteFilePath(u"my theme.ambrelle"_s), u"/tmp/\u00E9.ambrelle"_s}},
        {.action = u"edit"_s, .token = u"host_TIME12"_s}};
    EXPECT_EQ(heard, expected);
}

TEST_F(SingleInstanceTest, WaitsForAFirstThatHasNotOpenedItsSocketYet)
{
    SingleInstance first(folder);
    hear(first);
    QMetaObject::invokeMethod(&first, &SingleInstance::listen, Qt::QueuedConnection);
    EXPECT_TRUE(second({.files = {u"/a"_s}}));
    EXPECT_EQ(heard.size(), 1);
}

TEST_F(SingleInstanceTest, TakesOverFromAKilledProgramWhateverItLeft)
{
    const pid_t child = ::fork();
    if (child == 0) {
        auto* killed = new SingleInstance(folder);
        ::_exit(killed->role() == Role::first && killed->listen() ? 0 : 1);
    }
    int status = -1;
    ASSERT_EQ(::waitpid(child, &status, 0), child);
    ASSERT_EQ(WEXITSTATUS(status), 0);
    ASSERT_TRUE(QFileInfo::exists(folder + u"/socket"_s)) << "a stale socket is what this is about";
    SingleInstance next(folder);
    EXPECT_EQ(next.role(), Role::first);
    EXPECT_TRUE(next.listen());
    hear(next);
    EXPECT_TRUE(second({.files = {u"/a"_s}}));
}

TEST_F(SingleInstanceTest, FollowsAFirstThatEndsInsteadOfAnswering)
{
    for (const bool listens : {true, false}) {
        auto first = std::make_unique<SingleInstance>(folder);
        ASSERT_EQ(first->role(), Role::first);
        ASSERT_TRUE(!listens || first->listen());
        SingleInstance next(folder);
        ASSERT_EQ(next.role(), Role::second);
        bool handedOver = true;
        std::thread other([&] { handedOver = next.handOver({.files = {u"/a"_s}}, 10000); });
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        first.reset();
        other.join();
        EXPECT_FALSE(handedOver);
        EXPECT_EQ(next.role(), Role::first);
    }
}

TEST_F(SingleInstanceTest, DropsMessagesThatAreNone)
{
    SingleInstance first(folder);
    ASSERT_TRUE(first.listen());
    hear(first);
    EXPECT_EQ(send("open the door\n"), QByteArray());
    EXPECT_EQ(send(QByteArray(SingleInstance::longestMessage + 10, '[')), QByteArray());
    EXPECT_TRUE(heard.isEmpty());
    EXPECT_EQ(send("[\"relative\", 7, \"/absolute\"]\n"), "+");
    EXPECT_EQ(heard, (QList<StartRequest>{{.files = {u"/absolute"_s}}}));
}

TEST_F(SingleInstanceTest, KeepsToAPrivateFolder)
{
    {
        const SingleInstance first(folder);
        const auto others =
            QFile::ReadGroup | QFile::WriteGroup | QFile::ReadOther | QFile::WriteOther | QFile::ExeOther;
        EXPECT_FALSE(QFile::permissions(folder) & others);
    }
    const QString linked = temporary.filePath(u"linked"_s);
    ASSERT_TRUE(QFile::link(folder, linked));
    EXPECT_EQ(SingleInstance(linked).role(), Role::alone) << "somebody may have put the link there";
    EXPECT_EQ(SingleInstance(u"/proc/nowhere/ambrelle"_s).role(), Role::alone);
}

} // namespace
} // namespace ambrelle
