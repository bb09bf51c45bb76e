// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/DesktopPrograms.h"

#include "platform/linux/desktop/DesktopEntryText.h"

#include "platform/linux/ToolDesk.h"

namespace ambrelle::test {
namespace {

using namespace Qt::StringLiterals;

TEST(DesktopPrograms, TellsWhetherAProgramCanBeStartedHere)
{
    struct Case {
        const char* name;
        QByteArray lines;
        bool usable;
    };
    const QByteArray program = "Type=Application\nExec=true\n";
    for (const Case& entry : {
             Case{"plain", program, true},
             Case{"no type", "Exec=true\n", false},
             Case{"a link", "Type=Link\nURL=https://example.org\nExec=true\n", false},
             Case{"nothing to run", "Type=Application\n", false},
             Case{"run by message", "Type=Application\nDBusActivatable=true\n", true},
             Case{"deleted by the user", program + "Hidden=true\n", false},
             Case{"not in menus, such as a settings panel", program + "NoDisplay=true\n", true},
             Case{"for this desktop", program + "OnlyShowIn=GNOME;XFCE;\n", true},
             Case{"for others", program + "OnlyShowIn=KDE\n", false},
             Case{"not for this one", program + "NotShowIn=XFCE;KDE;\n", false},
             Case{"its program is there", program + "TryExec=sh\n", true},
             Case{"its program has gone", program + "TryExec=/no/such/program\n", false},
             Case{"said in another group", program + "[Desktop Action New]\nHidden=true\n", true},
             Case{"said in a comment, with odd spaces", "Type = Application\n#Hidden=true\n Exec =true\r\n", true},
         }) {
        const QByteArray text = "# made by hand\n[Desktop Entry]\n" + entry.lines;
        EXPECT_EQ(DesktopPrograms::isUsable(DesktopEntryText(text), {u"XFCE"_s}), entry.usable) << entry.name;
    }
    EXPECT_FALSE(DesktopPrograms::isUsable(DesktopEntryText("Type=Application\nExec=true\n"), {}))
        << "outside of any group";
    EXPECT_FALSE(DesktopPrograms::isUsable(DesktopEntryText(QByteArray("\0\xff[=", 4)), {}));
}

/// A file manager on the bus.
class FileManager final : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.FileManager1")
public:
    QStringList shown;

public Q_SLOTS:
    void ShowItems(const QStringList& uris, const QString& /*startup*/) { shown += uris; }
};

class DesktopProgramsTest : public ToolDesk { };

TEST_F(DesktopProgramsTest, AFileIsShownByTheFileManagerElseItsFolderIsOpened)
{
    const PrivateBus bus;
    if (!bus.isRunning())
        GTEST_SKIP() << "no message bus";
    addTool(u"xdg-open"_s, "printf '%s\\n' \"$@\" > HERE/part && mv HERE/part HERE/arguments\n");
    DesktopPrograms programs({}, bus.opener());
    const QString file = path(u"two words.png"_s);
    const auto show = [&] { return answerOf<QString>([&](auto done) { programs.showInFolder(file, done); }); };
    EXPECT_EQ(show(), QString());
    ASSERT_TRUE(waitUntil([this] { return QFile::exists(path(u"arguments"_s)); }));
    EXPECT_EQ(contents(u"arguments"_s), QFile::encodeName(folder.path()) + '\n');

    FileManager manager;
    QDBusConnection server = bus.connection(u"server"_s);
    ASSERT_TRUE(server.registerObject(u"/org/freedesktop/FileManager1"_s, &manager, QDBusConnection::ExportAllSlots));
    ASSERT_TRUE(server.registerService(u"org.freedesktop.FileManager1"_s));
    EXPECT_EQ(show(), QString());
    EXPECT_EQ(manager.shown, QStringList{u"file://"_s + folder.path() + u"/two%20words.png"_s});
}

TEST_F(DesktopProgramsTest, TheDesktopsLauncherGetsTheEntry)
{
    const QByteArray text = "[Desktop Entry]\nType=Application\nExec=true\n";
    writeFile(u"home/applications/org.example.Own.desktop"_s, text);
    writeFile(u"home/applications/org.example.Gone.desktop"_s, text + "Hidden=true\n");
    writeFile(u"system/applications/org.example.Gone.desktop"_s, text);
    addTool(u"gio"_s, "printf '%s\\n' \"$@\" > HERE/part && mv HERE/part HERE/arguments\n");
    const Variable home("XDG_DATA_HOME", QFile::encodeName(path(u"home"_s)));
    const Variable system("XDG_DATA_DIRS", QFile::encodeName(path(u"system"_s)));

    DesktopPrograms programs({u"XFCE"_s});
    EXPECT_FALSE(programs.has(u"org.example.Gone"_s)) << "the user's own entry hides the system's";
    EXPECT_FALSE(programs.has(u"../applications/org.example.Own"_s));
    ASSERT_TRUE(programs.has(u"org.example.Own"_s));
    programs.open(u"org.example.Own"_s);
    ASSERT_TRUE(waitUntil([this] { return QFile::exists(path(u"arguments"_s)); }));
    EXPECT_EQ(contents(u"arguments"_s),
        "launch\n" + QFile::encodeName(path(u"home/applications/org.example.Own.desktop"_s)) + '\n');
}

TEST_F(DesktopProgramsTest, AFolderIsMadeAndOpenedByWhatThereIs)
{
    const Variable bare("PATH", QFile::encodeName(folder.path()));
    addTool(u"mkdir"_s, "exec /bin/mkdir \"$@\"\n");
    addTool(u"mv"_s, "exec /bin/mv \"$@\"\n");
    const QString folder = path(u"new/a folder"_s);
    DesktopPrograms programs({});
    EXPECT_TRUE(programs.openFolder(folder).contains(folder)) << "nothing here opens folders";
    EXPECT_FALSE(QFile::exists(folder));
    addTool(u"gio"_s, "printf '%s\\n' \"$@\" > HERE/part && mv HERE/part HERE/arguments\n");
    EXPECT_EQ(programs.openFolder(folder), QString());
    ASSERT_TRUE(waitUntil([this] { return QFile::exists(path(u"arguments"_s)); }));
    EXPECT_EQ(contents(u"arguments"_s), "open\n" + QFile::encodeName(folder) + '\n');
    EXPECT_TRUE(QFile::exists(folder));
}

} // namespace
} // namespace ambrelle::test

#include "DesktopProgramsTest.moc"
