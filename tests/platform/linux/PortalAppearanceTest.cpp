// SPDX-License-Identifier: MIT

#include "platform/linux/bus/PortalAppearance.h"

#include "platform/linux/bus/DesktopLook.h"
#include "support/BusTest.h"
#include "support/TestFolder.h"
#include "support/Variable.h"

#include <QDBusContext>
#include <QDBusMetaType>
#include <QDBusVariant>

#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

using Sections = QMap<QString, QVariantMap>;

/// What a desktop portal offers of its settings.
class FakeSettings : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")
public:
    QVariant scheme = 0U;
    Sections others; ///< told all at once
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
    Sections ReadAll(const QStringList& sections) const
    {
        Sections asked;
        for (const QString& section : sections)
            asked.insert(section, others.value(section));
        return asked;
    }
};

namespace {

class PortalAppearanceTest : public BusTest {
protected:
    void startPortal()
    {
        qDBusRegisterMetaType<Sections>();
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
    folder.writeScript(u"gsettings"_s, "echo \"org.gnome.desktop.interface color-scheme 'default'\"\n");
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
    folder.writeScript(u"gsettings"_s, "echo \"org.gnome.desktop.interface color-scheme 'default'\"\n");
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
    folder.writeScript(u"gsettings"_s,
        "[ \"$*\" = 'list-recursively org.gnome.desktop.interface' ] && cat <<'END'\n"
        "org.gnome.desktop.interface font-name 'Cantarell Bold 13.2'\n"
        "org.gnome.desktop.interface color-scheme 'prefer-dark'\n"
        "org.gnome.desktop.interface enable-animations false\n"
        "END\n");
    const test::Variable withTool("PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH"));
    PortalAppearance appearance(bus.opener());
    EXPECT_TRUE(waitUntil([&appearance] { return appearance.isDark(); }));
    EXPECT_TRUE(appearance.isAvailable());
    EXPECT_TRUE(appearance.reducesMotion());
    EXPECT_DOUBLE_EQ(appearance.textScale(), 1.2);

    const test::Variable withoutTool("PATH", "/nowhere");
    PortalAppearance unknown([] { return QDBusConnection(u"none"_s); });
    QCoreApplication::processEvents();
    EXPECT_FALSE(unknown.isAvailable());
    EXPECT_FALSE(unknown.isDark());
    EXPECT_FALSE(unknown.whyNot().isEmpty());
}

TEST_F(PortalAppearanceTest, EndsInSilenceWhileItAsks)
{
    const TestFolder folder;
    folder.writeScript(u"gsettings"_s, ": > \"$0.asked\"; exec sleep 1000\n");
    const test::Variable withTool("PATH", QFile::encodeName(folder.path()) + ':' + qgetenv("PATH"));
    std::optional<PortalAppearance> appearance(bus.opener());
    EXPECT_TRUE(waitUntil([&folder] { return QFile::exists(folder.filePath(u"gsettings.asked"_s)); }));
    testing::internal::CaptureStderr();
    appearance.reset();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
}

TEST_F(PortalAppearanceTest, TellsWhatElseWindowsShallLookLike)
{
    settings.others[u"org.freedesktop.appearance"_s] = {{u"contrast"_s, 1U}};
    settings.others[u"org.kde.kdeglobals.General"_s] = {{u"font"_s, u"Noto Sans,12,-1,5,50,0,0,0,0,0"_s}};
    settings.others[u"org.gnome.desktop.interface"_s] = {{u"enable-animations"_s, true}};
    startPortal();
    PortalAppearance appearance(bus.opener());
    int changes = 0;
    QObject::connect(&appearance, &SystemAppearance::changed, [&changes] { ++changes; });
    EXPECT_TRUE(waitUntil([&] { return appearance.contrast() && appearance.isAvailable(); }));
    EXPECT_DOUBLE_EQ(appearance.textScale(), 1.2);
    EXPECT_FALSE(appearance.reducesMotion());
    EXPECT_EQ(changes, 2) << "the scheme and the rest";

    tell("org.freedesktop.appearance", "contrast", 1U);
    tell("org.gnome.desktop.wm.preferences", "enable-animations", false);
    tell("org.gnome.desktop.interface", "enable-animations", false);
    EXPECT_TRUE(waitUntil([&] { return appearance.reducesMotion(); }));
    EXPECT_EQ(changes, 3);
    tell("org.freedesktop.appearance", "reduced-motion", 0U);
    EXPECT_TRUE(waitUntil([&] { return !appearance.reducesMotion(); })) << "the portal's own word counts most";
    tell("org.freedesktop.appearance", "contrast", u"high"_s);
    EXPECT_TRUE(waitUntil([&] { return !appearance.contrast(); }));
    EXPECT_EQ(changes, 5);
}

TEST(DesktopLookTest, UnderstandsWhatDesktopsTellAndNothingElse)
{
    struct Case {
        const char* section;
        const char* key;
        QVariant value;
        DesktopLook look;
        bool isWayland = false;
    };
    const auto appearance = "org.freedesktop.appearance";
    const auto gnome = "org.gnome.desktop.interface";
    const auto kdeFonts = "org.kde.kdeglobals.General";
    const auto kde = "org.kde.kdeglobals.KDE";
    const QStringList list{u"1"_s};
    const DesktopLook still{.reducesMotion = true};
    const Case cases[] = {
        {appearance, "contrast", 1U, {.contrast = true}},
        {appearance, "contrast", 2U, {}},
        {appearance, "contrast", list, {}},
        {appearance, "reduced-motion", 1U, still},
        {appearance, "reduced-motion", 0U, {}},
        {gnome, "enable-animations", false, still},
        {gnome, "enable-animations", u"false"_s, still},
        {gnome, "enable-animations", true, {}},
        {gnome, "enable-animations", list, {}},
        {gnome, "enable-animations", QVariant(), {}},
        {kde, "AnimationDurationFactor", u"0"_s, still},
        {kde, "AnimationDurationFactor", 0.0, still},
        {kde, "AnimationDurationFactor", u"0.5"_s, {}},
        {kde, "AnimationDurationFactor", u""_s, {}},
        {kdeFonts, "font", u"Noto Sans,13,-1,5"_s, {.textScale = 1.3}},
        {kdeFonts, "font", u"Noto Sans,-1,20,5"_s, {}},
        {kdeFonts, "font", u"Noto Sans,nan,20,5"_s, {}},
        {kdeFonts, "font", 13, {}},
        {gnome, "font-name", u"Cantarell 16.5"_s, {.textScale = 1.5}},
        {gnome, "font-name", u"Cantarell 5000"_s, {.textScale = 1.5}},
        {gnome, "font-name", u"Cantarell 8"_s, {}},
        {gnome, "font-name", u"Cantarell"_s, {}},
        {gnome, "text-scaling-factor", 1.25, {}},
        {gnome, "text-scaling-factor", 1.25, {.textScale = 1.25}, true},
        {gnome, "text-scaling-factor", -2.0, {}, true},
    };
    for (const Case& c : cases) {
        const DesktopSettings settings{{{QLatin1StringView(c.section), QLatin1StringView(c.key)}, c.value}};
        const DesktopLook look = desktopLook(settings, c.isWayland);
        EXPECT_EQ(look.contrast, c.look.contrast) << c.key << ' ' << qPrintable(c.value.toString());
        EXPECT_EQ(look.reducesMotion, c.look.reducesMotion) << c.key << ' ' << qPrintable(c.value.toString());
        EXPECT_DOUBLE_EQ(look.textScale, c.look.textScale) << c.key << ' ' << qPrintable(c.value.toString());
    }
}

} // namespace
} // namespace ambrelle

#include "PortalAppearanceTest.moc"
