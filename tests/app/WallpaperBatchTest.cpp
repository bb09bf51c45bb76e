// SPDX-License-Identifier: MIT

#include "app/WallpaperBatch.h"

#include "support/TestFolder.h"

#include <QDir>
#include <QFile>

#include <sys/resource.h>
#include <unistd.h>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

TEST(WallpaperBatchTest, TellsOfTooLittleMemoryInASentence)
{
    const TestFolder folder;
    const Wallpaper wallpaper(
        [](Skin) -> WallpaperRecipe { return [](Painting&, SeededRandom&) { throw std::bad_alloc(); }; }, {});
    testing::internal::CaptureStdout();
    testing::internal::CaptureStderr();
    EXPECT_EQ(renderWallpapers(wallpaper, folder.path(), {Skin::neon, Skin::mono}), 1);
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "");
    EXPECT_EQ(
        testing::internal::GetCapturedStderr(), "ambrelle: There is not enough memory for 2880 by 1800 pixels.\n");
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

/// While there is one, the process can have no more than that much memory besides what it has.
class LittleMemory {
public:
    explicit LittleMemory(rlim_t bytes)
    {
        QFile file(u"/proc/self/statm"_s);
        EXPECT_TRUE(file.open(QIODevice::ReadOnly));
        const rlim_t pages = file.readAll().split(' ').first().toULongLong();
        getrlimit(RLIMIT_AS, &m_before);
        rlimit limit = m_before;
        limit.rlim_cur = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + bytes;
        setrlimit(RLIMIT_AS, &limit);
    }
    ~LittleMemory() { setrlimit(RLIMIT_AS, &m_before); }
    Q_DISABLE_COPY_MOVE(LittleMemory)

private:
    rlimit m_before{};
};

TEST(WallpaperBatchTest, GoesOnAfterAPictureThatCannotBeRendered)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "ends the program where there is no memory";
#endif
    const TestFolder folder;
    const Wallpaper wallpaper([](Skin) -> WallpaperRecipe { return [](Painting&, SeededRandom&) {}; }, {});
    testing::internal::CaptureStdout();
    qputenv("WIDTH", "32768");
    qputenv("HEIGHT", "32768");
    {
        const LittleMemory memory(500'000'000);
        EXPECT_EQ(renderWallpapers(wallpaper, folder.path(), {Skin::neon, Skin::mono}), 0);
    }
    qunsetenv("WIDTH");
    qunsetenv("HEIGHT");
    EXPECT_EQ(testing::internal::GetCapturedStdout(), "failed to render neon\nfailed to render mono\n");
    EXPECT_TRUE(QDir(folder.path()).isEmpty());
}

} // namespace
