#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

// The table of main/README.md.
const QMap<QString, int> levels{
    {u"foundation"_s, 0},
    {u"model"_s, 1},
    {u"platform"_s, 1},
    {u"drawing"_s, 2},
    {u"services"_s, 2},
    {u"faces"_s, 3},
    {u"wallpapers"_s, 3},
    {u"skins"_s, 4},
    {u"desktop"_s, 5},
    {u"window"_s, 6},
    {u"offline"_s, 6},
    {u"updates"_s, 6},
    {u"app"_s, 7},
};

/// "skins" for "skins/paper/PaperSkin.h"; each host is a room of its own, such as "platform/x11".
QString roomOf(const QString& path)
{
    const bool host = path.startsWith("platform/"_L1) && path.count(u'/') > 1;
    return path.section(u'/', 0, host ? 1 : 0);
}

bool isHost(const QString& room)
{
    return room.startsWith("platform/"_L1);
}

bool mayInclude(const QString& from, const QString& to)
{
    if (from == to)
        return true;
    if (isHost(from))
        return to == "platform"_L1 || to == "foundation"_L1 || to == "model"_L1;
    if (isHost(to))
        return from == "app"_L1;
    return levels.contains(from) && levels.contains(to) && levels[to] < levels[from];
}

TEST(House, arrowsRunDownwards)
{
    struct Case {
        const char* from;
        const char* to;
        bool allowed;
    };
    for (const Case& arrow : {
             Case{"faces/Units.h", "faces/Readings.h", true},
             Case{"skins/paper/PaperSkin.h", "skins/Registry.h", true},
             Case{"skins/Registry.h", "faces/Units.h", true},
             Case{"drawing/Canvas.h", "services/Weather.h", false},
             Case{"model/Skin.h", "platform/WindowHost.h", false},
             Case{"faces/Units.h", "skins/Registry.h", false},
             Case{"faces/Units.h", "cellar/Wine.h", false},
             Case{"app/main.cpp", "platform/x11/Host.h", true},
             Case{"desktop/Panel.h", "platform/x11/Host.h", false},
             Case{"platform/x11/Host.h", "platform/WindowHost.h", true},
             Case{"platform/x11/Host.h", "platform/linux/Ticks.h", false},
             Case{"platform/x11/Host.h", "services/Weather.h", false},
         })
        EXPECT_EQ(
            mayInclude(roomOf(QString::fromLatin1(arrow.from)), roomOf(QString::fromLatin1(arrow.to))), arrow.allowed)
            << arrow.from << " -> " << arrow.to;
}

TEST(House, everyIncludeKeepsToTheLevels)
{
    static const QRegularExpression include(
        uR"re(^\s*#\s*include\s*"([^"]+)")re"_s, QRegularExpression::MultilineOption);
    const QDir house(QStringLiteral(AMBRELLE_SOURCES));
    int arrows = 0;
    QDirIterator files(house.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
    while (files.hasNext()) {
        QFile file(files.next());
        const QString path = house.relativeFilePath(file.fileName());
        ASSERT_TRUE(file.open(QIODevice::ReadOnly)) << qPrintable(path);
        for (auto found = include.globalMatch(QString::fromUtf8(file.readAll())); found.hasNext(); ++arrows) {
            const QString target = found.next().captured(1);
            EXPECT_TRUE(target.endsWith(".moc"_L1) || mayInclude(roomOf(path), roomOf(target)))
                << qPrintable(path + " includes "_L1 + target);
        }
    }
    EXPECT_GT(arrows, 0) << "no sources below " << qPrintable(house.path());
}

} // namespace
