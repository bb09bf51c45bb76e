// SPDX-License-Identifier: MIT

#include "platform/linux/desktop/AutostartEntry.h"

#include "support/TestFolder.h"

#include <QProcess>
#include <QStandardPaths>

namespace ambrelle {
namespace {

using namespace Qt::StringLiterals;

const QString name = u"/autostart/org.ambrelle.Ambrelle.desktop"_s;

class AutostartEntryTest : public ::testing::Test {
protected:
    const TestFolder folder;
    const QString user = folder.filePath(u"user"_s);
    AutostartEntry entry = makeEntry(u"/opt/ambrelle/bin/ambrelle"_s);

    AutostartEntry makeEntry(const QString& program) const
    {
        return AutostartEntry(program, {user, {folder.filePath(u"none"_s), folder.filePath(u"system"_s)}});
    }
    void write(const QString& root, const QByteArray& text) const { folder.write(root + name, text); }
    QByteArray written() const { return folder.read(u"user"_s + name); }
    bool isOn() const { return entry.status() == LoginItem::Status::enabled; }
};

TEST_F(AutostartEntryTest, WhoeverWroteItTheEntrySaysWhetherTheProgramStarts)
{
    struct Case {
        const char* user; ///< null: no file
        const char* system;
        bool on;
    };
    const QByteArray group = "[Desktop Entry]\nType=Application\nName=A\nExec=a\n";
    for (const Case& each : {
             Case{nullptr, nullptr, false},
             Case{"", nullptr, true},
             Case{nullptr, "", true},
             Case{"Hidden=true\n", "", false},
             Case{" Hidden = true \r\n", nullptr, false},
             Case{"X-GNOME-Autostart-enabled=false\n", "", false},
             Case{"X-GNOME-Autostart-enabled=true\nHidden=false\n", "Hidden=true\n", true},
             Case{"#Hidden=true\n[Desktop Action Quit]\nHidden=true\n", nullptr, true},
             Case{nullptr, "Hidden=true\n", false},
         }) {
        QDir(folder.path()).removeRecursively();
        if (each.user)
            write(u"user"_s, group + each.user);
        if (each.system)
            write(u"system"_s, group + each.system);
        EXPECT_EQ(isOn(), each.on) << (each.user ? each.user : "-") << '/' << (each.system ? each.system : "-");
        for (const bool on : {!each.on, each.on, each.on}) {
            EXPECT_EQ(entry.setEnabled(on), QString());
            EXPECT_EQ(isOn(), on);
        }
    }
}

TEST_F(AutostartEntryTest, TurnedOffItLeavesNothingButWhatTheUserAdded)
{
    entry.setEnabled(true);
    EXPECT_TRUE(written().contains("\nExec=\"/opt/ambrelle/bin/ambrelle\"\n"));
    makeEntry(u"/moved/ambrelle"_s).setEnabled(true);
    EXPECT_TRUE(written().contains("\nExec=\"/moved/ambrelle\"\n")) << "the program has moved";
    entry.setEnabled(false);
    EXPECT_FALSE(QFileInfo::exists(user + name));

    const QByteArray own = "# mine\n[Desktop Entry]\nType=Application\nName=Ambrelle\nName[de]=Meins\n"
                           "Exec=sh -c \"sleep 5; ambrelle\"\nOnlyShowIn=XFCE;\n\n[Desktop Action X]\nExec=x\n";
    write(u"user"_s, own);
    entry.setEnabled(false);
    EXPECT_NE(written(), own);
    entry.setEnabled(true);
    EXPECT_EQ(written(), own);
}

TEST_F(AutostartEntryTest, AnyPathOfTheProgramGivesAValidEntry)
{
    const QString validator = QStandardPaths::findExecutable(u"desktop-file-validate"_s);
    if (validator.isEmpty())
        GTEST_SKIP() << "desktop-file-validate is not installed";
    struct Case {
        QString program;
        QByteArray exec;
    };
    for (const Case& each : {
             Case{u"/usr/bin/ambrelle"_s, R"("/usr/bin/ambrelle")"},
             Case{u"/home/a b/100% ü/ambrelle"_s, "\"/home/a b/100%% ü/ambrelle\""},
             Case{uR"(/$HOME/`x`/"q"/b\s)"_s, R"("/\\$HOME/\\`x\\`/\\"q\\"/b\\\\s")"},
         }) {
        QFile::remove(user + name);
        EXPECT_EQ(makeEntry(each.program).setEnabled(true), QString());
        EXPECT_TRUE(written().contains("\nExec=" + each.exec + '\n')) << written().constData();
        EXPECT_EQ(QProcess::execute(validator, {user + name}), 0);
    }
}

TEST_F(AutostartEntryTest, ARefusalSaysSoAndLosesNothing)
{
    const QString message = u"Couldn't change the login item: "_s;
    folder.write(u"user"_s, {}); // where a folder should be
    EXPECT_TRUE(entry.setEnabled(true).startsWith(message));
    EXPECT_FALSE(isOn());
    QFile::remove(user);

    QDir().mkpath(user + name + u"/kept"_s); // a folder where the file should be
    EXPECT_TRUE(entry.setEnabled(true).startsWith(message));
    EXPECT_TRUE(QFileInfo(user + name + u"/kept"_s).isDir());
    QDir(user).removeRecursively();

    write(u"user"_s, "a letter\n");
    EXPECT_TRUE(entry.setEnabled(true).startsWith(message));
    EXPECT_EQ(written(), "a letter\n");
}

} // namespace
} // namespace ambrelle
