// SPDX-License-Identifier: MIT

#include "platform/linux/bus/PortalAppearance.h"
#include "support/BusTest.h"
#include "support/TestFolder.h"
#include "support/Variable.h"

#include <QDBusContext>
#include <QDBusVariant>

#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

/// What a desktop portal offers of its settings.
class FakeSettings : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    QVariant scheme = 0U;
    bool isSlow = false; ///< answers only when told to
    std::optional<QDBusMessage> asked; ///< and still waiting

    void answer(const QDBusConnection& bus) const
    {
        bus.send(asked->createReply(QVariant::fromValue(QDBusVariant(QVariant::fromValue(QDBusVariant(scheme))))));
    }

public Q_SLOTS:
    QDBusVariant Read(const QString& section, const QString& key)
    {
        if (isSlow) {
            setDelayedReply(true);
            asked = message();
            return {};
        }
        const bool isKnown = section == "org.freedesktop.appearance"_L1 && key == "color-scheme"_L1;
        // Portals wrap the value twice.
        return QDBusVariant(QVariant::fromValue(QDBusVariant(isKnown ? scheme : QVariant(u"?"_s))));
    }
};

namespace {

class PortalAppearanceTest : public BusTest {
protected:
    void startPortal()
    {
        ASSERT_TRUE(
            portal.registerObject(u"/org/freedesktop/portal/desktop"_s, &settings, QDBusConnection::ExportAllSlots));
        ASSERT_TRUE(portal.registerService(u"org.freedesktop.portal.Desktop"_s));
    }
    void tell(const char* section, const char* key, const QVariant& value)
    {
        auto signal = QDBusMessage::createSignal(
            u"/org/freedesktop/portal/desktop"_s, u"org.freedesktop.portal.Settings"_s, u"SettingChanged"_s);
        signal.setArguments(
            {QLatin1StringView(section), QLatin1StringView(key), QVariant::fromValue(QDBusVariant(value))});
        ASSERT_TRUE(portal.send(signal));
    }

    FakeSettings settings;
    QDBusConnection portal = bus.connection(u"portal"_s);
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
    tell("org.gnome.desktop.interface", "color-scheme", u"default"_s);
    tell("org.freedesktop.appearance", "accent-color", 0U);
    tell("org.freedesktop.appearance", "color-scheme", u"light"_s);
    tell("org.freedesktop.appearance", "color-scheme", 1U);
    tell("org.freedesktop.appearance", "color-scheme", 2U);
    ASSERT_TRUE(waitUntil([&appearance] { return !appearance.isDark(); }));
    EXPECT_EQ(changes, 2);
}

TEST_F(PortalAppearanceTest, TellsWhenItIsKnownToBeLight)
{
    const TestFolder folder;
    folder.writeScript(u"gsettings"_s, "echo \"'default'\"\n");
    for (const bool withPortal : {false, true}) {
        if (withPortal)
            startPortal();
        const test::Variable path("PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH"));
        PortalAppearance appearance(bus.opener());
        int changes = 0;
        QObject::connect(&appearance, &SystemAppearance::changed, [&changes] { ++changes; });
        EXPECT_TRUE(waitUntil([&changes] { return changes > 0; })) << "portal: " << withPortal;
        EXPECT_TRUE(appearance.isAvailable() && !appearance.isDark());
        if (!withPortal)
            continue;
        tell("org.freedesktop.appearance", "color-scheme", 0U);
        tell("org.freedesktop.appearance", "color-scheme", 1U);
        EXPECT_TRUE(waitUntil([&appearance] { return appearance.isDark(); }));
        EXPECT_EQ(changes, 2) << "it was light already";
    }
}

TEST_F(PortalAppearanceTest, ASlowPortalIsHeardThoughTheSettingsAnsweredFirst)
{
    const TestFolder folder;
    folder.writeScript(u"gsettings"_s, "echo \"'default'\"\n");
    const test::Variable path("PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH"));
    settings.scheme = 1U;
    settings.isSlow = true;
    startPortal();
    PortalAppearance appearance(bus.opener());
    ASSERT_TRUE(waitUntil([&appearance] { return appearance.isAvailable(); }));
    EXPECT_FALSE(appearance.isDark());
    ASSERT_TRUE(waitUntil([this] { return settings.asked.has_value(); }));
    settings.answer(portal);
    EXPECT_TRUE(waitUntil([&appearance] { return appearance.isDark(); }));
}

TEST_F(PortalAppearanceTest, WithoutAPortalTheDesktopsSettingsTell)
{
    // A gsettings of our own, so that the outcome does not depend on what is installed.
    const TestFolder folder;
    folder.writeScript(
        u"gsettings"_s, "[ \"$*\" = 'get org.gnome.desktop.interface color-scheme' ] && echo \"'prefer-dark'\"\n");
    const test::Variable withTool("PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH"));
    PortalAppearance appearance(bus.opener());
    EXPECT_TRUE(waitUntil([&appearance] { return appearance.isDark(); }));
    EXPECT_TRUE(appearance.isAvailable());

    const test::Variable withoutTool("PATH", "/nowhere");
    PortalAppearance unknown([] { return QDBusConnection(u"none"_s); });
    QCoreApplication::processEvents();
    EXPECT_FALSE(unknown.isAvailable());
    EXPECT_FALSE(unknown.isDark());
    EXPECT_FALSE(unknown.whyNot().isEmpty());
}

} // namespace
} // namespace ambrelle

#include "PortalAppearanceTest.moc"
