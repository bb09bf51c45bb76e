// SPDX-License-Identifier: MIT

#include "platform/linux/picture/GSettingsPicture.h"
#include "platform/linux/picture/GVariantText.h"
#include "platform/linux/picture/PcmanfmPicture.h"
#include "platform/linux/picture/SwayPicture.h"
#include "platform/linux/ToolDesk.h"

#include <QElapsedTimer>

namespace ambrelle::test {
namespace {

using namespace Qt::StringLiterals;
using namespace std::chrono_literals;

using Family = GSettingsPicture::Family;

TEST(GVariantTextTest, ReadsWhatTheToolsPrint)
{
    struct Case {
        QString text;
        std::optional<QString> expected;
    };
    const Case cases[]{
        {u"'file:///a%20b.png'"_s, u"file:///a%20b.png"_s},
        {u"\"it's\""_s, u"it's"_s},
        {uR"('a\\b\'c\td')"_s, u"a\\b'c\td"_s},
        {uR"('\u00fc\U0001f600')"_s, u"ü😀"_s},
        {u"''"_s, u""_s},
        {uR"('\u00f')"_s, std::nullopt},
        {uR"('open\')"_s, std::nullopt},
        {u"'"_s, std::nullopt},
        {u"true"_s, std::nullopt},
        {u""_s, std::nullopt},
    };
    for (const Case& each : cases)
        EXPECT_EQ(GVariantText::unquoted(each.text), each.expected) << qPrintable(each.text);
    for (const QString& string : {u"plain"_s, u"it's \"one\" \\ and\nanother ü"_s, u""_s})
        EXPECT_EQ(GVariantText::unquoted(GVariantText::quoted(string)), string);
}

/// Keeps rows of "schema key value" in a file, as GSettings would; refuses the key named in the file "locked", and
/// everything silently where there is a file "forgetful".
constexpr const char* fakeGSettings = R"sh(
case $1 in
list-recursively)
    grep "^$2 " HERE/settings || { echo "No such schema “$2”" >&2; exit 1; } ;;
set)
    [ "$3" = "$(cat HERE/locked 2>/dev/null)" ] && { printf 'The key is not writable\nindeed\n' >&2; exit 1; }
    [ -e HERE/forgetful ] && exit 0
    { grep -v "^$2 $3 " HERE/settings; printf '%s %s %s\n' "$2" "$3" "$4"; } | sort >HERE/settings.new
    mv HERE/settings.new HERE/settings ;;
esac
)sh";

class GSettingsPictureTest : public ToolDesk { };

TEST_F(GSettingsPictureTest, EveryDesktopHasItsOwnKeys)
{
    struct Case {
        const char* what;
        Family family;
        QByteArray schema;
        QByteArrayList before;
        QByteArrayList after; ///< "FILE" stands for the path, "URI" for the path with a space written %20
        QString known; ///< the file read before anything is set
    };
    const Case cases[]{
        {"one colour and no picture", Family::gnome, "org.gnome.desktop.background",
            {"picture-options 'none'", "picture-uri 'file:///usr/a.jpg'", "picture-uri-dark 'file:///usr/a.jpg'",
                "primary-color '#023c88'"},
            {"picture-options 'zoom'", "picture-uri 'file://URI'", "picture-uri-dark 'file://URI'",
                "primary-color '#023c88'"},
            {}},
        {"an older release", Family::gnome, "org.gnome.desktop.background",
            {"picture-options 'centered'", "picture-uri 'file:///usr/%C3%A4.jpg'"},
            {"picture-options 'zoom'", "picture-uri 'file://URI'"}, u"/usr/ä.jpg"_s},
        {"light and dark differ", Family::gnome, "org.gnome.desktop.background",
            {"picture-options 'zoom'", "picture-uri 'file:///usr/a.jpg'", "picture-uri-dark 'file:///usr/b.jpg'"},
            {"picture-options 'zoom'", "picture-uri 'file://URI'", "picture-uri-dark 'file://URI'"}, {}},
        {"addresses without a dark one", Family::cinnamon, "org.cinnamon.desktop.background",
            {"picture-options 'zoom'", "picture-uri 'file:///usr/a.jpg'"},
            {"picture-options 'zoom'", "picture-uri 'file://URI'"}, u"/usr/a.jpg"_s},
        {"paths in place of addresses", Family::mate, "org.mate.background",
            {"picture-filename '/usr/a b.jpg'", "picture-options 'stretched'"},
            {"picture-filename 'FILE'", "picture-options 'zoom'"}, u"/usr/a b.jpg"_s},
    };
    const auto stored = [](const QByteArray& schema, const QByteArrayList& rows) {
        return schema + ' ' + rows.join('\n' + schema + ' ') + '\n';
    };
    addTool(u"gsettings"_s, fakeGSettings);
    const QString file = addPicture(u"a picture.png"_s);
    for (const Case& each : cases) {
        SCOPED_TRACE(each.what);
        const QByteArray before = stored(each.schema, each.before);
        writeFile(u"settings"_s, before);
        GSettingsPicture desktop(each.family);
        EXPECT_EQ(read(desktop), each.known);
        const QJsonObject memory = remember(desktop);
        EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}}), QString());
        const QByteArray uri = QFile::encodeName(file).replace(' ', "%20");
        EXPECT_EQ(contents(u"settings"_s),
            stored(each.schema, each.after).replace("URI", uri).replace("FILE", QFile::encodeName(file)));
        EXPECT_EQ(read(desktop), file);
        EXPECT_EQ(giveBack(desktop, memory), QString());
        EXPECT_EQ(contents(u"settings"_s), before);
    }
}

TEST_F(GSettingsPictureTest, AFailureLeavesTheOldPicture)
{
    addTool(u"gsettings"_s, fakeGSettings);
    const QByteArray before = "org.gnome.desktop.background picture-options 'none'\n"
                              "org.gnome.desktop.background picture-uri 'file:///usr/a.jpg'\n"
                              "org.gnome.desktop.background picture-uri-dark 'file:///usr/b.jpg'\n";
    const QString file = addPicture(u"new.png"_s);
    struct Case {
        QString obstacle;
        QByteArray text;
        Family family;
        QString complaint;
    };
    for (const Case& each : {
             Case{u"locked"_s, "picture-uri-dark", Family::gnome, u"“gsettings” failed: The key is not writable"_s},
             Case{u"forgetful"_s, "", Family::gnome, u"The desktop's settings did not keep the picture."_s},
             Case{u"unrelated"_s, "", Family::mate, u"“gsettings” failed: No such schema “org.mate.background”"_s},
         }) {
        writeFile(u"settings"_s, before);
        writeFile(each.obstacle, each.text);
        GSettingsPicture desktop(each.family);
        EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}}), each.complaint);
        EXPECT_EQ(contents(u"settings"_s), before);
        QFile::remove(path(each.obstacle));
    }
}

TEST_F(GSettingsPictureTest, WorksWithTheRealTool)
{
    const Variable backend("GSETTINGS_BACKEND", "keyfile");
    QProcess list;
    list.start(u"gsettings"_s, {u"list-schemas"_s});
    if (!list.waitForFinished() || !list.readAllStandardOutput().contains("org.gnome.desktop.background\n"))
        GTEST_SKIP() << "gsettings or its desktop schemas are not installed";
    GSettingsPicture desktop(Family::gnome);
    const QString shipped = read(desktop);
    const QJsonObject memory = remember(desktop);
    EXPECT_EQ(memory.size(), 3);
    for (const QString& name : {u"plain.png"_s, u"it's \"ü\", 100% \\ $(x).png"_s}) {
        const QString file = addPicture(name);
        EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}}), QString());
        EXPECT_EQ(read(desktop, u"HDMI-1"_s), file) << "one picture for all screens";
    }
    EXPECT_TRUE(contents(u"config/glib-2.0/settings/keyfile"_s).contains("picture-options='zoom'"));
    EXPECT_EQ(giveBack(desktop, memory), QString());
    EXPECT_EQ(remember(desktop), memory);
    EXPECT_EQ(read(desktop), shipped);
}

class ToolFailureTest : public ToolDesk { };

TEST_F(ToolFailureTest, IsToldInASentence)
{
    const QString file = addPicture(u"new.png"_s);
    struct Case {
        QByteArray script; ///< empty: there is no tool
        QString complaint;
    };
    for (const Case& each : {
             Case{"", u"The desktop picture is set with “gsettings”, which is not installed."_s},
             Case{"echo out; printf '\\n  broken\\nthing' >&2; exit 3\n", u"“gsettings” failed: broken"_s},
             Case{"exit 3\n", u"“gsettings” failed with status 3."_s},
             Case{"kill -SEGV $$\n", u"“gsettings” crashed."_s},
             Case{"exec sleep 60\n", u"“gsettings” did not answer in time."_s},
         }) {
        const Variable onlyHere(
            "PATH", QFile::encodeName(folder.path()) + (each.script.isEmpty() ? "" : ":/usr/bin:/bin"));
        if (!each.script.isEmpty())
            addTool(u"gsettings"_s, each.script);
        const bool hangs = each.complaint.contains(u"in time"_s);
        GSettingsPicture desktop(Family::gnome, hangs ? 300ms : 60s);
        EXPECT_EQ(desktop.isAvailable(), !each.script.isEmpty());
        EXPECT_EQ(desktop.whyNot().isEmpty(), desktop.isAvailable());
        EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}}), each.complaint);
        EXPECT_EQ(read(desktop), QString());
        EXPECT_EQ(remember(desktop), QJsonObject());
    }
}

TEST_F(ToolFailureTest, AHangingToolHoldsNobodyUp)
{
    addTool(u"gsettings"_s, "exec sleep 60\n");
    constexpr auto patience = 10'000; // milliseconds
    QElapsedTimer timer;
    int answers = 0;
    {
        GSettingsPicture desktop(Family::gnome, 3 * std::chrono::milliseconds(patience));
        timer.start();
        for (int round = 0; round < 3; ++round)
            desktop.read(u"DP-1"_s, [&answers](const QString&) { ++answers; });
        EXPECT_LT(timer.elapsed(), patience) << "asking waits";
        QCoreApplication::processEvents();
    }
    QCoreApplication::processEvents();
    EXPECT_LT(timer.elapsed(), 2 * patience) << "going away waits";
    EXPECT_EQ(answers, 0);
}

TEST_F(ToolFailureTest, AFileThatIsNoPictureReachesNoTool)
{
    for (const char* tool : {"gsettings", "pcmanfm", "pcmanfm-qt", "swaymsg"})
        addTool(QString::fromLatin1(tool),
            "echo '[{\"name\": \"DP-1\"}]'; [ \"$3\" = get_outputs ] || echo \"$*\" >>HERE/told\n");
    writeFile(u"text.png"_s, "no picture");
    const QString missing = u"There is no picture “"_s;
    const QString unreadable = u"“text.png” cannot be read as a picture."_s;
    GSettingsPicture gnome(Family::gnome);
    PcmanfmPicture lxde(PcmanfmPicture::Family::lxde);
    SwayPicture sway(path(u"record"_s), u"now"_s);
    for (DesktopPicture* desktop : std::initializer_list<DesktopPicture*>{&gnome, &lxde, &sway}) {
        EXPECT_EQ(set(*desktop, {{u"DP-1"_s, path(u"text.png"_s)}}), unreadable);
        EXPECT_TRUE(set(*desktop, {{u"DP-1"_s, path(u"missing.png"_s)}}).startsWith(missing));
        EXPECT_TRUE(set(*desktop, {{u"DP-1"_s, folder.path()}}).startsWith(missing)) << "a folder";
    }
    EXPECT_EQ(contents(u"told"_s), QByteArray());
}

class SwayPictureTest : public ToolDesk {
protected:
    void SetUp() override
    {
        addTool(u"swaymsg"_s,
            "[ \"$*\" = '-r -t get_outputs' ] && exec cat HERE/outputs\n"
            "[ -e HERE/broken ] && { echo 'Error: no such thing' >&2; exit 2; }\n"
            "printf '%s|' \"$@\" >HERE/told\n");
        writeFile(u"outputs"_s, R"([{"name": "DP-1", "active": true}, {"name": "HDMI-A-1"}])");
    }
};

TEST_F(SwayPictureTest, RemembersItsOwnPicturesForThisRun)
{
    const QString first = addPicture(u"first.png"_s);
    const QString second = addPicture(u"second ü.png"_s);
    SwayPicture desktop(path(u"record"_s), u"run 1"_s);
    EXPECT_EQ(read(desktop), QString());
    EXPECT_EQ(remember(desktop), QJsonObject());
    EXPECT_EQ(set(desktop, {{u"DP-1"_s, first}, {u"HDMI-A-1"_s, second}}), QString());
    EXPECT_EQ(QString::fromUtf8(contents(u"told"_s)),
        u"output \"DP-1\" bg \"%1\" fill; output \"HDMI-A-1\" bg \"%2\" fill|"_s.arg(first, second));
    const QJsonObject memory = remember(desktop);
    EXPECT_EQ(set(desktop, {{u"DP-1"_s, second}}), QString());

    SwayPicture restarted(path(u"record"_s), u"run 1"_s);
    EXPECT_EQ(read(restarted, u"DP-1"_s), second);
    EXPECT_EQ(read(restarted, u"HDMI-A-1"_s), second);
    EXPECT_EQ(read(restarted, u"DP-2"_s), QString()) << "another screen's";
    SwayPicture nextLogin(path(u"record"_s), u"run 2"_s);
    EXPECT_EQ(read(nextLogin, u"DP-1"_s), QString());

    EXPECT_EQ(giveBack(restarted, memory), QString());
    EXPECT_EQ(read(desktop, u"DP-1"_s), first);
    EXPECT_EQ(read(desktop, u"HDMI-A-1"_s), second);
}

TEST_F(SwayPictureTest, FailsWithASentence)
{
    const QString file = addPicture(u"good.png"_s);
    const QString awkward = addPicture(u"$(touch gotcha) `x`.png"_s);
    SwayPicture desktop(path(u"record"_s), u"run"_s);
    EXPECT_EQ(set(desktop, {{u"XWAYLAND0"_s, file}}), u"Sway has no output called “XWAYLAND0”."_s);
    EXPECT_TRUE(set(desktop, {{u"DP-1"_s, awkward}}).startsWith(u"Sway cannot be told of"_s));
    EXPECT_EQ(contents(u"told"_s), QByteArray());
    writeFile(u"broken"_s, {});
    EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}}), u"“swaymsg” failed: Error: no such thing"_s);
    EXPECT_EQ(read(desktop), QString());

    QFile::remove(path(u"broken"_s));
    writeFile(u"outputs"_s, R"([{"name": "eDP-1"}])");
    EXPECT_EQ(set(desktop, {{u"XWAYLAND0"_s, file}}), QString());
    EXPECT_TRUE(contents(u"told"_s).startsWith("output \"eDP-1\"")) << "the only one there is";
    EXPECT_EQ(read(desktop, u"XWAYLAND0"_s), file);
}

class PcmanfmPictureTest : public ToolDesk { };

TEST_F(PcmanfmPictureTest, ReadsTheConfigurationItWrites)
{
    struct Case {
        PcmanfmPicture::Family family;
        QString program;
        QString configuration;
        QByteArray before;
        QByteArray after; ///< the line the file manager writes; "FILE" stands for the path
        QString known;
        QByteArray setting; ///< what it is told
        QByteArray restoring;
    };
    const QString file = addPicture(u"ü, new.png"_s);
    for (const Case& each : {
             Case{PcmanfmPicture::Family::lxde, u"pcmanfm"_s, u"config/pcmanfm/LXDE/desktop-items-0.conf"_s,
                 "[*]\nwallpaper_mode=fit\nwallpaper_common=1\nwallpaper=/usr/a b\\\\c.jpg\n", "wallpaper=FILE",
                 u"/usr/a b\\c.jpg"_s, "--set-wallpaper=FILE|--wallpaper-mode=crop|",
                 "--set-wallpaper=/usr/a b\\c.jpg|--wallpaper-mode=fit|"},
             Case{PcmanfmPicture::Family::lxqt, u"pcmanfm-qt"_s, u"config/pcmanfm-qt/lxqt/settings.conf"_s,
                 "[Desktop]\nBgColor=#000000\nWallpaper=\"/usr/\\xfc, b.jpg\"\nWallpaperMode=none\n",
                 "Wallpaper=\"FILE\"", u"/usr/ü, b.jpg"_s, "--set-wallpaper=FILE|--wallpaper-mode=stretch|",
                 "--set-wallpaper=/usr/ü, b.jpg|--wallpaper-mode=color|"},
         }) {
        // The line is prepared, since the test cannot be the file manager.
        addTool(each.program,
            "printf '%s|' \"$@\" >HERE/told\n[ -e HERE/next ] && mv HERE/next \"HERE/"
                + QFile::encodeName(each.configuration) + "\"\nexit 0\n");
        writeFile(u"config/%1/an old profile/%2"_s.arg(each.program, QFileInfo(each.configuration).fileName()),
            "[*]\nwallpaper=/old\n[Desktop]\nWallpaper=/old\n");
        QFile old(path(u"config/%1/an old profile/%2"_s.arg(each.program, QFileInfo(each.configuration).fileName())));
        ASSERT_TRUE(old.open(QIODevice::ReadWrite));
        old.setFileTime(QDateTime(QDate(2020, 1, 1), QTime(0, 0)), QFileDevice::FileModificationTime);
        old.close();
        writeFile(each.configuration, each.before);
        PcmanfmPicture desktop(each.family, 60s);
        EXPECT_EQ(read(desktop), each.known);
        const QJsonObject memory = remember(desktop);

        const QByteArray name = QFile::encodeName(file);
        writeFile(u"next"_s, "[*]\n[Desktop]\n" + QByteArray(each.after).replace("FILE", name) + '\n');
        EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}}), QString());
        EXPECT_EQ(contents(u"told"_s), QByteArray(each.setting).replace("FILE", name));
        EXPECT_EQ(read(desktop), file);

        writeFile(u"next"_s, each.before);
        EXPECT_EQ(giveBack(desktop, memory), QString());
        EXPECT_EQ(contents(u"told"_s), each.restoring);

        PcmanfmPicture impatient(each.family, 500ms);
        EXPECT_TRUE(set(impatient, {{u"DP-1"_s, file}}).contains(u"did not take the picture"_s))
            << "nothing draws the desktop";
    }
}

} // namespace
} // namespace ambrelle::test
