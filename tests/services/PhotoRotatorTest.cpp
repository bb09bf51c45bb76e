// SPDX-License-Identifier: MIT

#include "services/PhotoRotator.h"

#include "foundation/SerialWorker.h"
#include "services/PhotoAlbum.h"
#include "services/ServiceTest.h"
#include "support/WaitUntil.h"

#include <QDir>
#include <QFile>
#include <QSemaphore>
#include <QTemporaryDir>

namespace ambrelle {
namespace {

struct PhotoRotatorTest : ServiceTest {
    PhotoRotatorTest() { count(rotator); }

    /// A picture of one colour, by which it is known again.
    void put(const QString& name, QRgb colour, QSize size = {8, 8}) const
    {
        QImage image(size, QImage::Format_RGB32);
        image.fill(colour);
        ASSERT_TRUE(image.save(folder.filePath(name), "png"));
    }
    void configure(int minutes = 0, QSize shown = {4, 4}) { rotator.configure(folder.path(), minutes, shown); }
    /// Waits for what was begun so far, whoever still wants it.
    void finishWork()
    {
        bool isDone = false;
        worker.run([] { return true; }, [&isDone](bool) { isDone = true; });
        EXPECT_TRUE(waitUntil([&isDone] { return isDone; }));
    }
    bool settle()
    {
        return waitUntil([this] { return !rotator.isLoading(); });
    }
    QRgb colour() const { return rotator.image().isNull() ? 0 : rotator.image().pixel(0, 0); }

    static constexpr QRgb red = 0xFFFF0000;
    static constexpr QRgb green = 0xFF00FF00;
    static constexpr QRgb blue = 0xFF0000FF;

    QTemporaryDir folder;
    QObject owner;
    SerialWorker worker{owner};
    QList<qsizetype> asked; ///< among how many was chosen
    qsizetype choice = 0;
    PhotoRotator rotator{clock, worker, [this](qsizetype count) {
                             asked.append(count);
                             return std::min(choice, count - 1);
                         }};
};

TEST_F(PhotoRotatorTest, AFolderIsItsPicturesByExtension)
{
    for (const char* name :
        {"b.JPG", "a.jpeg", "c.Png", "d.gif", "e.txt", "png", "f.png.part", ".g.png", "h", "i.ico", "k.webp", "l.TIF"})
        ASSERT_TRUE(QFile(folder.filePath(QString::fromLatin1(name))).open(QIODevice::WriteOnly));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"folder.png"_s));
    ASSERT_TRUE(QDir(folder.path()).mkdir(u"below"_s));
    put(u"below/j.png"_s, red);
    QStringList names;
    for (const QString& path : PhotoFolder::pictures(folder.path()))
        names.append(QFileInfo(path).fileName());
    EXPECT_EQ(names.join(u' '), u"a.jpeg b.JPG c.Png d.gif i.ico k.webp l.TIF"_s);
    EXPECT_TRUE(PhotoFolder::pictures(folder.filePath(u"missing"_s)).isEmpty());
    EXPECT_TRUE(PhotoFolder::pictures(QString()).isEmpty());
}

TEST_F(PhotoRotatorTest, OnePictureStaysAndIsNotDecodedAgain)
{
    put(u"a.png"_s, red);
    EXPECT_TRUE(rotator.isEmpty());
    configure(1);
    ASSERT_TRUE(settle());
    EXPECT_EQ(colour(), red);
    const qint64 key = rotator.image().cacheKey();
    changes = 0;
    clock.advance(5min);
    ASSERT_TRUE(settle());
    EXPECT_EQ(rotator.image().cacheKey(), key);
    EXPECT_EQ(changes, 0);
}

TEST_F(PhotoRotatorTest, TwoPicturesAlternateAndMoreNeverRepeatAtOnce)
{
    put(u"a.png"_s, red);
    put(u"b.png"_s, green);
    configure(10);
    ASSERT_TRUE(settle());
    EXPECT_EQ(asked, QList<qsizetype>{2});
    for (const QRgb expected : {green, red, green, red}) {
        clock.advance(9min + 59s);
        EXPECT_FALSE(rotator.isLoading());
        clock.advance(1s);
        ASSERT_TRUE(settle());
        EXPECT_EQ(colour(), expected);
    }
    EXPECT_EQ(asked.last(), 1) << "one other picture";

    put(u"c.png"_s, blue);
    rotator.configure(std::nullopt, 0, {4, 4});
    asked.clear();
    choice = 1;
    configure(10);
    ASSERT_TRUE(settle());
    EXPECT_EQ(colour(), green);
    for (const QRgb expected : {blue, green, blue}) {
        clock.advance(10min);
        ASSERT_TRUE(settle());
        EXPECT_EQ(colour(), expected);
    }
    EXPECT_EQ(asked, (QList<qsizetype>{3, 2, 2, 2}));
}

TEST_F(PhotoRotatorTest, ConfiguringAgainReplacesTheTimerAndNothingElse)
{
    put(u"a.png"_s, red);
    put(u"b.png"_s, green);
    configure(10);
    ASSERT_TRUE(settle());
    clock.advance(9min);
    configure(10);
    clock.advance(9min);
    EXPECT_EQ(asked.size(), 1);
    clock.advance(1min);
    EXPECT_EQ(asked.size(), 2);
    for (const int none : {0, -5}) {
        configure(none);
        clock.advance(24h);
        EXPECT_EQ(asked.size(), 2) << "no timer";
    }
    ASSERT_TRUE(settle());
    rotator.next();
    ASSERT_TRUE(settle());
    EXPECT_EQ(colour(), red);
}

TEST_F(PhotoRotatorTest, IsDecodedAtTheSizeShown)
{
    put(u"a.png"_s, red, {400, 200});
    put(u"b.png"_s, green, {400, 200});
    configure(0, {50, 50});
    ASSERT_TRUE(settle());
    EXPECT_EQ(rotator.image().size(), QSize(100, 50));
    configure(0, {100, 100});
    ASSERT_TRUE(settle());
    EXPECT_EQ(rotator.image().size(), QSize(200, 100));
    EXPECT_EQ(colour(), red) << "the same picture";
    EXPECT_EQ(asked.size(), 1);
}

TEST_F(PhotoRotatorTest, MissingFoldersAndDamagedPicturesShowNothing)
{
    put(u"a.png"_s, red);
    configure();
    ASSERT_TRUE(settle());
    QSemaphore gate;
    worker.run([&gate] { return gate.tryAcquire(1, 60'000); }, [](bool) {});
    rotator.configure(folder.filePath(u"missing"_s), 10, {4, 4});
    EXPECT_TRUE(rotator.isLoading());
    EXPECT_EQ(colour(), red) << "until it is known what comes instead";
    gate.release();
    ASSERT_TRUE(settle());
    EXPECT_TRUE(rotator.isEmpty());
    EXPECT_TRUE(rotator.image().isNull());
    clock.advance(10min);

    configure();
    ASSERT_TRUE(settle());
    EXPECT_EQ(colour(), red);
    rotator.configure(std::nullopt, 10, {4, 4});
    EXPECT_TRUE(rotator.isEmpty());
    EXPECT_TRUE(rotator.image().isNull());

    QFile damaged(folder.filePath(u"a.png"_s));
    ASSERT_TRUE(damaged.open(QIODevice::WriteOnly));
    damaged.write("no picture");
    damaged.close();
    configure();
    ASSERT_TRUE(settle());
    EXPECT_FALSE(rotator.isEmpty());
    EXPECT_TRUE(rotator.image().isNull());
}

TEST_F(PhotoRotatorTest, AnAnswerAboutAFormerFolderIsIgnored)
{
    put(u"a.png"_s, red);
    configure();
    rotator.configure(folder.filePath(u"missing"_s), 0, {4, 4});
    ASSERT_TRUE(settle());
    finishWork();
    EXPECT_TRUE(rotator.isEmpty());

    configure();
    ASSERT_TRUE(waitUntil([this] { return !asked.isEmpty(); })); // listed, being decoded
    rotator.configure(std::nullopt, 0, {4, 4});
    finishWork();
    EXPECT_TRUE(rotator.image().isNull());

    configure();
    QImage sample(3, 3, QImage::Format_RGB32);
    sample.fill(blue);
    rotator.loadPreview(sample);
    finishWork();
    EXPECT_EQ(colour(), blue);
}

TEST_F(PhotoRotatorTest, TheAlbumKeepsOneForEachWidget)
{
    put(u"a.png"_s, red);
    PhotoAlbum album(clock);
    QList<QUuid> changed;
    QObject::connect(&album, &PhotoAlbum::changed, [&](const QUuid& id) { changed.append(id); });
    const QUuid one = QUuid::createUuid();
    const QUuid other = QUuid::createUuid();
    album.configure(one, folder.path(), 1, {4, 4});
    album.configure(other, folder.filePath(u"missing"_s), 1, {4, 4});
    ASSERT_TRUE(waitUntil([&] { return !album.isLoading(one) && !album.isLoading(other); }));
    EXPECT_FALSE(album.image(one).isNull());
    EXPECT_FALSE(album.isEmpty(one));
    EXPECT_TRUE(album.image(other).isNull());
    EXPECT_TRUE(album.isEmpty(other));
    EXPECT_EQ(QSet<QUuid>(changed.begin(), changed.end()), (QSet<QUuid>{one, other}));

    album.keepOnly({other});
    EXPECT_TRUE(album.isEmpty(one));
    EXPECT_TRUE(album.image(one).isNull());
    EXPECT_FALSE(album.isLoading(QUuid()));
    album.configure(one, folder.path(), 1, {4, 4});
    // Goes while its folder is being listed.
}

TEST_F(PhotoRotatorTest, AnAlbumAtRestLoadsLater)
{
    put(u"a.png"_s, red);
    PhotoAlbum album(clock);
    album.rest(1s);
    const QUuid one = QUuid::createUuid();
    const QUuid gone = QUuid::createUuid();
    album.configure(one, folder.path(), 0, {4, 4});
    album.configure(gone, folder.path(), 0, {4, 4});
    album.keepOnly({one});
    clock.advance(999ms);
    EXPECT_TRUE(album.isLoading(one));
    EXPECT_FALSE(album.isEmpty(one));
    clock.advance(1ms);
    EXPECT_TRUE(waitUntil([&] { return !album.isLoading(one); }));
    EXPECT_FALSE(album.image(one).isNull());
    EXPECT_TRUE(album.isEmpty(gone));
}

TEST_F(PhotoRotatorTest, WithoutAFolderTheSampleIsShownAtItsSize)
{
    put(u"a.png"_s, red);
    PhotoAlbum album(clock);
    album.setSample([] {
        QImage sample(64, 40, QImage::Format_RGB32);
        sample.fill(blue);
        return sample;
    });
    const QUuid id = QUuid::createUuid();
    const auto shown = [&](const std::optional<QString>& path, QSize size) {
        album.configure(id, path, 0, size);
        EXPECT_TRUE(waitUntil([&] { return !album.isLoading(id); }));
        const QImage image = album.image(id);
        return std::pair(image.size(), image.isNull() ? QRgb{0} : image.pixel(0, 0));
    };
    EXPECT_EQ(shown(std::nullopt, {16, 10}), std::pair(QSize(16, 10), blue));
    EXPECT_TRUE(album.isEmpty(id));
    EXPECT_EQ(shown(std::nullopt, {32, 5}), std::pair(QSize(32, 20), blue)) << "another size";
    EXPECT_EQ(shown(folder.path(), {4, 4}), std::pair(QSize(4, 4), red));
    EXPECT_EQ(shown(std::nullopt, {100, 90}), std::pair(QSize(64, 40), blue)) << "never blown up";
}

} // namespace
} // namespace ambrelle
