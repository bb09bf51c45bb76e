// SPDX-License-Identifier: MIT

#include "skins/WallpaperRecipes.h"

#include <QPainter>
#include <QTemporaryDir>

#include <gtest/gtest.h>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

TEST(WallpaperRecipes, SameBytesOnAnyNumberOfThreads)
{
    const Wallpaper wallpaper(wallpaperRecipe, {});
    QList<QImage> seen;
    for (const Skin skin : allCases<Skin>()) {
        const QImage once = wallpaper.picture(skin, {1037, 411}, 1);
        EXPECT_EQ(once, wallpaper.picture(skin, {1037, 411}, 3)) << qPrintable(rawValue(skin));
        EXPECT_FALSE(seen.contains(once)) << qPrintable(rawValue(skin)) << " looks like another skin";
        seen.append(once);
    }
}

// Narrow, flat, tiny and tall pictures: a recipe must not divide by a rounded-down number or draw from an empty range.
TEST(WallpaperRecipes, EverySizeHasItsExactPixels)
{
    const Wallpaper wallpaper(wallpaperRecipe, {});
    for (const QSize size : {QSize(1, 1), QSize(2, 700), QSize(900, 3), QSize(64, 40), QSize(300, 801)})
        for (const Skin skin : allCases<Skin>())
            EXPECT_EQ(wallpaper.picture(skin, size).size(), size) << qPrintable(rawValue(skin));
    for (const QSize size : {QSize(0, 10), QSize(10, 0), QSize(-4, 4), QSize(32769, 1), QSize()})
        EXPECT_TRUE(wallpaper.picture(Skin::mono, size).isNull());
}

// The middle of a wallpaper carries the widgets: a light skin's is light, a dark one's is dark.
TEST(WallpaperRecipes, MiddlesSuitTheirSkins)
{
    const Wallpaper wallpaper(wallpaperRecipe, {});
    for (const Skin skin : {Skin::paper, Skin::lumen, Skin::field, Skin::kyoto, Skin::mono, Skin::slate,
             Skin::fieldDark, Skin::obsidian, Skin::midnight, Skin::carbon, Skin::apollo}) {
        const QImage picture = wallpaper.picture(skin, {320, 200});
        const int grey = qGray(picture.scaled(5, 5, Qt::IgnoreAspectRatio, Qt::SmoothTransformation).pixel(2, 2));
        EXPECT_EQ(grey > 127, isLight(skin)) << qPrintable(rawValue(skin)) << ' ' << grey;
    }
}

TEST(Wallpaper, APhotographStandsInForTheRecipe)
{
    const QTemporaryDir photos;
    QImage photo(400, 100, QImage::Format_RGB32);
    photo.fill(Qt::blue);
    QPainter(&photo).fillRect(150, 0, 100, 100, Qt::red);
    ASSERT_TRUE(photo.save(photos.filePath(u"glass.jpg"_s), nullptr, 100));
    QFile broken(photos.filePath(u"mono.jpg"_s));
    ASSERT_TRUE(broken.open(QIODevice::WriteOnly) && broken.write("no picture") > 0);
    broken.close();

    const Wallpaper wallpaper(wallpaperRecipe, photos.path());
    const QImage filled = wallpaper.picture(Skin::glass, {50, 50});
    ASSERT_EQ(filled.size(), QSize(50, 50));
    for (const QPoint corner : {QPoint(2, 2), QPoint(47, 47)})
        EXPECT_GT(filled.pixelColor(corner).red(), 200) << "the middle of the photograph fills the picture";
    const Wallpaper plain(wallpaperRecipe, {});
    EXPECT_EQ(wallpaper.picture(Skin::mono, {50, 50}), plain.picture(Skin::mono, {50, 50}));
}

TEST(Wallpaper, FilesTellTheirSkin)
{
    EXPECT_EQ(Wallpaper::fileName(Skin::neon, {2880, 1800}), u"neon-r16-2880x1800.png"_s);
    for (const Skin skin : allCases<Skin>())
        EXPECT_EQ(Wallpaper::skinOf(u"/some/where/"_s + Wallpaper::fileName(skin, {640, 480})), skin);
    for (const QString& other : {u""_s, u"neon.png"_s, u"neon-r16-2880x1800.jpg"_s, u"extra-neon-r16-1x1.png"_s,
             u"nothing-r16-2880x1800.png"_s, u"my neon-r16-2880x1800.png.bak"_s})
        EXPECT_EQ(Wallpaper::skinOf(other), std::nullopt) << qPrintable(other);
    EXPECT_EQ(Wallpaper::skinOf(u"neon-r3-800x600.png"_s), Skin::neon) << "a file of an earlier revision";
}

} // namespace
