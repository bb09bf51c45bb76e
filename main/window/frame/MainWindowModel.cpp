// SPDX-License-Identifier: MIT

#include "window/frame/MainWindowModel.h"

#include "foundation/UserDefaults.h"

#include <QJsonArray>
#include <QJsonDocument>

#include <utility>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int welcomeShowings = 2; // the third one is without it

const QString welcomeKey = u"showWelcome"_s;
const QString showingsKey = u"welcomeShowings"_s;
const QString sizeKey = u"mainWindowSize"_s;

} // namespace

MainWindowModel::MainWindowModel(UserDefaults& defaults)
    : m_defaults(defaults)
{
    if (defaults.boolean(welcomeKey).value_or(false))
        m_welcomeShowings = std::max(0, defaults.integer(showingsKey).value_or(0));
    const QJsonArray size = QJsonDocument::fromJson(defaults.data(sizeKey).value_or(QByteArray())).array();
    if (size.size() == 2)
        m_size = {size[0].toInt(), size[1].toInt()};
}

template <typename T> void MainWindowModel::assign(T& value, const T& wanted)
{
    if (std::exchange(value, wanted) != wanted)
        Q_EMIT changed();
}

void MainWindowModel::setTab(MainTab tab)
{
    assign(m_tab, tab);
}

QString MainWindowModel::search(MainTab tab) const
{
    const auto found = m_searches.find(tab);
    return found == m_searches.end() ? QString() : found->second;
}

void MainWindowModel::setSearch(MainTab tab, const QString& text)
{
    assign(m_searches[tab], text);
}

void MainWindowModel::setThemesSection(ThemesSection section)
{
    assign(m_themesSection, section);
}

void MainWindowModel::chooseTheme(const std::optional<ThemeChoice>& theme)
{
    assign(m_chosenTheme, theme);
}

void MainWindowModel::openTheme(const ThemeChoice& theme)
{
    const bool changes = !m_themeOpen || m_chosenTheme != theme;
    m_chosenTheme = theme;
    m_themeOpen = true;
    if (changes)
        Q_EMIT changed();
}

void MainWindowModel::closeTheme()
{
    assign(m_themeOpen, false);
}

void MainWindowModel::setCategory(WidgetCategory category)
{
    assign(m_category, category);
}

void MainWindowModel::setWallpapersScope(WallpapersScope scope)
{
    assign(m_wallpapersScope, scope);
}

void MainWindowModel::setWallpaperTarget(const QString& screen)
{
    assign(m_wallpaperTarget, screen);
}

void MainWindowModel::setSettingsChapter(SettingsChapter chapter)
{
    assign(m_settingsChapter, chapter);
}

void MainWindowModel::askForCity()
{
    m_cityWanted = true;
    m_tab = MainTab::settings;
    m_settingsChapter = SettingsChapter::weather;
    m_searches.erase(MainTab::settings);
    Q_EMIT changed();
}

bool MainWindowModel::takeCityRequest()
{
    return std::exchange(m_cityWanted, false);
}

void MainWindowModel::setShowWelcome(bool show)
{
    if (show == showsWelcome())
        return;
    storeWelcome(show ? 0 : -1);
    Q_EMIT changed();
}

void MainWindowModel::storeWelcome(int showings)
{
    m_welcomeShowings = showings;
    const UserDefaults::Transaction whole(m_defaults);
    if (showings < 0) {
        m_defaults.remove(welcomeKey);
        m_defaults.remove(showingsKey);
    } else {
        m_defaults.set(welcomeKey, true);
        m_defaults.set(showingsKey, showings);
    }
}

void MainWindowModel::setHasTray(bool has)
{
    assign(m_hasTray, has);
}

void MainWindowModel::addHandedFiles(const QStringList& files)
{
    m_handedFiles += files;
    m_handedFiles.removeDuplicates();
    if (!files.isEmpty())
        Q_EMIT filesHanded();
}

QStringList MainWindowModel::takeHandedFiles()
{
    return std::exchange(m_handedFiles, {});
}

void MainWindowModel::shown()
{
    if (showsWelcome())
        storeWelcome(m_welcomeShowings < welcomeShowings ? m_welcomeShowings + 1 : -1);
}

void MainWindowModel::hidden(QSize size, QPoint position)
{
    m_position = position;
    m_searches.clear();
    if (std::exchange(m_size, size) != size)
        m_defaults.setData(
            sizeKey, QJsonDocument(QJsonArray{size.width(), size.height()}).toJson(QJsonDocument::Compact));
}

} // namespace ambrelle
