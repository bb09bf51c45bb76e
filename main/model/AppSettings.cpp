// SPDX-License-Identifier: MIT

#include "model/AppSettings.h"

#include "foundation/Json.h"
#include "foundation/UserDefaults.h"

#include <QLocale>

#include <concepts>
#include <optional>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr double standardInterval = 2;

template <typename T> T load(const UserDefaults& defaults, const QString& key, T fallback)
{
    if constexpr (RawEnum<T>) {
        const std::optional<QString> name = defaults.string(key);
        return name ? parse<T>(*name).value_or(fallback) : fallback;
    } else if constexpr (std::same_as<T, bool>) {
        return defaults.boolean(key).value_or(fallback);
    } else if constexpr (std::same_as<T, int>) {
        return defaults.integer(key).value_or(fallback);
    } else if constexpr (std::same_as<T, double>) {
        const double value = defaults.real(key).value_or(fallback);
        return value > 0 ? value : fallback;
    } else if constexpr (std::same_as<T, QString>) {
        return defaults.string(key).value_or(fallback);
    } else {
        return defaults.strings(key).value_or(fallback);
    }
}

template <typename T> const T& storedForm(const T& value)
{
    return value;
}
template <RawEnum T> QString storedForm(const T& value)
{
    return rawValue(value);
}

bool countsInFahrenheit()
{
    return QLocale().measurementSystem() == QLocale::ImperialUSSystem;
}

} // namespace

template <typename T> Setting<T> AppSettings::stored(QLatin1StringView key, T fallback)
{
    return Setting<T>(key, load<T>(m_defaults, key, fallback), fallback, [this](const Setting<T>& setting) {
        m_defaults.set(setting.key(), storedForm(setting()));
        Q_EMIT changed(setting.key());
    });
}

AppSettings::AppSettings(UserDefaults& defaults, QObject* parent)
    : QObject(parent)
    , m_defaults(defaults)
    , editing("editing"_L1, false, false, [this](const Setting<bool>& setting) { Q_EMIT changed(setting.key()); })
    , layer(stored("layer"_L1, WidgetLayer::desktop))
    , locked(stored("locked"_L1, false))
    , interval(stored("interval"_L1, standardInterval))
    , defaultSkin(stored("defaultSkin"_L1, Skin::glass))
    , weatherCity(stored("weatherCity"_L1, QString()))
    , useFahrenheit(stored("useFahrenheit"_L1, countsInFahrenheit()))
    , excludedCalendars(stored("excludedCalendars"_L1, QStringList()))
    , downloadResetMinutes(stored("downloadResetMinutes"_L1, 0))
    , wallpaperShuffleMinutes(stored("wallpaperShuffleMinutes"_L1, 0))
    , showScene(stored("showScene"_L1, true))
    , customWallpapers(stored("customWallpapers"_L1, QStringList()))
    , clickToOpen(stored("clickToOpen"_L1, true))
    , animations(stored("animations"_L1, true))
    , overlap(stored("overlap"_L1, OverlapBehavior::fade))
    , followAppearance(stored("followAppearance"_L1, false))
    , focusMinutes(stored("focusMinutes"_L1, 25))
    , breakMinutes(stored("breakMinutes"_L1, 5))
    , longBreakMinutes(stored("longBreakMinutes"_L1, 15))
    , focusSound(stored("focusSound"_L1, true))
    , checkForUpdates(stored("checkForUpdates"_L1, true))
    , installUpdates(stored("installUpdates"_L1, true))
    , windowSystem(stored("windowSystem"_L1, WindowSystem::automatic))
{
}

AppSettings& AppSettings::shared()
{
    static AppSettings settings(UserDefaults::shared());
    return settings;
}

template <typename Settings, typename Visitor> void AppSettings::visitPreferences(Settings& settings, Visitor&& visit)
{
    visit(settings.layer);
    visit(settings.locked);
    visit(settings.interval);
    visit(settings.defaultSkin);
    visit(settings.weatherCity);
    visit(settings.useFahrenheit);
    visit(settings.excludedCalendars);
    visit(settings.downloadResetMinutes);
    visit(settings.wallpaperShuffleMinutes);
    visit(settings.showScene);
    visit(settings.clickToOpen);
    visit(settings.animations);
    visit(settings.overlap);
    visit(settings.followAppearance);
    visit(settings.focusMinutes);
    visit(settings.breakMinutes);
    visit(settings.longBreakMinutes);
    visit(settings.focusSound);
    visit(settings.checkForUpdates);
    visit(settings.installUpdates);
    visit(settings.windowSystem);
}

QJsonObject AppSettings::snapshot() const
{
    QJsonObject values;
    visitPreferences(*this, [this, &values]<typename T>(const Setting<T>& setting) {
        if (m_defaults.contains(setting.key()))
            values.insert(setting.key(), JsonForm<T>::write(setting()));
    });
    return values;
}

void AppSettings::restore(const QJsonObject& values)
{
    const UserDefaults::Transaction all(m_defaults);
    visitPreferences(*this, [this, &values]<typename T>(Setting<T>& setting) {
        const std::optional<T> value = JsonForm<T>::read(values.value(setting.key()));
        if (!value)
            return;
        setting.set(*value);
        m_defaults.set(setting.key(), storedForm(*value)); // chosen, also where it is the standard
    });
}

void AppSettings::reset()
{
    const UserDefaults::Transaction all(m_defaults);
    visitPreferences(*this, [this](auto& setting) {
        setting.set(setting.standard());
        m_defaults.remove(setting.key()); // the standard of another version, or in another country, is then taken
    });
}

bool AppSettings::hasLaunchedBefore() const
{
    return m_defaults.boolean(u"hasLaunchedBefore"_s).value_or(false);
}

void AppSettings::setHasLaunchedBefore(bool value)
{
    m_defaults.set(u"hasLaunchedBefore"_s, value);
}

} // namespace ambrelle
