// SPDX-License-Identifier: MIT

#include "wallpapers/WallpaperStore.h"

#include "support/PlainWallpaper.h"
#include "support/TestFolder.h"
#include "support/WaitUntil.h"

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

class WallpaperStoreTest : public testing::Test {
protected:
    ImageDiskCache cache(int build = 7) const { return {m_folder.filePath(u"Previews"_s), build}; }
    QStringList files() const { return QDir(m_folder.filePath(u"Previews"_s)).entryList(QDir::Files); }

    const PlainWallpaper m_plain;
    const TestFolder m_folder;
};

/// Waits for the store's next picture.
bool waitFor(WallpaperStore& store)
{
    bool came = false;
    QObject context;
    QObject::connect(&store, &WallpaperStore::changed, &context, [&came] { came = true; });
    return waitUntil([&came] { return came; });
}

TEST_F(WallpaperStoreTest, OneGenerationServesAllCallersInTheirOrder)
{
    WallpaperStore store(m_plain.painter(), cache());
    QList<int> order;
    QList<QImage> got;
    for (int caller = 0; caller < 3; ++caller) {
        store.load(Skin::glass, [&, caller](const QImage& image) {
            order.append(caller);
            got.append(image);
        });
    }
    EXPECT_TRUE(store.image(Skin::glass).isNull());
    ASSERT_TRUE(waitFor(store));
    EXPECT_EQ(order, (QList<int>{0, 1, 2}));
    EXPECT_EQ(got[0], got[2]);
    EXPECT_TRUE(m_plain.isIn(got[0]));
    EXPECT_EQ(got[0].size(), QSize(1152, 720));
    EXPECT_EQ(store.image(Skin::glass), got[0]);
    store.load(Skin::glass, [&](const QImage&) { order.append(9); });
    EXPECT_EQ(order.last(), 9) << "what is there is given at once";
    EXPECT_EQ(m_plain.painted, 1);
}

TEST_F(WallpaperStoreTest, WhoCannotWaitGetsItNowAndWaitersToo)
{
    WallpaperStore store(m_plain.painter(), cache());
    int served = 0;
    store.load(Skin::mono, [&](const QImage& image) { served += m_plain.isIn(image) ? 1 : 100; });
    EXPECT_TRUE(m_plain.isIn(store.imageNow(Skin::mono)));
    EXPECT_EQ(served, 1);
    store.load(Skin::paper, [](const QImage&) {});
    ASSERT_TRUE(waitFor(store));
    EXPECT_EQ(served, 1) << "the one from the background comes too late to count";
}

TEST_F(WallpaperStoreTest, TheDiskKeepsThemForTheSameBuildOnly)
{
    EXPECT_TRUE(m_plain.isIn(WallpaperStore(m_plain.painter(), cache()).imageNow(Skin::field)));
    EXPECT_EQ(files(), QStringList{u"wallpaper-field-b7-r16.jpg"_s});
    EXPECT_TRUE(m_plain.isIn(WallpaperStore(m_plain.painter(), cache()).imageNow(Skin::field)));
    EXPECT_EQ(m_plain.painted, 1);
    EXPECT_TRUE(m_plain.isIn(WallpaperStore(m_plain.painter(), cache(8)).imageNow(Skin::field)));
    EXPECT_EQ(m_plain.painted, 2);
    EXPECT_EQ(files().size(), 2);
}

TEST_F(WallpaperStoreTest, DamagedCacheFilesArePaintedAnew)
{
    const QString url = cache().url(u"wallpaper-field"_s);
    m_folder.write(u"Previews/"_s + QFileInfo(url).fileName(), "\xFF\xD8\xFF\xE0 and so on");
    EXPECT_TRUE(m_plain.isIn(WallpaperStore(m_plain.painter(), cache()).imageNow(Skin::field)));
    EXPECT_FALSE(ImageDiskCache::read(url).isNull());
}

TEST_F(WallpaperStoreTest, AFolderThatCannotBeWrittenIsNoFailure)
{
    m_folder.write(u"Previews"_s, {}); // a file in the way
    EXPECT_TRUE(m_plain.isIn(WallpaperStore(m_plain.painter(), cache()).imageNow(Skin::field)));
}

TEST_F(WallpaperStoreTest, WhatNobodyLooksForIsNotPainted)
{
    WallpaperStore store(m_plain.painter(), cache());
    constexpr auto skins = allCases<Skin>();
    for (const Skin skin : skins)
        EXPECT_TRUE(store.packed(skin).isEmpty());
    int served = 0;
    store.load(skins.back(), [&served](const QImage&) { ++served; });
    for (const Skin skin : skins)
        store.drop(skin);
    ASSERT_TRUE(waitUntil([&served] { return served == 1; }));
    EXPECT_LE(m_plain.painted, 4) << "three that had begun, and the one that is waited for";
    store.load(skins[10], [&served](const QImage&) { ++served; });
    EXPECT_TRUE(waitUntil([&served] { return served == 2; })) << "a dropped one can be asked for again";
}

TEST_F(WallpaperStoreTest, OnlyWhatTheDiskHasIsForgotten)
{
    WallpaperStore store(m_plain.painter(), cache());
    const QImage first = store.imageNow(Skin::field);
    EXPECT_EQ(ImageDiskCache::unpacked(store.packed(Skin::field)), first);
    store.release();
    EXPECT_TRUE(store.packed(Skin::field).isEmpty());
    EXPECT_EQ(store.imageNow(Skin::field), first);
    EXPECT_EQ(m_plain.painted, 1);
    m_folder.write(u"blocked"_s, {}); // a file in the way
    WallpaperStore diskless(m_plain.painter(), {m_folder.filePath(u"blocked"_s), 7});
    diskless.imageNow(Skin::field);
    diskless.release();
    EXPECT_FALSE(diskless.packed(Skin::field).isEmpty());
}

TEST_F(WallpaperStoreTest, MayGoWhileItWorks)
{
    for (int round = 0; round < 20; ++round) {
        WallpaperStore store(m_plain.painter(), cache(round));
        for (const Skin skin : allCases<Skin>())
            store.load(skin, [](const QImage&) { FAIL() << "nobody asks any more"; });
    }
    QCoreApplication::processEvents();
}

} // namespace
