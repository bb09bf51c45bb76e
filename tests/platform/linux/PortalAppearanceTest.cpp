#include "platform/linux/bus/PortalAppearance.h"
#include "support/PrivateBus.h"
#include "support/WaitUntil.h"

#include <QCoreApplication>
#include <QDBusVariant>
#include <QDir>
#include <QTemporaryDir>

#include <gtest/gtest.h>

namespace ambrelle {

/// What a desktop portal offers of its settings.
class FakeSettings : public QObject {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    QVariant scheme = 0U;

public Q_SLOTS:
    QDBusVariant Read(const QString& section, const QString& key) const
    {
        const bool isKnown =
            section == QLatin1String("org.freedesktop.appearance") && key == QLatin1String("color-scheme");
        // Portals wrap the value twice.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(isKnown ? scheme : QVariant(QStringLiteral("?")))));
    }
};

namespace {

class PortalAppearanceTest : public ::testing::Test {
protected:
    void SetUp() override
    {
        if (!bus.isRunning())
            GTEST_SKIP() << "dbus-daemon is not installed";
    }

    void startPortal()
    {
        ASSERT_TRUE(portal.registerObject(
            QStringLiteral("/org/freedesktop/portal/desktop"), &settings, QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(portal.registerService(QStringLiteral("org.freedesktop.portal.Desktop")));
    }
    void tell(const char* section, const char* key, const QVariant& value)
    {
        auto signal = QDBusMessage::createSignal(QStringLiteral("/org/freedesktop/portal/desktop"),
            QStringLiteral("org.freedesktop.portal.Settings"), QStringLiteral("SettingChanged"));
        signal.setArguments({QLatin1String(section), QLatin1String(key), QVariant::fromValue(QDBusVariant(value))});
        ASSERT_TRUE(portal.send(signal));
    }

    const PrivateBus bus;
    FakeSettings settings;
    QDBusConnection portal = bus.connection(QStringLiteral("portal"));
};

TEST_F(PortalAppearanceTest, FollowsThePortal)
{
    settings.scheme = 1U;
    startPortal();
    PortalAppearance appearance(bus.opener());
    int changes = 0;
    QObject::connect(&appearance, &SystemAppearance::changed, [&changes] { ++changes; });
    EXPECT_FALSE(appearance.isAvailable());
    ASSERT_TRUE(waitUntil([&appearance] { return appearance.isAvailable(); }));
    EXPECT_TRUE(appearance.isDark());
    EXPECT_EQ(changes, 1);

    // Neither another desktop's key of the same name nor a value of another kind counts.
    tell("org.gnome.desktop.interface", "color-scheme", QStringLiteral("default"));
    tell("org.freedesktop.appearance", "accent-color", 0U);
    tell("org.freedesktop.appearance", "color-scheme", QStringLiteral("light"));
    tell("org.freedesktop.appearance", "color-scheme", 1U);
    tell("org.freedesktop.appearance", "color-scheme", 2U);
    ASSERT_TRUE(waitUntil([&appearance] { return !appearance.isDark(); }));
    EXPECT_EQ(changes, 2);
}

TEST_F(PortalAppearanceTest, WithoutAPortalTheDesktopsSettingsTell)
{
    // A gsettings of our own, so that the outcome does not depend on what is installed.
    const QTemporaryDir folder;
    QFile script(folder.filePath(QStringLiteral("gsettings")));
    ASSERT_TRUE(script.open(QIODevice::WriteOnly));
    script.write("#!/bin/sh\n[ \"$*\" = 'get org.gnome.desktop.interface color-scheme' ] && echo \"'prefer-dark'\"\n");
    script.setPermissions(script.permissions() | QFile::ExeUser);
    script.close();
    const auto path = qgetenv("PATH");
    qputenv("PATH", QFile::encodeName(folder.path()) + ':' + path);
    PortalAppearance appearance(bus.opener());
    EXPECT_TRUE(waitUntil([&appearance] { return appearance.isDark(); }));
    EXPECT_TRUE(appearance.isAvailable());

    qputenv("PATH", "/nowhere");
    PortalAppearance unknown([] { return QDBusConnection(QStringLiteral("none")); });
    QCoreApplication::processEvents();
    qputenv("PATH", path);
    EXPECT_FALSE(unknown.isAvailable());
    EXPECT_FALSE(unknown.isDark());
    EXPECT_FALSE(unknown.whyNot().isEmpty());
}

} // namespace
} // namespace ambrelle

#include "PortalAppearanceTest.moc"
