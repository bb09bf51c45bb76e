// SPDX-License-Identifier: MIT

#include "window/cards/StorePictures.h"

#include "foundation/UserDefaults.h"
#include "model/ThemeAccent.h"
#include "platform/headless/HeadlessMachine.h"
#include "support/PlainWallpaper.h"
#include "support/TestFolder.h"
#include "support/WaitUntil.h"
#include "wallpapers/WallpaperStore.h"

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

class StorePicturesTest : public testing::Test {
protected:
    PictureLoader::Done note(const QString& name)
    {
        return [this, name](const QImage& image) { m_got[name] = image; };
    }
    bool waitFor(const QString& name)
    {
        return waitUntil([&] { return m_got.contains(name); });
    }

    const PlainWallpaper m_plain;
    const TestFolder m_folder;
    const ImageDiskCache m_cache{m_folder.filePath(u"Previews"_s), 7};
    UserDefaults m_defaults = UserDefaults::temporary();
    ThemeAccent m_accents{m_defaults};
    WallpaperStore m_wallpapers{m_plain.painter(), m_cache};
    DesktopSnapshots m_desktops{{m_plain.painter(), m_cache, m_accents, [] { return QImage(); },
        [](std::unique_ptr<Clock> clock) { return std::make_unique<HeadlessMachine>(std::move(clock)); }}};
    StorePictures m_pictures{m_wallpapers, m_desktops};
    QMap<QString, QImage> m_got;
};

TEST_F(StorePicturesTest, FillTheOrderAndHaveRoundCorners)
{
    const PictureKey wallpaper = PictureKey::wallpaper(Skin::mono);
    const PictureKey desktop = PictureKey::desktop(m_desktops.wish(Skin::mono));
    QImage tall(30, 90, QImage::Format_RGB32);
    tall.fill(QColor(0x20, 0x40, 0xC0));
    const QString path = m_folder.filePath(u"tall.png"_s);
    ASSERT_TRUE(tall.save(path));
    const PictureKey file = PictureKey::file(path, QFileInfo(path).lastModified());
    m_pictures.load({wallpaper, {320, 200}, 20}, note(u"small"_s));
    m_pictures.load({wallpaper, {333, 208}, 20}, note(u"odd"_s));
    m_pictures.load({desktop, {320, 200}, 20}, note(u"miniature"_s));
    m_pictures.load({desktop, {1000, 625}, 20}, note(u"exact"_s)); // more than a miniature has
    m_pictures.load({file, {320, 200}, 20}, note(u"file"_s)); // upright and smaller than ordered
    EXPECT_TRUE(m_got.isEmpty()) << "who is called back at once paints within a paint";
    for (const auto& [name, size] : {std::pair(u"small"_s, QSize(320, 200)), {u"odd"_s, {333, 208}},
             {u"miniature"_s, {320, 200}}, {u"exact"_s, {1000, 625}}, {u"file"_s, {320, 200}}}) {
        ASSERT_TRUE(waitFor(name)) << qPrintable(name);
        const QImage image = m_got[name];
        EXPECT_EQ(image.size(), size) << qPrintable(name);
        for (const QPoint corner : {QPoint(0, 0), QPoint(size.width() - 1, 0), QPoint(0, size.height() - 1)})
            EXPECT_EQ(image.pixelColor(corner).alpha(), 0) << qPrintable(name);
        EXPECT_TRUE(m_plain.isAt(image, {20, 0})) << qPrintable(name);
        EXPECT_TRUE(m_plain.isAt(image, {size.width() - 1, size.height() - 21})) << qPrintable(name);
    }
    EXPECT_EQ(m_plain.painted, 3) << "a wallpaper, a miniature, a large picture";
}

TEST_F(StorePicturesTest, ThereIsNoneOfWhatCannotBeRead)
{
    const QString text = m_folder.write(u"notes.txt"_s, "no picture");
    m_pictures.load({PictureKey::file(text, {}), {32, 20}}, note(u"text"_s));
    m_pictures.load({PictureKey::file(u"/nowhere"_s, {}), {32, 20}}, note(u"gone"_s));
    m_pictures.load({{PictureKey::Source::wallpaper, u"unheard of"_s}, {32, 20}}, note(u"skin"_s));
    for (const QString& name : {u"text"_s, u"gone"_s, u"skin"_s}) {
        ASSERT_TRUE(waitFor(name)) << qPrintable(name);
        EXPECT_TRUE(m_got[name].isNull()) << qPrintable(name);
    }
}

TEST_F(StorePicturesTest, WhatNobodyAwaitsIsNotPainted)
{
    QList<PictureOrder> orders;
    for (const Skin skin : allCases<Skin>()) {
        orders += PictureOrder{PictureKey::wallpaper(skin), {32, 20}};
        orders += PictureOrder{PictureKey::desktop(m_desktops.wish(skin)), {32, 20}};
        orders += PictureOrder{PictureKey::desktop(m_desktops.wish(skin)), {1000, 625}};
    }
    const PictureOrder wanted{PictureKey::wallpaper(allCases<Skin>().back()), {64, 40}};
    for (const PictureOrder& order : orders)
        m_pictures.load(order, note(u"unwanted"_s));
    m_pictures.load(wanted, note(u"wanted"_s));
    for (const PictureOrder& order : orders)
        EXPECT_TRUE(m_pictures.drop(order));
    ASSERT_TRUE(waitFor(u"wanted"_s));
    EXPECT_FALSE(m_got.contains(u"unwanted"_s));
    EXPECT_LE(m_plain.painted, 6) << "what had begun, and the one that is wanted in another size too";
}

} // namespace
