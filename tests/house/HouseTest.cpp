// SPDX-License-Identifier: MIT

#include <QDir>
#include <QDirIterator>
#include <QFile>
#include <QMap>
#include <QRegularExpression>
#include <QSet>

#include <algorithm>
#include <utility>

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

QString contentOf(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

/// The rooms and who may know whom, as the tables of the readme say.
class House {
public:
    explicit House(const QString& readme)
    {
        for (const QString& line : readme.split(u'\n')) {
            const QStringList cells = line.split(u'|');
            if (cells.size() == 6 && isNumber(cells[1]))
                m_levels[names(cells[2]).value(0)] = cells[1].trimmed().toInt();
            else if (cells.size() == 5 && cells[1].contains("`platform/"_L1))
                m_hosts[names(cells[1]).value(0)] = names(cells[3]);
        }
    }

    const QMap<QString, int>& levels() const { return m_levels; }
    const QMap<QString, QStringList>& hosts() const { return m_hosts; }

    /// "skins" for "skins/paper/PaperSkin.h", "platform/x11" for "platform/x11/Host.h"; the innermost room.
    QString roomOf(const QString& path) const
    {
        QString room = path.section(u'/', 0, -2);
        while (!room.isEmpty() && !m_hosts.contains(room) && !m_levels.contains(room))
            room = room.section(u'/', 0, -2);
        return room;
    }
    bool mayInclude(const QString& from, const QString& to) const
    {
        if (from.isEmpty() || to.isEmpty() || from == to)
            return !from.isEmpty() && from == to;
        if (m_hosts.contains(from))
            return to == "platform"_L1 || to == "foundation"_L1 || knows(m_hosts[from], to);
        if (m_hosts.contains(to))
            return from == "app"_L1;
        return m_levels[to] < m_levels[from];
    }

private:
    static bool isNumber(const QString& cell)
    {
        bool isNumber = false;
        cell.trimmed().toInt(&isNumber);
        return isNumber;
    }
    /// The folders between back quotes, without their last slash.
    static QStringList names(const QString& cell)
    {
        static const QRegularExpression quoted(u"`([^`]+?)/?`"_s);
        QStringList names;
        for (auto found = quoted.globalMatch(cell); found.hasNext();)
            names.append(found.next().captured(1));
        return names;
    }
    static bool knows(const QStringList& rooms, const QString& to)
    {
        return std::ranges::any_of(rooms, [&](const QString& room) {
            return room == to || (room.endsWith("/*"_L1) && to.startsWith(room.chopped(1)));
        });
    }

    QMap<QString, int> m_levels;
    QMap<QString, QStringList> m_hosts; ///< with the rooms each knows
};

struct HouseTest : testing::Test {
    const QDir sources{QString::fromUtf8(AMBRELLE_SOURCES)};
    const House house{contentOf(sources.filePath(u"README.md"_s))};

    /// Every file with each of those it includes.
    QList<std::pair<QString, QString>> arrows() const
    {
        static const QRegularExpression include(
            uR"re(^\s*#\s*include\s*"([^"]+)")re"_s, QRegularExpression::MultilineOption);
        QList<std::pair<QString, QString>> arrows;
        QDirIterator files(sources.path(), {u"*.h"_s, u"*.cpp"_s}, QDir::Files, QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString path = sources.relativeFilePath(files.next());
            for (auto found = include.globalMatch(contentOf(files.filePath())); found.hasNext();)
                arrows.append({path, found.next().captured(1)});
        }
        return arrows;
    }
};

TEST_F(HouseTest, ArrowsRunDownwards)
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
             Case{"platform/x11/Host.h", "platform/x11/window/Panel.h", true},
             Case{"platform/x11/window/Panel.h", "platform/x11/Host.h", false},
             Case{"platform/x11/window/Panel.h", "platform/linux/kernel/Ticks.h", false},
             Case{"platform/x11/Host.h", "services/Weather.h", false},
             Case{"platform/x11/Host.h", "model/Skin.h", false},
         })
        EXPECT_EQ(
            house.mayInclude(house.roomOf(QLatin1StringView(arrow.from)), house.roomOf(QLatin1StringView(arrow.to))),
            arrow.allowed)
            << arrow.from << " -> " << arrow.to;
}

TEST_F(HouseTest, EveryFolderIsARoomOfTheReadme)
{
    QDirIterator folders(sources.path(), QDir::Dirs | QDir::NoDotAndDotDot, QDirIterator::Subdirectories);
    while (folders.hasNext()) {
        const QString folder = sources.relativeFilePath(folders.next());
        const qsizetype files = QDir(folders.filePath()).entryList({u"*.h"_s, u"*.cpp"_s}).size();
        const bool isPart = folder.startsWith("skins/"_L1) || folder.startsWith("window/"_L1);
        EXPECT_TRUE(files == 0 || isPart || house.levels().contains(folder) || house.hosts().contains(folder))
            << qPrintable(folder);
        EXPECT_LE(files, 64) << qPrintable(folder) << " has lost its order";
    }
    for (const QString& room : house.levels().keys() + house.hosts().keys())
        EXPECT_FALSE(QDir(sources.filePath(room)).isEmpty()) << qPrintable(room);
}

TEST_F(HouseTest, EveryIncludeKeepsToTheLevels)
{
    for (const auto& [path, target] : arrows())
        EXPECT_TRUE(target.endsWith(".moc"_L1) || house.mayInclude(house.roomOf(path), house.roomOf(target)))
            << qPrintable(path + " includes "_L1 + target);
    EXPECT_FALSE(arrows().isEmpty()) << "no sources below " << qPrintable(sources.path());
}

TEST_F(HouseTest, FoldersOfARoomGoInNoCircle)
{
    QMap<QString, QSet<QString>> known; // to each folder in a room
    for (const auto& [path, target] : arrows()) {
        const QString folder = path.section(u'/', 0, 1);
        const QString other = target.section(u'/', 0, 1);
        if (path.count(u'/') == 2 && target.count(u'/') == 2 && folder != other
            && house.roomOf(path) == house.roomOf(target))
            known[folder].insert(other);
    }
    EXPECT_GT(known.size(), 2);
    const auto needsNone = [&](QMap<QString, QSet<QString>>::iterator folder) {
        return std::ranges::none_of(*folder, [&](const QString& other) { return known.contains(other); });
    };
    while (known.removeIf(needsNone) > 0) { }
    EXPECT_TRUE(known.isEmpty()) << qPrintable(QStringList(known.keys()).join(", "_L1));
}

} // namespace
