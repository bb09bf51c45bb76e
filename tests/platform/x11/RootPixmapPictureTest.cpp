// SPDX-License-Identifier: MIT

#include "platform/x11/root/RootPixmapPicture.h"
#include "platform/x11/Onlooker.h"
#include "support/AnswerOf.h"
#include "support/TestFolder.h"

#include <QGuiApplication>
#include <QJsonObject>
#include <QScreen>
#include <QStandardPaths>

namespace ambrelle::test {
namespace {

using namespace Qt::StringLiterals;

constexpr QRgb red = 0xFFD02010;
constexpr QRgb green = 0xFF20B040;
constexpr QRgb blue = 0xFF1030D0;

class RootPixmapPictureTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        ASSERT_TRUE(desktop.isAvailable());
        for (const char* name : {"_XROOTPMAP_ID", "ESETROOT_PMAP_ID"})
            ASSERT_TRUE(runTool(u"xprop"_s, {u"-root"_s, u"-remove"_s, QString::fromLatin1(name)}));
        const QScreen* screen = QGuiApplication::primaryScreen();
        whole = QRect({0, 0}, (QSizeF(screen->size()) * screen->devicePixelRatio()).toSize());
        connector = screen->name();
    }
    void TearDown() override
    {
        if (!m_isSplit)
            return;
        EXPECT_TRUE(runTool(u"xrandr"_s, {u"--delmonitor"_s, u"right"_s}));
        EXPECT_TRUE(runTool(u"xrandr"_s, {u"--delmonitor"_s, u"left"_s}));
        EXPECT_TRUE(waitUntil([this] { return QGuiApplication::primaryScreen()->name() == connector; }));
    }

    /// Makes two screens of one, called "left" and "right", the latter lower than the former.
    void split()
    {
        left = QRect(0, 0, whole.width() / 2, whole.height());
        right = QRect(left.width(), 0, whole.width() - left.width(), whole.height() / 2);
        const auto add = [](const QString& name, const QRect& area, const QString& output) {
            const QString place = u"%1/170x%2/210+%3+0"_s.arg(area.width()).arg(area.height()).arg(area.x());
            return runTool(u"xrandr"_s, {u"--setmonitor"_s, name, place, output});
        };
        m_isSplit = true;
        ASSERT_TRUE(add(u"left"_s, left, u"screen"_s));
        ASSERT_TRUE(add(u"right"_s, right, u"none"_s));
        ASSERT_TRUE(waitUntil([] {
            const auto screens = QGuiApplication::screens();
            return screens.size() == 2 && screens[0]->geometry().left() != screens[1]->geometry().left()
                && screens[0]->geometry().width() == screens[1]->geometry().width();
        }));
    }

    QString picture(const QString& name, const QList<QRgb>& stripes) const
    {
        constexpr int height = 120;
        QImage image(80, height * static_cast<int>(stripes.size()), QImage::Format_RGB32);
        for (int row = 0; row < image.height(); ++row)
            std::fill_n(reinterpret_cast<QRgb*>(image.scanLine(row)), image.width(), stripes[row / height]);
        QString path = folder.filePath(name);
        EXPECT_TRUE(image.save(path));
        return path;
    }
    bool showsOnly(const QRect& area, QRgb colour) const
    {
        QImage expected(area.size(), QImage::Format_RGB32);
        expected.fill(colour);
        return onlooker.picture(area) == expected;
    }
    uint32_t named(const char* property = "_XROOTPMAP_ID") const
    {
        const std::vector<uint32_t> ids = onlooker.values(root(), property);
        return ids.empty() ? 0 : ids.front();
    }
    static xcb_window_t root()
    {
        auto* x11 = qGuiApp->nativeInterface<QNativeInterface::QX11Application>();
        return xcb_setup_roots_iterator(xcb_get_setup(x11->connection())).data->root;
    }

    QString set(const QList<ScreenPicture>& pictures)
    {
        return answerOf<QString>([&](auto done) { desktop.set(pictures, done); });
    }
    static QString read(DesktopPicture& which, const QString& screen)
    {
        return answerOf<QString>([&](auto done) { which.read(screen, done); });
    }
    QJsonObject remember()
    {
        return answerOf<QJsonObject>([&](auto done) { desktop.remember(folder.path(), done); });
    }
    QString giveBack(const QJsonObject& memory)
    {
        return answerOf<QString>([&](auto done) { desktop.giveBack(memory, done); });
    }

    const TestFolder folder;
    Onlooker onlooker;
    RootPixmapPicture desktop;
    QRect whole;
    QRect left;
    QRect right;
    QString connector;

private:
    bool m_isSplit = false;
};

TEST_F(RootPixmapPictureTest, EachScreenShowsItsPicture)
{
    split();
    const QString first = picture(u"first.png"_s, {red});
    const QString second = picture(u"second ü.png"_s, {blue});
    ASSERT_EQ(set({{u"left"_s, first}, {u"right"_s, second}}), QString());
    EXPECT_TRUE(showsOnly(left, red));
    EXPECT_TRUE(showsOnly(right, blue));
    EXPECT_EQ(read(desktop, u"left"_s), first);
    EXPECT_EQ(read(desktop, u"right"_s), second);
    EXPECT_EQ(read(desktop, u"later"_s), QString()) << "another screen's";
    EXPECT_EQ(named(), named("ESETROOT_PMAP_ID"));

    const uint32_t before = named();
    ASSERT_EQ(set({{u"right"_s, picture(u"third.png"_s, {green})}}), QString());
    EXPECT_TRUE(showsOnly(left, red)) << "the other screen keeps its picture";
    EXPECT_TRUE(showsOnly(right, green));
    EXPECT_EQ(read(desktop, u"left"_s), first);
    EXPECT_NE(named(), before);

    EXPECT_EQ(set({{u"elsewhere"_s, first}}), u"There is no screen “elsewhere”."_s);
    EXPECT_TRUE(showsOnly(right, green));
}

TEST_F(RootPixmapPictureTest, FillsTheScreenAndLeavesNothingBehind)
{
    // Far taller than the screen, so that only the middle is left.
    ASSERT_EQ(set({{connector, picture(u"tall.png"_s, {red, green, blue})}}), QString());
    EXPECT_TRUE(showsOnly(whole, green));
    const uint32_t before = named();
    EXPECT_TRUE(onlooker.hasPixmap(before));
    ASSERT_EQ(set({{connector, picture(u"red.png"_s, {red})}}), QString());
    EXPECT_FALSE(onlooker.hasPixmap(before)) << "the picture before is still on the server";
    EXPECT_TRUE(onlooker.hasPixmap(named()));
}

TEST_F(RootPixmapPictureTest, KnowsItsPictureUntilAnotherProgramSetsOne)
{
    if (QStandardPaths::findExecutable(u"feh"_s).isEmpty())
        GTEST_SKIP() << "feh is not installed";
    EXPECT_EQ(read(desktop, connector), QString());
    const QString file = picture(u"ours.png"_s, {red});
    ASSERT_EQ(set({{connector, file}}), QString());
    RootPixmapPicture restarted;
    EXPECT_EQ(read(restarted, connector), file);
    const uint32_t ours = named();

    ASSERT_TRUE(runTool(u"feh"_s, {u"--no-fehbg"_s, u"--bg-fill"_s, picture(u"theirs.png"_s, {blue})}));
    EXPECT_TRUE(showsOnly(whole, blue));
    EXPECT_FALSE(onlooker.hasPixmap(ours)) << "the other program could not clear our picture away";
    EXPECT_EQ(read(desktop, connector), QString());

    const uint32_t theirs = named();
    ASSERT_EQ(set({{connector, file}}), QString());
    EXPECT_TRUE(showsOnly(whole, red));
    EXPECT_FALSE(onlooker.hasPixmap(theirs));
    EXPECT_EQ(read(desktop, connector), file);
}

TEST_F(RootPixmapPictureTest, GivesTheOldPictureBack)
{
    EXPECT_EQ(remember(), QJsonObject()) << "nothing shows";
    const QImage old = speckled(whole.size());
    onlooker.setRootPicture(old);
    const QJsonObject foreign = remember();
    EXPECT_FALSE(foreign.isEmpty());
    const QString file = picture(u"ours.png"_s, {green});
    ASSERT_EQ(set({{connector, file}}), QString());
    EXPECT_TRUE(showsOnly(whole, green));

    const QStringList files = QDir(folder.path()).entryList(QDir::Files);
    const QJsonObject own = remember();
    EXPECT_EQ(QDir(folder.path()).entryList(QDir::Files), files) << "a picture of our own needs no copy";

    EXPECT_EQ(giveBack(foreign), QString());
    EXPECT_EQ(onlooker.picture(whole), old);
    EXPECT_EQ(read(desktop, connector), QString());
    EXPECT_EQ(giveBack(own), QString());
    EXPECT_TRUE(showsOnly(whole, green));
    EXPECT_EQ(read(desktop, connector), file);
}

TEST_F(RootPixmapPictureTest, AFailureLeavesTheOldPicture)
{
    const QString file = picture(u"good.png"_s, {red});
    ASSERT_EQ(set({{connector, file}}), QString());
    const QJsonObject memory{{u"picture"_s, folder.filePath(u"gone.png"_s)}};
    const QString text = folder.write(u"text.png"_s, "no picture");
    const QString half = folder.write(u"half.png"_s, folder.read(u"good.png"_s).first(60));
    const QString huge = folder.write(u"huge.ppm"_s, "P6 30000 30000 255\n");
    const uint32_t before = named();
    EXPECT_EQ(set({{connector, text}}), u"“text.png” cannot be read as a picture."_s);
    EXPECT_TRUE(set({{connector, half}}).startsWith(u"“half.png” cannot be read as a picture"_s));
    EXPECT_EQ(set({{connector, huge}}), u"The picture “huge.ppm” has too many pixels."_s);
    EXPECT_TRUE(giveBack(memory).startsWith(u"There is no picture “"_s));
    EXPECT_EQ(named(), before);
    EXPECT_TRUE(showsOnly(whole, red));
    EXPECT_EQ(read(desktop, connector), file);
}

} // namespace
} // namespace ambrelle::test
