// SPDX-License-Identifier: MIT

#include "unpacking/UpdateTool.h"
#include "unpacking/ToolLimits.h"
#include "unpacking/Zip.h"

#include <sched.h>
#include <sys/mount.h>
#include <sys/resource.h>
#include <sys/wait.h>
#include <unistd.h>

using namespace Qt::StringLiterals;

namespace ambrelle::test {

namespace {

constexpr int done = 0;
constexpr int refused = 1;
constexpr int wrongUse = 2;
constexpr int otherRelease = 3;
constexpr int notHere = 77; ///< the test cannot run on this machine
constexpr rlim_t mebibyte = 1U << 20;

/// An archive of one file that its list names so many times. The list is read before anything can be judged.
QByteArray listing(int times)
{
    return zipOf({{.name = "A/b"}}, {.repeats = times});
}

struct UpdateToolTest : testing::Test {
    UpdateTool tool;
    const QByteArray good = zipOf(goodItems());
};

} // namespace

TEST_F(UpdateToolTest, UnpacksWhatIsSignedWithPlainModes)
{
    ::umask(077); // the caller's is not the program's
    const UpdateTool::Outcome outcome = tool.unpack(good);
    ::umask(022);
    EXPECT_EQ(outcome.status, done) << outcome.reason.toStdString();
    EXPECT_EQ(outcome.reason, "");
    const auto staged = tool.staged();
    EXPECT_EQ(staged.size(), goodItems().size());
    for (const ZipItem& item : goodItems()) {
        const QString name = QString::fromUtf8(item.name.endsWith('/') ? item.name.chopped(1) : item.name);
        EXPECT_EQ(staged[name], std::pair(item.mode, item.content)) << item.name.toStdString();
    }
    EXPECT_EQ(tool.unpack(zipOf({{.name = "A/b", .mode = 0100770}, {.name = "A/c", .mode = 0100406}})).status, done);
    EXPECT_EQ(tool.staged()[u"A/b"_s].first, 0100755U);
    EXPECT_EQ(tool.staged()[u"A/c"_s].first, 0100644U);
}

TEST_F(UpdateToolTest, TellsHowFarItIs)
{
    const QByteArray content(3 << 20, 'x');
    const auto outcome = tool.unpack(zipOf({{.name = "A/b", .content = content}, {.name = "A/c", .content = content}}));
    ASSERT_EQ(outcome.status, done);
    const QList<QByteArray> lines = outcome.progress.trimmed().split('\n');
    EXPECT_GE(lines.size(), 5);
    EXPECT_LE(lines.size(), 8);
    qint64 before = 0;
    for (const QByteArray& line : lines) {
        ASSERT_EQ(line.split(' ').value(1).toLongLong(), 6 << 20) << line.toStdString();
        EXPECT_GT(line.split(' ')[0].toLongLong(), before);
        before = line.split(' ')[0].toLongLong();
    }
    EXPECT_EQ(before, 6 << 20);
}

TEST_F(UpdateToolTest, WhatIsNotSignedIsNotRead)
{
    const QByteArray signature = tool.key.signatureOf(good, tool.comment);
    const QByteArray stranger = SigningKey().signatureOf(good, tool.comment);
    QByteArray otherBytes = good;
    otherBytes[60] ^= 1;
    for (const auto& [archive, signedBy] :
        {std::pair(otherBytes, signature), {good + '\n', signature}, {good, stranger},
            {good, QByteArray(signature).replace("0.2.0", "0.3.0")}, {good, QByteArray()}, {good, signature + '\n'},
            {good, QByteArray(signature).replace("\n", "\r\n")}, {QByteArray(), signature}}) {
        const auto outcome = tool.unpack(archive, signedBy);
        EXPECT_EQ(outcome.status, refused) << signedBy.toStdString();
        EXPECT_EQ(outcome.reason.count('\n'), 1) << outcome.reason.toStdString();
        EXPECT_TRUE(tool.staged().isEmpty());
    }
}

TEST_F(UpdateToolTest, AnotherReleaseIsToldFromAForgery)
{
    for (const QByteArray comment : {"org.ambrelle.Ambrelle 0.1.0", "org.ambrelle.Other 0.2.0", "",
             "org.ambrelle.Ambrelle 0.2.0 ", "timestamp:1\tfile:x"}) {
        EXPECT_EQ(tool.unpack(good, tool.key.signatureOf(good, comment)).status, otherRelease) << comment.toStdString();
        EXPECT_TRUE(tool.staged().isEmpty());
        EXPECT_EQ(tool.unpack(good, SigningKey().signatureOf(good, comment)).status, refused);
    }
}

TEST_F(UpdateToolTest, AnyOfTheKeysWillDo)
{
    tool.unpack(good);
    const auto with = [this](const QList<QByteArray>& keys) {
        tool.prepare();
        QStringList arguments{tool.folder.filePath(tool.stagedName), tool.folder.filePath(tool.signatureName),
            QString::fromUtf8(tool.comment)};
        for (const QByteArray& key : keys)
            arguments.append(QString::fromUtf8(key));
        return tool.run(arguments).status;
    };
    const QByteArray own = tool.key.publicLine();
    const QByteArray spare = SigningKey().publicLine();
    EXPECT_EQ(with({spare, own}), done);
    EXPECT_EQ(with({own, spare}), done);
    EXPECT_EQ(with({spare}), refused);
    EXPECT_EQ(with({}), wrongUse);
    EXPECT_EQ(with({own, "RWQ"}), wrongUse);
}

TEST_F(UpdateToolTest, WritesOnlyIntoAnEmptyFolderOfItsOwn)
{
    tool.unpack(good);
    const QString staged = tool.folder.filePath(tool.stagedName);
    const auto into = [this](const QString& folder) {
        return tool
            .run({folder, tool.folder.filePath(tool.signatureName), QString::fromUtf8(tool.comment),
                QString::fromUtf8(tool.key.publicLine())})
            .status;
    };
    EXPECT_EQ(into(staged), wrongUse) << "something is in it";
    tool.prepare();
    EXPECT_EQ(into(staged + u"/none"_s), wrongUse);
    EXPECT_EQ(into(tool.folder.filePath(tool.archiveName)), wrongUse);
    QFile::link(staged, tool.folder.filePath(u"link"_s));
    EXPECT_EQ(into(tool.folder.filePath(u"link"_s)), wrongUse);
    ::chmod(QFile::encodeName(staged).constData(), 0770);
    EXPECT_EQ(into(staged), wrongUse) << "others can write there";
    ::chmod(QFile::encodeName(staged).constData(), 0700);
    EXPECT_TRUE(tool.staged().isEmpty());
    tool.input = u"/dev/zero"_s; // has no end
    EXPECT_EQ(into(staged), refused);
    tool.input.clear();
    EXPECT_EQ(into(staged), done);
}

TEST_F(UpdateToolTest, NothingComesOfAFullDisk)
{
    const QByteArray content(1 << 20, 'x');
    const QByteArray archive = zipOf({{.name = "A/b", .content = content}, {.name = "A/c", .content = content}});
    tool.inChild = [] {
        const rlimit small{300000, 100 << 20}; // which it must not widen
        ::setrlimit(RLIMIT_FSIZE, &small);
    };
    EXPECT_EQ(tool.unpack(archive).status, refused);
    EXPECT_EQ(tool.unpack(good).status, done) << "it fits";
    const QByteArray staged = QFile::encodeName(tool.folder.filePath(tool.stagedName));
    tool.inChild = [&] { // a small disk that nobody else sees and that goes with the process
        if (::unshare(CLONE_NEWNS) != 0 || ::mount(nullptr, "/", nullptr, MS_REC | MS_PRIVATE, nullptr) != 0
            || ::mount("none", staged.constData(), "tmpfs", 0, "size=1500k,mode=0700") != 0)
            ::_exit(notHere);
    };
    const UpdateTool::Outcome outcome = tool.unpack(archive);
    if (outcome.status == notHere)
        GTEST_SKIP() << "no disks of one's own here";
    EXPECT_EQ(outcome.status, refused);
    EXPECT_TRUE(outcome.reason.contains("No space left")) << outcome.reason.toStdString();
    EXPECT_EQ(tool.unpack(good).status, done) << "it fits";
}

TEST_F(UpdateToolTest, ItsLimitsAreThoseOfAnUpdate)
{
    const pid_t child = ::fork(); // there is no way back
    if (child == 0) {
        bool isLimited = keepWithinLimits();
        for (const auto& [resource, most] : {
                 std::pair(RLIMIT_CPU, rlim_t{120}),
                 {RLIMIT_FSIZE, 256 * mebibyte},
                 {RLIMIT_CORE, rlim_t{0}},
#ifndef __SANITIZE_ADDRESS__
                 {RLIMIT_AS, 384 * mebibyte},
#endif
             }) {
            rlimit limits{};
            isLimited =
                isLimited && ::getrlimit(resource, &limits) == 0 && limits.rlim_cur <= most && limits.rlim_max <= most;
        }
        ::_exit(isLimited ? done : refused);
    }
    int status = -1;
    EXPECT_EQ(::waitpid(child, &status, 0), child);
    EXPECT_EQ(status, 0);
}

TEST_F(UpdateToolTest, IsStoppedWhenItWantsMoreMemory)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the limit is off";
#endif
    EXPECT_EQ(tool.unpack(listing(100'000)).status, done) << "there is enough for that";
    const UpdateTool::Outcome outcome = tool.unpack(listing(2'500'000));
    EXPECT_EQ(outcome.status, refused);
    EXPECT_TRUE(outcome.reason.contains("allocate")) << outcome.reason.toStdString();
    EXPECT_TRUE(tool.staged().isEmpty());
    rusage used{};
    EXPECT_EQ(::getrusage(RUSAGE_CHILDREN, &used), 0);
    EXPECT_LT(used.ru_maxrss, 384 * 1024);
}

TEST_F(UpdateToolTest, IsStoppedWhenItTakesMoreProcessorTime)
{
    tool.inChild = [] {
        const rlimit second{1, RLIM_INFINITY}; // which it must not widen
        ::setrlimit(RLIMIT_CPU, &second);
    };
    EXPECT_EQ(tool.unpack(listing(1'000)).status, done) << "a second is enough for that";
    const UpdateTool::Outcome outcome = tool.unpack(listing(1'200'000));
    EXPECT_EQ(outcome.status, -1) << outcome.reason.toStdString();
    EXPECT_EQ(outcome.reason, "");
}

} // namespace ambrelle::test
