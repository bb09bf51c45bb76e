// SPDX-License-Identifier: MIT

#include "platform/linux/picture/PlasmaPicture.h"
#include "platform/linux/ToolDesk.h"

#include <QDBusContext>
#include <QJsonArray>
#include <QJsonDocument>

namespace ambrelle::test {

using namespace Qt::StringLiterals;

/// Plasma's shell as scripts see it: runs them for real, on desktops that are kept as JSON.
class FakeShell : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.kde.PlasmaShell")
public:
    QJsonArray desktops;
    QString fault; ///< an error in place of an answer
    bool isHanging = false;

public Q_SLOTS:
    QString evaluateScript(const QString& script)
    {
        setDelayedReply(isHanging);
        if (!fault.isEmpty())
            sendErrorReply(QDBusError::Failed, fault);
        if (isHanging || !fault.isEmpty())
            return {};
        QProcess engine;
        engine.start(u"duk"_s, {u"--run-stdin"_s});
        const QByteArray state = QJsonDocument(desktops).toJson(QJsonDocument::Compact);
        engine.write("var state = " + state + ";" + interface + script.toUtf8() + "\nfinish();\n");
        engine.closeWriteChannel();
        EXPECT_TRUE(engine.waitForFinished());
        const QByteArray printed = engine.readAllStandardOutput();
        const qsizetype end = printed.trimmed().lastIndexOf('\n');
        desktops = QJsonDocument::fromJson(printed.mid(end)).array();
        return QString::fromUtf8(printed.left(end + 1));
    }

private:
    // Screen 0 is on the right of screen 1.
    static constexpr const char* interface = R"js(
        var realPrint = print;
        function Desktop(own) {
            this.id = own.id;
            this.screen = own.screen;
            Object.defineProperty(this, "wallpaperPlugin", {
                get: function () { return own.plugin; }, set: function (name) { own.plugin = name; }
            });
            function group(desktop) {
                var path = desktop.currentConfigGroup.join("/");
                return own.settings[path] = own.settings[path] || {};
            }
            this.readConfig = function (key, usual) {
                var value = group(this)[key];
                return value === undefined ? usual : value;
            };
            this.writeConfig = function (key, value) { group(this)[key] = String(value); };
        }
        function desktops() { return state.map(function (own) { return new Desktop(own); }); }
        function screenGeometry(screen) {
            return screen === 0 ? {x: 1920, y: 0, width: 800, height: 600} : {x: 0, y: 0, width: 1920, height: 1080};
        }
        function finish() { realPrint(JSON.stringify(state)); }
    )js";
};

namespace {

QJsonObject desktopOf(int id, int screen, const QString& plugin, const QJsonObject& image)
{
    return {{u"id"_s, id}, {u"screen"_s, screen}, {u"plugin"_s, plugin},
        {u"settings"_s, QJsonObject{{u"Wallpaper/org.kde.image/General"_s, image}}}};
}

class PlasmaPictureTest : public ToolDesk {
protected:
    void SetUp() override
    {
        if (QStandardPaths::findExecutable(u"duk"_s).isEmpty() || !bus.isRunning())
            GTEST_SKIP() << "duk or dbus-daemon is not installed";
        server = bus.connection(u"plasma"_s);
        ASSERT_TRUE(server.registerObject(u"/PlasmaShell"_s, &shell, QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(server.registerService(u"org.kde.plasmashell"_s));
        shell.desktops = {desktopOf(30, 0, u"org.kde.image"_s, {{u"Image"_s, u"file:///usr/right.png"_s}}),
            desktopOf(31, 1, u"org.kde.color"_s, {{u"Image"_s, u"/usr/left.png"_s}, {u"FillMode"_s, u"6"_s}}),
            desktopOf(32, -1, u"org.kde.image"_s, {{u"Image"_s, u"file:///usr/elsewhere.png"_s}})};
        desktop.emplace(bus.connection(u"client"_s), std::chrono::milliseconds(3000), &screens);
    }
    static QList<ConnectedScreen> screens()
    {
        return {{u"HDMI-1"_s, {1920, 0}}, {u"eDP-1"_s, {0, 0}}, {u"DP-9"_s, {0, 0}}};
    }
    QJsonObject image(int index) const
    {
        return shell.desktops[index][u"settings"_s][u"Wallpaper/org.kde.image/General"_s].toObject();
    }

    const PrivateBus bus;
    FakeShell shell;
    QDBusConnection server{QString()};
    std::optional<PlasmaPicture> desktop;
};

TEST_F(PlasmaPictureTest, FindsTheScreenByItsPlace)
{
    EXPECT_EQ(read(*desktop, u"HDMI-1"_s), u"/usr/right.png"_s);
    EXPECT_EQ(read(*desktop, u"eDP-1"_s), QString()) << "another kind of wallpaper";
    EXPECT_EQ(read(*desktop, u"none"_s), QString());
    const QJsonObject memory = remember(*desktop);
    const QJsonArray before = shell.desktops;

    const QString file = addPicture(u"it's \"ü\" \\ ${x}.png"_s);
    EXPECT_EQ(set(*desktop, {{u"eDP-1"_s, file}}), QString());
    EXPECT_EQ(shell.desktops[0], before[0]);
    EXPECT_EQ(shell.desktops[2], before[2]) << "a desktop that does not show";
    EXPECT_EQ(shell.desktops[1][u"plugin"_s].toString(), u"org.kde.image"_s);
    EXPECT_EQ(image(1)[u"FillMode"_s].toString(), u"2"_s);
    EXPECT_EQ(read(*desktop, u"eDP-1"_s), file);

    EXPECT_EQ(set(*desktop, {{u"eDP-1"_s, file}, {u"HDMI-1"_s, file}}), QString());
    EXPECT_EQ(read(*desktop, u"HDMI-1"_s), file);
    EXPECT_EQ(giveBack(*desktop, memory), QString());
    EXPECT_EQ(shell.desktops[1], before[1]);
    EXPECT_EQ(image(0)[u"Image"_s].toString(), u"file:///usr/right.png"_s);
}

TEST_F(PlasmaPictureTest, FailsWithASentence)
{
    const QString file = addPicture(u"new.png"_s);
    const QJsonArray before = shell.desktops;
    EXPECT_EQ(set(*desktop, {{u"VGA-1"_s, file}}), u"There is no screen “VGA-1”."_s);
    EXPECT_TRUE(set(*desktop, {{u"eDP-1"_s, path(u"missing.png"_s)}}).startsWith(u"There is no picture"_s));
    EXPECT_EQ(giveBack(*desktop, {{u"99"_s, QJsonObject{{u"plugin"_s, u"x"_s}}}}),
        u"Plasma has none of the desktops whose picture should change."_s);
    shell.fault = u"Widgets are locked"_s;
    EXPECT_EQ(set(*desktop, {{u"eDP-1"_s, file}}), u"Plasma did not change its picture: Widgets are locked"_s);
    EXPECT_EQ(remember(*desktop), QJsonObject());
    EXPECT_EQ(shell.desktops, before);

    shell.fault.clear();
    shell.isHanging = true;
    PlasmaPicture hasty(QDBusConnection(u"client"_s), std::chrono::milliseconds(200), &screens);
    EXPECT_TRUE(set(hasty, {{u"eDP-1"_s, file}}).startsWith(u"Plasma did not change its picture: "_s));
    server.unregisterService(u"org.kde.plasmashell"_s);
    EXPECT_TRUE(set(*desktop, {{u"eDP-1"_s, file}}).startsWith(u"Plasma did not change its picture: "_s));
    PlasmaPicture alone(QDBusConnection(u"nothing"_s));
    EXPECT_FALSE(alone.isAvailable());
    EXPECT_FALSE(alone.whyNot().isEmpty());
}

} // namespace
} // namespace ambrelle::test

#include "PlasmaPictureTest.moc"
