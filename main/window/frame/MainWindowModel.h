// SPDX-License-Identifier: MIT

#pragma once

#include "desktop/MainTab.h"
#include "model/Skin.h"
#include "model/WidgetCategory.h"

#include <QObject>
#include <QPoint>
#include <QSize>
#include <QStringList>
#include <QUuid>

#include <map>
#include <optional>
#include <variant>

namespace ambrelle {

class UserDefaults;

/// What the Themes tab shows. `concept_` as in ThemeGroup.
enum class ThemesSection { all, concept_, minimal, modern, mine };
enum class WallpapersScope { all, themes, mine, photographs };
enum class SettingsChapter { general, desktop, weather, calendars, focus, updates, about };

/// A theme of the catalogue, or one that the user saved, by its identifier.
using ThemeChoice = std::variant<Skin, QUuid>;

/// What the main window shows, and what of it outlives the window. Main thread only.
class MainWindowModel : public QObject {
    Q_OBJECT
public:
    /// Takes over what an earlier run stored; `defaults` outlives this.
    explicit MainWindowModel(UserDefaults& defaults);

    MainTab tab() const { return m_tab; }
    void setTab(MainTab tab);
    /// What is searched for on that tab, as typed.
    QString search(MainTab tab) const;
    void setSearch(MainTab tab, const QString& text);

    ThemesSection themesSection() const { return m_themesSection; }
    void setThemesSection(ThemesSection section);
    const std::optional<ThemeChoice>& chosenTheme() const { return m_chosenTheme; } ///< selected in the grid
    void chooseTheme(const std::optional<ThemeChoice>& theme);
    bool isThemeOpen() const { return m_themeOpen && m_chosenTheme; } ///< the chosen one's own page is shown
    void openTheme(const ThemeChoice& theme);
    void closeTheme();

    WidgetCategory category() const { return m_category; }
    void setCategory(WidgetCategory category);
    WallpapersScope wallpapersScope() const { return m_wallpapersScope; }
    void setWallpapersScope(WallpapersScope scope);
    /// The screen that wallpapers are set on, by its identifier; empty: all of them.
    const QString& wallpaperTarget() const { return m_wallpaperTarget; }
    void setWallpaperTarget(const QString& screen);
    SettingsChapter settingsChapter() const { return m_settingsChapter; }
    void setSettingsChapter(SettingsChapter chapter);

    /// Shows the setting of the weather's city, about to be typed.
    void askForCity();
    bool takeCityRequest(); ///< true once after askForCity()

    /// The banner of the first start. It goes for good when it is dismissed, and when the window is shown the third
    /// time.
    bool showsWelcome() const { return m_welcomeShowings >= 0; }
    void setShowWelcome(bool show);

    /// The program can be reached without the window, by its item in the tray.
    bool hasTray() const { return m_hasTray; }
    void setHasTray(bool has);

    void addHandedFiles(const QStringList& files); ///< paths of theme files that somebody wants opened
    QStringList takeHandedFiles();

    QSize size() const { return m_size; } ///< the window's last one, points; empty: never shown
    std::optional<QPoint> position() const { return m_position; } ///< of this run, as the toolkit counts
    void shown();
    void hidden(QSize size, QPoint position); ///< searches end with that

Q_SIGNALS:
    void changed();
    void filesHanded();

private:
    template <typename T> void assign(T& value, const T& wanted);
    void storeWelcome(int showings);

    UserDefaults& m_defaults;
    MainTab m_tab = MainTab::themes;
    std::map<MainTab, QString> m_searches;
    ThemesSection m_themesSection = ThemesSection::all;
    std::optional<ThemeChoice> m_chosenTheme;
    bool m_themeOpen = false;
    WidgetCategory m_category = WidgetCategory::all;
    WallpapersScope m_wallpapersScope = WallpapersScope::all;
    QString m_wallpaperTarget;
    SettingsChapter m_settingsChapter = SettingsChapter::general;
    bool m_cityWanted = false;
    int m_welcomeShowings = -1; // so far; below 0 there is no welcome
    bool m_hasTray = false;
    QStringList m_handedFiles;
    QSize m_size;
    std::optional<QPoint> m_position;
};

} // namespace ambrelle
