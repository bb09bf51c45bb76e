// SPDX-License-Identifier: MIT

#pragma once

#include "model/Skin.h"
#include "model/WidgetOptions.h"
#include "model/WindowSystem.h"

#include <QJsonObject>
#include <QObject>
#include <QStringList>

#include <functional>
#include <utility>

namespace ambrelle {

class UserDefaults;

/// One preference: `settings.locked()` reads it, `settings.locked.set(true)` stores it at once and tells whoever
/// listens.
template <typename T> class Setting {
public:
    Setting(QLatin1StringView key, T value, T standard, std::function<void(const Setting&)> changed)
        : m_key(key)
        , m_value(std::move(value))
        , m_standard(std::move(standard))
        , m_changed(std::move(changed))
    {
    }
    Setting(const Setting&) = delete;
    Setting& operator=(const Setting&) = delete;

    QString key() const { return m_key; }
    const T& operator()() const { return m_value; }
    /// What it is until the user chooses.
    const T& standard() const { return m_standard; }
    void set(T value)
    {
        if (value == m_value)
            return;
        m_value = std::move(value);
        m_changed(*this);
    }

private:
    QLatin1StringView m_key;
    T m_value;
    T m_standard;
    std::function<void(const Setting&)> m_changed;
};

/// Every preference of the user, read once and written whenever one changes. Main thread only.
class AppSettings : public QObject {
    Q_OBJECT

    UserDefaults& m_defaults; // read by the members below while they are made

public:
    explicit AppSettings(UserDefaults& defaults, QObject* parent = nullptr);
    static AppSettings& shared();

    Setting<bool> editing; ///< edit mode; not stored
    Setting<WidgetLayer> layer;
    Setting<bool> locked; ///< widgets cannot be dragged
    Setting<double> interval; ///< seconds between samples of the system monitor, above 0
    Setting<Skin> defaultSkin; ///< of new widgets and of the first layout
    Setting<QString> weatherCity; ///< empty: none chosen
    Setting<bool> useFahrenheit;
    Setting<QStringList> excludedCalendars; ///< identifiers of hidden calendars
    Setting<int> downloadResetMinutes;
    Setting<int> wallpaperShuffleMinutes;
    Setting<bool> showScene;
    Setting<QStringList> customWallpapers; ///< paths
    Setting<bool> clickToOpen;
    Setting<bool> animations;
    Setting<OverlapBehavior> overlap;
    Setting<bool> followAppearance;
    Setting<int> focusMinutes;
    Setting<int> breakMinutes;
    Setting<int> longBreakMinutes;
    Setting<bool> focusSound;
    Setting<bool> checkForUpdates;
    Setting<bool> installUpdates;
    Setting<WindowSystem> windowSystem; ///< counts from the next start on

    /// What the user has chosen of what reset() changes, by key; not what is standard because nobody chose.
    QJsonObject snapshot() const;
    /// Makes what `snapshot` gave chosen again; who listens is told of every setting that changed.
    void restore(const QJsonObject& values);
    /// As if the user had never chosen anything, but the own pictures stay. Who listens is told as by `restore`.
    void reset();

    /// Read from and written to the store itself; nobody is told.
    bool hasLaunchedBefore() const;
    void setHasLaunchedBefore(bool value);

Q_SIGNALS:
    /// The setting stored under `key` has a new value.
    void changed(const QString& key);

private:
    template <typename T> Setting<T> stored(QLatin1StringView key, T fallback);
    template <typename Settings, typename Visitor> static void visitPreferences(Settings& settings, Visitor&& visit);
};

} // namespace ambrelle
