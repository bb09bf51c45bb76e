// SPDX-License-Identifier: MIT

#include "platform/linux/picture/XfconfPicture.h"
#include "platform/linux/ToolDesk.h"

namespace ambrelle::test {
namespace {

using namespace Qt::StringLiterals;

/// The real store on a bus of its own.
class XfconfPictureTest : public ToolDesk {
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable(u"xfconf-query"_s).isEmpty() || !bus.isRunning())
            GTEST_SKIP() << "xfconf-query or dbus-daemon is not installed";
        m_busAddress.emplace("DBUS_SESSION_BUS_ADDRESS", bus.address().toLatin1());
    }

    static QByteArray query(const QStringList& arguments)
    {
        QProcess process;
        process.start(u"xfconf-query"_s, QStringList{u"-c"_s, u"xfce4-desktop"_s} + arguments);
        EXPECT_TRUE(process.waitForFinished());
        return process.readAllStandardOutput();
    }
    static void put(const QString& property, const QString& type, const QString& value)
    {
        query({u"-p"_s, u"/backdrop/"_s + property, u"--create"_s, u"-t"_s, type, u"-s"_s, value});
    }
    static QString value(const QString& property)
    {
        return QString::fromUtf8(query({u"-p"_s, u"/backdrop/"_s + property})).trimmed();
    }
    static QByteArray everything() { return query({u"-l"_s, u"-v"_s}); }

    const PrivateBus bus;
    XfconfPicture desktop{ToolRunner::usualPatience, [] {
                              return QList<ConnectedScreen>{{u"DP-1"_s, {0, 0}}, {u"HDMI-1"_s, {100, 0}}};
                          }};

private:
    std::optional<Variable> m_busAddress;
};

TEST_F(XfconfPictureTest, SetsEveryWorkspaceOfTheScreenAndGivesAllOfItBack)
{
    put(u"screen0/monitorDP-1/workspace0/last-image"_s, u"string"_s, u"/usr/ä b.jpg"_s);
    put(u"screen0/monitorDP-1/workspace0/image-style"_s, u"int"_s, u"3"_s);
    put(u"screen0/monitorDP-1/workspace0/backdrop-cycle-enable"_s, u"bool"_s, u"true"_s);
    put(u"screen0/monitorDP-1/workspace0/color-style"_s, u"int"_s, u"1"_s);
    put(u"screen0/monitorDP-1/workspace6/last-image"_s, u"string"_s, u""_s);
    put(u"screen0/monitorHDMI-1/workspace0/last-image"_s, u"string"_s, u"/usr/other.jpg"_s);
    put(u"single-workspace-mode"_s, u"bool"_s, u"true"_s);
    const QByteArray before = everything();
    EXPECT_EQ(read(desktop), u"/usr/ä b.jpg"_s);
    const QJsonObject memory = remember(desktop);

    const QString file = addPicture(u"it's ü.png"_s);
    EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}}), QString());
    for (const int workspace : {0, 1, 2, 3, 6}) {
        const QString place = u"screen0/monitorDP-1/workspace%1"_s.arg(workspace);
        EXPECT_EQ(value(place + u"/last-image"_s), file) << workspace;
        EXPECT_EQ(value(place + u"/image-style"_s), u"5"_s) << workspace;
    }
    EXPECT_EQ(value(u"screen0/monitorDP-1/workspace0/backdrop-cycle-enable"_s), u"false"_s);
    EXPECT_EQ(read(desktop, u"DP-1"_s), file);
    EXPECT_EQ(read(desktop, u"HDMI-1"_s), u"/usr/other.jpg"_s);

    EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}, {u"HDMI-1"_s, file}}), QString());
    EXPECT_EQ(read(desktop, u"HDMI-1"_s), file);
    EXPECT_EQ(giveBack(desktop, memory), QString());
    EXPECT_EQ(everything(), before);
}

TEST_F(XfconfPictureTest, KnowsThePictureOnlyWhereTheWorkspacesAgree)
{
    put(u"screen0/monitorDP-1/workspace0/last-image"_s, u"string"_s, u"/a"_s);
    put(u"screen0/monitorDP-1/workspace1/last-image"_s, u"string"_s, u"/b"_s);
    EXPECT_EQ(read(desktop), u"/a"_s);
    put(u"single-workspace-number"_s, u"int"_s, u"1"_s);
    EXPECT_EQ(read(desktop), u"/b"_s);
    put(u"single-workspace-mode"_s, u"bool"_s, u"false"_s);
    EXPECT_EQ(read(desktop), QString());
    put(u"screen0/monitorDP-1/workspace0/last-image"_s, u"string"_s, u"/b"_s);
    EXPECT_EQ(read(desktop), u"/b"_s);
}

TEST_F(XfconfPictureTest, UsesTheScreensADesktopListsWhenItsNamesAreOthers)
{
    put(u"screen0/monitor0/workspace0/last-image"_s, u"string"_s, u"/a"_s);
    EXPECT_EQ(read(desktop), u"/a"_s);
    const QString file = addPicture(u"new.png"_s);
    EXPECT_EQ(set(desktop, {{u"DP-1"_s, file}}), QString());
    EXPECT_EQ(value(u"screen0/monitor0/workspace0/last-image"_s), file);
    EXPECT_EQ(value(u"screen0/monitorDP-1/workspace0/last-image"_s), file);
}

TEST_F(XfconfPictureTest, AFailureInTheMiddleLeavesTheOldPicture)
{
    put(u"screen0/monitorDP-1/workspace0/last-image"_s, u"string"_s, u"/a"_s);
    put(u"screen0/monitorDP-1/workspace2/image-style"_s, u"int"_s, u"1"_s);
    const QByteArray before = everything();
    const QString real = QStandardPaths::findExecutable(u"xfconf-query"_s);
    addTool(u"xfconf-query"_s,
        "case \"$*\" in *workspace2/last-image*--create*) echo 'Locked' >&2; exit 1;; esac\nexec " + real.toUtf8()
            + " \"$@\"\n");
    EXPECT_EQ(set(desktop, {{u"DP-1"_s, addPicture(u"new.png"_s)}}), u"“xfconf-query” failed: Locked"_s);
    EXPECT_EQ(everything(), before);
    writeFile(u"text.png"_s, "no picture");
    EXPECT_EQ(set(desktop, {{u"DP-1"_s, path(u"text.png"_s)}}), u"“text.png” cannot be read as a picture."_s);
    EXPECT_EQ(everything(), before);
}

} // namespace
} // namespace ambrelle::test
