// SPDX-License-Identifier: MIT

#include "offline/DesktopSnapshots.h"

#include "model/Composition.h"
#include "model/ThemeAccent.h"
#include "platform/headless/HeadlessMachine.h"
#include "support/TestFolder.h"
#include "support/WaitUntil.h"

#include <atomic>
#include <thread>

using namespace ambrelle;
using namespace Qt::StringLiterals;

namespace {

std::unique_ptr<Machine> headless(std::unique_ptr<Clock> clock)
{
    return std::make_unique<HeadlessMachine>(std::move(clock));
}

void paintGreyDesktop(Painting& painting, SeededRandom&)
{
    painting.fill(hex(0x808080));
}

Wallpaper greyWallpaper()
{
    return {[](Skin) -> WallpaperRecipe { return paintGreyDesktop; }, {}};
}

QImage photo()
{
    QImage image(64, 40, QImage::Format_RGB32);
    image.fill(Qt::darkGreen);
    return image;
}

SavedTheme savedTheme(Skin skin = Skin::mono)
{
    SavedTheme theme{.id = QUuid::createUuid(), .name = u"Mine"_s, .created = {}, .wallpaper = {}, .widgets = {}};
    theme.widgets = {{WidgetConfig(WidgetKind::clock, skin), 0.1, 0.6}, {WidgetConfig(WidgetKind::cpu, skin), 0.9, 0}};
    return theme;
}

/// The part of a picture of that many pixels that differs from the bare wallpaper, in points of the canvas.
QRectF painted(const QImage& picture)
{
    QRect area;
    for (int y = 0; y < picture.height(); ++y) {
        for (int x = 0; x < picture.width(); ++x) {
            if (picture.pixel(x, y) != picture.pixel(0, 0))
                area |= QRect(x, y, 1, 1);
        }
    }
    const double scale = DesktopCanvas::size.width() / picture.width();
    return {QPointF(area.topLeft()) * scale, QSizeF(area.size()) * scale};
}

TEST(DesktopCanvasTest, WidgetsStandAtTheirPlacesAtAnyScale)
{
    const SampleWorld samples(headless, photo());
    SavedTheme theme = savedTheme();
    theme.widgets = {{WidgetConfig(WidgetKind::cpu, Skin::glass), 0.25, 0.5}}; // without a scene
    const QRectF expected(360, 900 - 450 - 170, 170, 170);
    for (const QSize pixels : {QSize(360, 225), QSize(720, 450), QSize(1440, 900), QSize(1007, 629)}) {
        const QImage picture = DesktopCanvas::of(theme, samples).picture(pixels, greyWallpaper());
        ASSERT_EQ(picture.size(), pixels);
        const QRectF area = painted(picture);
        constexpr double reach = 12; // a shadow, and what one pixel more or less comes to
        EXPECT_TRUE(expected.adjusted(-reach, -reach, reach, reach).contains(area)) << pixels.width();
        EXPECT_TRUE(area.adjusted(-reach, -reach, reach, reach).contains(expected)) << pixels.width();
    }
    theme.widgets[0].fx = 0.97; // of a wider screen
    theme.widgets[0].config.opacity = 0;
    EXPECT_TRUE(painted(DesktopCanvas::of(theme, samples).picture({720, 450}, greyWallpaper())).isEmpty())
        << "the widget's look is not that of the desktop";
    theme.widgets[0].config.opacity = 1;
    EXPECT_GT(painted(DesktopCanvas::of(theme, samples).picture({720, 450}, greyWallpaper())).width(), 165);
    EXPECT_TRUE(DesktopCanvas::of(theme, samples).picture({}, greyWallpaper()).isNull());
}

TEST(DesktopCanvasTest, TheSceneJoinsWidgetsOfOneSkin)
{
    const SampleWorld samples(headless, photo());
    SavedTheme theme = savedTheme();
    const auto at = [](double x, Skin skin) { // 280 points from the top
        return SavedWidget{WidgetConfig(WidgetKind::cpu, skin), x / DesktopCanvas::size.width(), 0.5};
    };
    const auto joins = [&](Skin second) {
        const SavedWidget first = at(200, Skin::paper);
        const double right = 200 + first.config.size().width();
        theme.widgets = {first, at(right + 40, second)};
        const QImage picture = DesktopCanvas::of(theme, samples).picture({1440, 900}, greyWallpaper());
        return picture.pixel(static_cast<int>(right) + 20, 365) != picture.pixel(0, 0);
    };
    EXPECT_TRUE(joins(Skin::paper));
    EXPECT_FALSE(joins(Skin::glass));
}

TEST(DesktopCanvasTest, AllSkinsAreDrawnAlikeOnEveryThread)
{
    const SampleWorld samples(headless, photo());
    const Wallpaper wallpaper = greyWallpaper();
    std::atomic<bool> ends = false;
    std::jthread disturbance([&ends, canvas = DesktopCanvas::of(Skin::classic, samples), wallpaper] {
        while (!ends)
            canvas.picture({72, 45}, wallpaper, 1);
    });
    for (const Skin skin : allCases<Skin>()) {
        const DesktopCanvas canvas = DesktopCanvas::of(skin, samples);
        QImage there;
        std::jthread([&] { there = canvas.picture({720, 450}, wallpaper, 1); }).join();
        const QImage here = canvas.picture({720, 450}, wallpaper, 1);
        EXPECT_EQ(here, there) << qPrintable(rawValue(skin));
        EXPECT_FALSE(painted(here).isEmpty());
    }
    ends = true;
}

class DesktopSnapshotsTest : public testing::Test {
protected:
    DesktopSnapshots::Collaborators with(const Wallpaper& wallpaper = greyWallpaper(), int build = 7)
    {
        return {wallpaper, ImageDiskCache(m_folder.filePath(u"Previews"_s), build), m_accents,
            [this] {
                ++m_photos;
                return photo();
            },
            [this](std::unique_ptr<Clock> clock) {
                ++m_worlds;
                return headless(std::move(clock));
            }};
    }
    QStringList files() const { return QDir(m_folder.filePath(u"Previews"_s)).entryList(QDir::Files); }
    /// Waits for the miniature.
    static QImage made(DesktopSnapshots& snapshots, const DesktopSnapshots::Desktop& desktop)
    {
        EXPECT_TRUE(waitUntil([&] { return !snapshots.image(desktop).isNull(); }));
        return snapshots.image(desktop);
    }

    UserDefaults m_defaults = UserDefaults::temporary();
    ThemeAccent m_accents{m_defaults};
    const TestFolder m_folder;
    std::atomic<int> m_photos = 0;
    int m_worlds = 0;
};

TEST_F(DesktopSnapshotsTest, FirstInFirstOutEachOnce)
{
    DesktopSnapshots snapshots(with());
    QStringList order;
    QObject::connect(&snapshots, &DesktopSnapshots::changed, [&](const QString& key) { order += key; });
    for (const Skin skin : {Skin::mono, Skin::glass, Skin::mono, Skin::classic})
        EXPECT_TRUE(snapshots.image(skin).isNull());
    snapshots.drop(u"preset-glass"_s);
    snapshots.drop(u"preset-mono"_s); // too late
    const SavedTheme mine = savedTheme();
    EXPECT_EQ(made(snapshots, mine).size(), DesktopSnapshots::pixels);
    EXPECT_EQ(order, (QStringList{u"preset-mono"_s, u"preset-classic"_s, snapshots.wish(mine).key}));
    EXPECT_EQ(files(), (QStringList{u"preset-classic-b7-r16.jpg"_s, u"preset-mono-b7-r16.jpg"_s}));
    EXPECT_EQ(m_photos, 1);
    EXPECT_FALSE(made(snapshots, Skin::glass).isNull()) << "a dropped one can be asked for again";
}

TEST_F(DesktopSnapshotsTest, TheDiskServesSkinsOnlyAndNeedsNoSamples)
{
    const SavedTheme mine = savedTheme();
    QImage first;
    {
        DesktopSnapshots snapshots(with());
        first = made(snapshots, Skin::mono);
        made(snapshots, mine);
    }
    m_worlds = 0;
    DesktopSnapshots again(with());
    EXPECT_EQ(made(again, Skin::mono), first);
    EXPECT_EQ(m_worlds, 0);
    made(again, mine);
    EXPECT_EQ(m_worlds, 1) << "a saved desktop is drawn anew";
    again.release();
    EXPECT_TRUE(again.image(Skin::mono).isNull());
    EXPECT_EQ(made(again, Skin::mono), first);
    EXPECT_FALSE(again.image(mine).isNull()) << "nothing else has it";
    m_folder.write(u"Previews/preset-mono-b8-r16.jpg"_s, "\xFF\xD8\xFF\xE0 and so on");
    DesktopSnapshots newer(with(greyWallpaper(), 8));
    EXPECT_EQ(made(newer, Skin::mono), first) << "not the damaged file";
}

TEST_F(DesktopSnapshotsTest, AnAccentMakesASecondPictureWithoutFile)
{
    DesktopSnapshots snapshots(with());
    const QImage own = made(snapshots, Skin::mono);
    // What is drawn asks the accents of the program, which here are not those of the test.
    ThemeAccent& shared = ThemeAccent::shared();
    DesktopSnapshots coloured(
        {greyWallpaper(), ImageDiskCache(m_folder.filePath(u"Coloured"_s), 7), shared, photo, headless});
    DesktopSnapshots::Wish red;
    shared.withPreview(QColor(Qt::red), Skin::mono, [&] { red = coloured.wish(Skin::mono); });
    ASSERT_NE(red.key, coloured.wish(Skin::mono).key);
    ASSERT_TRUE(waitUntil([&] { return !coloured.packed(red).isEmpty(); }));
    EXPECT_FALSE(QFileInfo::exists(m_folder.filePath(u"Coloured"_s)));
    EXPECT_NE(ImageDiskCache::unpacked(coloured.packed(red)), own);
    EXPECT_EQ(made(coloured, Skin::mono), own);
}

TEST_F(DesktopSnapshotsTest, AnotherDesktopIsAnotherPicture)
{
    const DesktopSnapshots snapshots(with());
    SavedTheme theme = savedTheme();
    QSet<QString> keys;
    const auto note = [&] { keys.insert(snapshots.wish(theme).key); };
    note();
    theme.name = u"Renamed"_s;
    note();
    EXPECT_EQ(keys.size(), 1);
    theme.widgets[0].fx = 0.2;
    note();
    theme.widgets[0].config.border = true;
    note();
    std::swap(theme.widgets[0], theme.widgets[1]);
    note();
    m_accents.set(QColor(Qt::red), Skin::mono);
    note();
    EXPECT_EQ(keys.size(), 5);
    EXPECT_TRUE(std::ranges::all_of(keys, [](const QString& key) { return key.startsWith("saved-"_L1); }));
}

TEST_F(DesktopSnapshotsTest, ExactPicturesAreToldToThoseWhoStillWait)
{
    DesktopSnapshots snapshots(with());
    const DesktopSnapshots::Wish wish = snapshots.wish(Skin::mono);
    QList<QSize> sizes;
    const auto note = [&sizes](const QImage& image) { sizes += image.size(); };
    const Ticket first = snapshots.draw(wish, {500, 312}, note);
    Ticket second = snapshots.draw(wish, {900, 562}, note);
    second.reset();
    made(snapshots, Skin::mono);
    EXPECT_EQ(sizes, (QList<QSize>{{500, 312}}));
}

TEST_F(DesktopSnapshotsTest, OneWorldOfSamplesIsLentToAllWhoStillWait)
{
    DesktopSnapshots snapshots(with());
    QStringList lent;
    const auto note = [&lent](const QString& name) {
        return [&lent, name](const SampleWorld& world) {
            EXPECT_FALSE(noticeOf(world.readingFor(WidgetConfig(WidgetKind::weather, Skin::mono), false)));
            lent += name;
        };
    };
    const Ticket first = snapshots.borrowSamples(note(u"first"_s));
    Ticket gone = snapshots.borrowSamples(note(u"gone"_s));
    gone.reset();
    made(snapshots, Skin::mono);
    EXPECT_EQ(lent, QStringList{u"first"_s});
    const Ticket atOnce = snapshots.borrowSamples(note(u"at once"_s));
    EXPECT_EQ(lent.last(), u"at once"_s);
    EXPECT_TRUE(m_worlds == 1 && m_photos == 1);
    snapshots.release();
    const Ticket afterwards = snapshots.borrowSamples(note(u"afterwards"_s));
    EXPECT_TRUE(waitUntil([&] { return lent.last() == u"afterwards"_s; }));
    EXPECT_EQ(m_worlds, 2) << "nothing of the first one was kept";
}

TEST_F(DesktopSnapshotsTest, AFailureDoesNotHoldUpTheOthers)
{
    // There is no memory for such a picture; its recipe is never asked.
    DesktopSnapshots snapshots(with());
    bool told = false;
    const Ticket wish = snapshots.draw(snapshots.wish(Skin::mono), {40000, 25000}, [&](const QImage& image) {
        told = true;
        EXPECT_TRUE(image.isNull());
    });
    ASSERT_TRUE(waitUntil([&] { return told; }));
    EXPECT_FALSE(made(snapshots, Skin::mono).isNull()) << "the queue goes on";
}

TEST_F(DesktopSnapshotsTest, AllAtOnceWithoutTheQueue)
{
    DesktopSnapshots snapshots(with());
    QStringList order;
    QObject::connect(&snapshots, &DesktopSnapshots::changed, [&](const QString& key) { order += key; });
    EXPECT_TRUE(snapshots.image(Skin::velvet).isNull()); // on its way
    EXPECT_TRUE(snapshots.image(Skin::mono).isNull()); // queued
    snapshots.renderPresetsNow();
    EXPECT_EQ(order.size(), allCases<Skin>().size());
    EXPECT_EQ(order.first(), u"preset-"_s + rawValue(allCases<Skin>().front()));
    const QImage now = snapshots.image(Skin::velvet);
    EXPECT_FALSE(now.isNull());
    QCoreApplication::processEvents();
    EXPECT_EQ(snapshots.image(Skin::velvet), now);
}

TEST_F(DesktopSnapshotsTest, ALargePhotoLooksTheSameOnEveryWay)
{
    const auto stripes = [] {
        QImage image(1152, 720, QImage::Format_RGB32);
        for (int y = 0; y < image.height(); ++y)
            std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(y)), image.width(), y % 3 ? 0xffc02040 : 0xff208040);
        return image;
    };
    DesktopSnapshots::Collaborators queued = with();
    queued.samplePhoto = stripes;
    DesktopSnapshots::Collaborators atOnce = with(greyWallpaper(), 8);
    atOnce.samplePhoto = stripes;
    DesktopSnapshots later(queued);
    DesktopSnapshots now(atOnce);
    now.renderPresetsNow();
    EXPECT_EQ(made(later, Skin::velvet), now.image(Skin::velvet));
}

TEST_F(DesktopSnapshotsTest, MayGoWhileItWorks)
{
    for (int round = 0; round < 5; ++round) {
        DesktopSnapshots snapshots(with());
        for (const Skin skin : allCases<Skin>())
            snapshots.image(skin);
        for (int events = 0; events < round; ++events)
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    QCoreApplication::processEvents();
}

} // namespace
