// SPDX-License-Identifier: MIT

#include "foundation/SettingsFile.h"

#include "support/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <csignal>
#include <functional>
#include <map>
#include <random>
#include <sys/mman.h>
#include <sys/resource.h>
#include <sys/syscall.h>
#include <sys/wait.h>
#include <unistd.h>
#include <vector>

namespace {

std::atomic<bool> flushesHang = false;
std::atomic<int> flushes = 0;
std::atomic<pid_t> flusher = 0;
std::function<void()> fileGone; ///< called by the thread that removed one

} // namespace

/// In place of the system's: a disk that takes as long as a test wants.
extern "C" int fsync(int file)
{
    flusher = gettid();
    ++flushes;
    flushesHang.wait(true);
    return static_cast<int>(syscall(SYS_fsync, file));
}

/// In place of the system's: tells of every file that is gone.
extern "C" int unlink(const char* path) noexcept
{
    const auto result = static_cast<int>(syscall(SYS_unlink, path));
    if (fileGone)
        fileGone();
    return result;
}

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

constexpr auto patience = 30s;

QJsonObject numbered(int number)
{
    return {{u"number"_s, number}, {u"ballast"_s, QString(3000 + number % 7 * 1000, u'x')}};
}

int numberIn(const QJsonObject& values)
{
    return values.value("number"_L1).toInt();
}

class SettingsFileTest : public ::testing::Test {
protected:
    void TearDown() override { letFlush(); }

    QString path() const { return m_folder.filePath(u"defaults.json"_s); }
    int numberAfterRestart() const { return numberIn(SettingsFile(path()).loaded()); }
    static void holdFlushes() { flushesHang = true; }
    static void letFlush()
    {
        flushesHang = false;
        flushesHang.notify_all();
    }

    using Files = std::map<QString, QByteArray>;
    Files files() const
    {
        Files contents;
        const QStringList names = QDir(m_folder.path()).entryList(QDir::Files);
        for (const QString& name : names) {
            QFile file(m_folder.filePath(name));
            if (file.open(QIODevice::ReadOnly))
                contents[name] = file.readAll();
        }
        return contents;
    }
    void restore(const Files& contents) const
    {
        const QStringList names = QDir(m_folder.path()).entryList(QDir::Files);
        for (const QString& name : names)
            QFile::remove(m_folder.filePath(name));
        for (const auto& [name, bytes] : contents) {
            QFile file(m_folder.filePath(name));
            ASSERT_TRUE(file.open(QIODevice::WriteOnly));
            file.write(bytes);
        }
    }
    /// What lies there after a kill: 1 is on the disk, 2 and 3 are not, and the disk was about to get 2.
    Files killedWithTwoUnflushed() const
    {
        SettingsFile file(path(), 0ms);
        file.store(numbered(1));
        EXPECT_TRUE(file.flush(patience));
        holdFlushes();
        const int before = flushes;
        file.store(numbered(2));
        EXPECT_TRUE(waitUntil([&] { return flushes != before; }));
        file.store(numbered(3));
        Files left = files();
        letFlush();
        return left;
    }

    QTemporaryDir m_folder;
};

TEST_F(SettingsFileTest, NobodyWaitsForTheDiskAndManyVersionsCostFewFlushes)
{
    SettingsFile file(path(), 0ms);
    holdFlushes();
    for (int i = 1; i <= 100; ++i)
        ASSERT_TRUE(file.store(numbered(i)));
    EXPECT_FALSE(file.flush(1ms)) << "the disk has not answered";
    letFlush();
    EXPECT_TRUE(file.flush(patience));
    EXPECT_LE(flushes.exchange(0), 6) << "two for a file and its folder, of at most three versions";
    EXPECT_NE(flusher, gettid());
    EXPECT_EQ(files().size(), 1) << "what is flushed needs nothing beside it";
}

TEST_F(SettingsFileTest, ADiskThatHangsDoesNotKeepTheProgramFromEnding)
{
    auto file = std::make_unique<SettingsFile>(path());
    holdFlushes();
    file->store(numbered(1));
    const auto start = std::chrono::steady_clock::now();
    file.reset();
    EXPECT_LT(std::chrono::steady_clock::now() - start, 10s);
    EXPECT_TRUE(files().contains(u"defaults.json.latest-1"_s));
    letFlush();
    EXPECT_TRUE(waitUntil([this] { return files().size() == 1; })) << "the worker ended without its file";
    EXPECT_EQ(numberAfterRestart(), 1);
}

TEST_F(SettingsFileTest, WhatWasStoredOutlivesAKillAtAnyMoment)
{
    auto* told = static_cast<std::atomic<int>*>(
        mmap(nullptr, sizeof(std::atomic<int>), PROT_READ | PROT_WRITE, MAP_SHARED | MAP_ANONYMOUS, -1, 0));
    std::mt19937 dice(11);
    ::testing::internal::CaptureStderr();
    for (int round = 0; round < 60; ++round) {
        const int start = *told;
        const pid_t child = fork();
        if (child == 0) {
            SettingsFile file(path(), std::chrono::milliseconds(round % 3));
            for (int i = start + 1;; ++i) {
                file.store(numbered(i));
                *told = i;
            }
        }
        ASSERT_TRUE(waitUntil([&] { return *told > start; }));
        usleep(std::uniform_int_distribution<useconds_t>(0, 20000)(dice));
        kill(child, SIGKILL);
        waitpid(child, nullptr, 0);
        const int last = *told;
        const int found = numberAfterRestart();
        ASSERT_TRUE(found == last || found == last + 1) << found << " instead of " << last << " in round " << round;
        *told = found;
    }
    EXPECT_EQ(::testing::internal::GetCapturedStderr(), "");
    munmap(told, sizeof(*told));
}

TEST_F(SettingsFileTest, AKillWhileFlushedVersionsAreRemovedBringsNoneBack)
{
    for (const int parity : {0, 1}) {
        std::vector<Files> left;
        {
            SettingsFile file(path(), 1h);
            for (int i = 0; i <= parity; ++i)
                file.store(numbered(1));
            ASSERT_TRUE(file.flush(patience));
            fileGone = [&] { left.push_back(files()); };
            file.store(numbered(2));
            file.store(numbered(1)); // as the file has it, which the version before follows
            ASSERT_TRUE(file.flush(patience));
        }
        fileGone = nullptr;
        ASSERT_EQ(left.size(), 2u);
        for (const Files& moment : left) {
            restore(moment);
            EXPECT_EQ(numberAfterRestart(), 1) << moment.size() << " files, " << parity;
        }
    }
}

TEST_F(SettingsFileTest, AVersionCutShortByAPowerCutIsNotTaken)
{
    const Files left = killedWithTwoUnflushed();
    restore(left);
    ASSERT_EQ(numberAfterRestart(), 3);
    const QString newest = u"defaults.json.latest-1"_s;
    const QString older = u"defaults.json.latest-2"_s;
    const auto after = [&](const Files& files) {
        restore(files);
        return numberAfterRestart();
    };
    ASSERT_EQ(left.count(newest) + left.count(older), 2u);
    for (qsizetype length = 0; length < left.at(newest).size(); length += 97) {
        Files cut = left;
        cut[newest].truncate(length);
        EXPECT_EQ(after(cut), 2) << length;
        cut[newest].append(QByteArray(left.at(newest).size() - length, '\0'));
        EXPECT_EQ(after(cut), 2) << length;
        cut.erase(older);
        EXPECT_EQ(after(cut), 1) << length;
    }
    Files flipped = left;
    flipped[newest][flipped[newest].indexOf("\"number\":3") + 9] = '4';
    EXPECT_EQ(after(flipped), 2);
}

TEST_F(SettingsFileTest, WhatAPowerCutLeavesBesideAFileOfTheSameValuesIsOlder)
{
    Files left;
    SettingsFile file(path(), 1h);
    for (const int number : {1, 2, 1}) {
        file.store(numbered(number));
        if (number == 2)
            left = files(); // what follows the first 1; its removal need not reach the disk
        ASSERT_TRUE(file.flush(patience));
    }
    left[u"defaults.json"_s] = files()[u"defaults.json"_s];
    restore(left);
    EXPECT_EQ(numberAfterRestart(), 1);
}

TEST_F(SettingsFileTest, AFileThatSomebodyPutThereMeanwhileWins)
{
    const Files left = killedWithTwoUnflushed();
    struct Row {
        const char* what;
        std::optional<QByteArray> file;
        int number;
    };
    const Row rows[] = {{"as it was", left.at(u"defaults.json"_s), 3}, {"edited", R"({"number": 7})", 7},
        {"removed", std::nullopt, 0}, {"broken", "{\"number\": 7", 3}};
    ::testing::internal::CaptureStderr();
    for (const Row& row : rows) {
        Files files = left;
        files.erase(u"defaults.json"_s);
        if (row.file)
            files[u"defaults.json"_s] = *row.file;
        restore(files);
        EXPECT_EQ(numberAfterRestart(), row.number) << row.what;
        EXPECT_EQ(numberAfterRestart(), row.number) << row.what << ", again";
        SettingsFile(path()).store(numbered(8));
        EXPECT_EQ(numberAfterRestart(), 8) << row.what;
    }
    EXPECT_NE(::testing::internal::GetCapturedStderr().find("the newest version applies"), std::string::npos);
    EXPECT_EQ(files()[u"defaults.json.damaged"_s], "{\"number\": 7");
}

TEST_F(SettingsFileTest, AFullDiskKeepsTheOldFileAndGetsTheNewOneLater)
{
    SettingsFile(path()).store({{u"number"_s, 1}});
    SettingsFile file(path(), 0ms);
    const auto allow = [](rlim_t bytes) {
        const rlimit limit{bytes, RLIM_INFINITY};
        setrlimit(RLIMIT_FSIZE, &limit);
    };
    std::signal(SIGXFSZ, SIG_IGN);
    ::testing::internal::CaptureStderr();
    allow(1000); // standard error goes to a file too
    EXPECT_FALSE(file.store(numbered(2)));
    EXPECT_FALSE(file.flush(patience));
    EXPECT_FALSE(file.store(numbered(3)));
    EXPECT_EQ(numberIn(SettingsFile(path()).loaded()), 1);
    allow(RLIM_INFINITY);
    const QString said = QString::fromStdString(::testing::internal::GetCapturedStderr());
    EXPECT_EQ(said.count(u'\n'), 1) << said.toStdString();
    EXPECT_TRUE(file.flush(patience)) << "the change was forgotten";
    EXPECT_EQ(numberAfterRestart(), 3);
    std::signal(SIGXFSZ, SIG_DFL);
}

TEST_F(SettingsFileTest, LinksStayLinksWhereverTheyLead)
{
    const QString far = m_folder.filePath(u"far/away/settings.json"_s);
    const QString hop = m_folder.filePath(u"hop.json"_s);
    ASSERT_TRUE(QFile::link(u"far/away/settings.json"_s, hop));
    ASSERT_TRUE(QFile::link(hop, path()));
    for (const int number : {1, 2}) { // the first time there is no such file
        SettingsFile(path()).store(numbered(number));
        EXPECT_TRUE(QFileInfo(path()).isSymLink() && QFileInfo(hop).isSymLink());
        EXPECT_EQ(numberIn(SettingsFile(far).loaded()), number);
    }
    const QString circle = m_folder.filePath(u"circle.json"_s);
    ASSERT_TRUE(QFile::link(circle, circle));
    SettingsFile(circle).store(numbered(3));
    EXPECT_EQ(numberIn(SettingsFile(circle).loaded()), 3);
}

} // namespace
} // namespace ambrelle
