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

    /// Of a store that has just been started.
    QImage picture(int build = 7) const
    {
        WallpaperStore store(m_plain.painter(), cache(build));
        return made(store, Skin::field);
    }
    static QImage made(WallpaperStore& store, Skin skin)
    {
        EXPECT_TRUE(waitUntil([&] { return !store.packed(skin).isEmpty(); }));
        return ImageDiskCache::unpacked(store.packed(skin));
    }

    const PlainWallpaper m_plain;
    const TestFolder m_folder;
};

TEST_F(WallpaperStoreTest, OneGenerationServesAllWhoAsk)
{
    WallpaperStore store(m_plain.painter(), cache());
    int told = 0;
    QObject::connect(&store, &WallpaperStore::changed, [&told](Skin skin) { told += skin == Skin::glass ? 1 : 100; });
    EXPECT_TRUE(store.packed(Skin::glass).isEmpty());
    EXPECT_TRUE(store.packed(Skin::glass).isEmpty());
    ASSERT_TRUE(waitUntil([&told] { return told > 0; }));
    const QImage picture = made(store, Skin::glass);
    EXPECT_TRUE(m_plain.isIn(picture));
    EXPECT_EQ(picture.size(), QSize(1152, 720));
    EXPECT_EQ(m_plain.painted, 1);
    EXPECT_EQ(told, 1);
}

TEST_F(WallpaperStoreTest, TheDiskKeepsThemForTheSameBuildOnly)
{
    EXPECT_TRUE(m_plain.isIn(picture()));
    EXPECT_EQ(files(), QStringList{u"wallpaper-field-b7-r16.jpg"_s});
    EXPECT_TRUE(m_plain.isIn(picture()));
    EXPECT_EQ(m_plain.painted, 1);
    EXPECT_TRUE(m_plain.isIn(picture(8)));
    EXPECT_EQ(m_plain.painted, 2);
    EXPECT_EQ(files().size(), 2);
}

TEST_F(WallpaperStoreTest, DamagedCacheFilesArePaintedAnew)
{
    const QString url = cache().url(u"wallpaper-field"_s);
    m_folder.write(u"Previews/"_s + QFileInfo(url).fileName(), "\xFF\xD8\xFF\xE0 and so on");
    EXPECT_TRUE(m_plain.isIn(picture()));
    EXPECT_FALSE(ImageDiskCache::read(url).isNull());
}

TEST_F(WallpaperStoreTest, AFolderThatCannotBeWrittenIsNoFailure)
{
    m_folder.write(u"Previews"_s, {}); // a file in the way
    EXPECT_TRUE(m_plain.isIn(picture()));
}

TEST_F(WallpaperStoreTest, WhatNobodyLooksForIsNotPainted)
{
    WallpaperStore store(m_plain.painter(), cache());
    constexpr auto skins = allCases<Skin>();
    for (const Skin skin : skins)
        EXPECT_TRUE(store.packed(skin).isEmpty());
    for (const Skin skin : skins) {
        if (skin != skins.back())
            store.drop(skin);
    }
    made(store, skins.back());
    EXPECT_LE(m_plain.painted, 4) << "three that had begun, and the one that is waited for";
    EXPECT_FALSE(made(store, skins[10]).isNull()) << "a dropped one can be asked for again";
}

TEST_F(WallpaperStoreTest, OnlyWhatTheDiskHasIsForgotten)
{
    WallpaperStore store(m_plain.painter(), cache());
    const QImage first = made(store, Skin::field);
    EXPECT_FALSE(store.packed(Skin::field).isEmpty());
    store.release();
    EXPECT_TRUE(store.packed(Skin::field).isEmpty());
    EXPECT_EQ(made(store, Skin::field), first);
    EXPECT_EQ(m_plain.painted, 1);
    m_folder.write(u"blocked"_s, {}); // a file in the way
    WallpaperStore diskless(m_plain.painter(), {m_folder.filePath(u"blocked"_s), 7});
    made(diskless, Skin::field);
    diskless.release();
    EXPECT_FALSE(diskless.packed(Skin::field).isEmpty());
}

TEST_F(WallpaperStoreTest, MayGoWhileItWorks)
{
    for (int round = 0; round < 20; ++round) {
        WallpaperStore store(m_plain.painter(), cache(round));
        for (const Skin skin : allCases<Skin>())
            store.packed(skin);
    }
    QCoreApplication::processEvents();
}

} // namespace
