// SPDX-License-Identifier: MIT

#include "faces/ReadingFunctions.h"

#include "foundation/ManualClock.h"
#include "services/PhotoAlbum.h"
#include "support/WaitUntil.h"

#include <QFile>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ambrelle {

using namespace Qt::StringLiterals;

TEST(PhotoReading, ShowsThePictureOrSaysWhyThereIsNone)
{
    QTemporaryDir folder;
    ManualClock clock;
    PhotoAlbum album(clock);
    WidgetConfig config(WidgetKind::photo, Skin::glass);
    const auto sentence = [&] { return photoReading(album, config).notice.sentence; };
    const auto configure = [&](const QString& path) {
        config.photoFolder = path;
        album.configure(config.id, path, 0, {4, 4});
    };
    const auto settle = [&] { return waitUntil([&] { return !album.isLoading(config.id); }); };
    EXPECT_EQ(sentence(), u"Choose a folder in the widget's settings"_s);
    configure(folder.path());
    if (album.isLoading(config.id)) { // the folder may be listed already
        EXPECT_EQ(sentence(), u"Loading…"_s);
    }
    ASSERT_TRUE(settle());
    EXPECT_EQ(sentence(), u"No images in this folder"_s);
    EXPECT_EQ(photoReading(album, config).notice.symbol, u"photo"_s);

    ASSERT_TRUE(QFile(folder.filePath(u"damaged.png"_s)).open(QIODevice::WriteOnly));
    configure(folder.path() + u'/'); // another folder to it
    ASSERT_TRUE(settle());
    EXPECT_EQ(sentence(), u"This image cannot be shown"_s);

    QImage image(9, 9, QImage::Format_RGB32);
    image.fill(Qt::red);
    ASSERT_TRUE(image.save(folder.filePath(u"damaged.png"_s)));
    configure(folder.path());
    ASSERT_TRUE(settle());
    config.photoFill = false;
    const PhotoReading shown = photoReading(album, config);
    EXPECT_FALSE(shown.notice);
    EXPECT_EQ(shown.picture.image.size(), QSize(4, 4));
    EXPECT_FALSE(shown.fills);
    EXPECT_EQ(shown, photoReading(album, config));
}

} // namespace ambrelle
