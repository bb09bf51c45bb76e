// SPDX-License-Identifier: MIT

#include "platform/linux/bus/SessionInputMonitor.h"

#include "support/AnswerOf.h"
#include "support/BusTest.h"

namespace ambrelle {

using namespace Qt::StringLiterals;

class FakeMutter : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.gnome.Mutter.IdleMonitor")
public Q_SLOTS:
    qulonglong GetIdletime() const { return 61500; }
};

class FakeScreenSaver : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.ScreenSaver")
public Q_SLOTS:
    uint GetSessionIdleTime() const { return 7; }
};

namespace {

class SessionInputMonitorTest : public BusTest {
protected:
    bool offer(QObject& service, const char* name, const char* path)
    {
        return desktop.registerObject(QLatin1StringView(path), &service, QDBusConnection::ExportAllSlots)
            && desktop.registerService(QLatin1StringView(name));
    }
    /// What it answers; -1: nothing.
    double idle()
    {
        return answerOf<std::optional<double>>(
            [this](const auto& take) { monitor.secondsSinceInput(&monitor, take); }, Answered::anyTime)
            .value_or(-1);
    }

    QDBusConnection desktop = bus.connection(u"desktop"_s);
    FakeMutter mutter;
    FakeScreenSaver saver;
    SessionInputMonitor monitor{bus.opener()};
};

TEST_F(SessionInputMonitorTest, AsksTheWindowManagerAndNoScreenSaver)
{
    EXPECT_EQ(idle(), -1) << "not started";
    EXPECT_TRUE(monitor.isAvailable());
    monitor.start();
    EXPECT_EQ(idle(), -1);
    EXPECT_FALSE(monitor.isAvailable());
    EXPECT_FALSE(monitor.whyNot().isEmpty());

    ASSERT_TRUE(offer(saver, "org.freedesktop.ScreenSaver", "/org/freedesktop/ScreenSaver"));
    EXPECT_EQ(idle(), -1) << "counts what does not follow the input";
    EXPECT_FALSE(monitor.isAvailable());
    ASSERT_TRUE(offer(mutter, "org.gnome.Mutter.IdleMonitor", "/org/gnome/Mutter/IdleMonitor/Core"));
    EXPECT_EQ(idle(), 61.5) << "it came later";
    EXPECT_TRUE(monitor.isAvailable());
    EXPECT_FALSE(monitor.tellsPointer());
}

TEST_F(SessionInputMonitorTest, SurvivesABusThatIsNotThere)
{
    SessionInputMonitor lost([] { return QDBusConnection(u"none"_s); });
    lost.start();
    int answers = 0;
    lost.secondsSinceInput(&lost, [&](std::optional<double> seconds) { answers += seconds ? 100 : 1; });
    EXPECT_EQ(answers, 1);
    EXPECT_FALSE(lost.isAvailable());
}

} // namespace

} // namespace ambrelle

#include "SessionInputMonitorTest.moc"
