// SPDX-License-Identifier: MIT

// What becomes of the pictures when screens come, go and change.

#include "wallpapers/DesktopWallpaper.h"

#include <algorithm>
#include <utility>

namespace ambrelle {

void DesktopWallpaper::fitScreens()
{
    const QList<ScreenInfo> screens = m_host.screens();
    if (const auto restoreNow = screens.isEmpty() ? nullptr : std::exchange(m_restore, nullptr))
        restoreNow();
    const Places now = places(screens);
    if (screens.isEmpty() || !m_picture.isAvailable())
        return notePlaces(now);
    const auto stayed = [&](const ScreenInfo& screen) {
        return m_places.value(screen.connector) == now.value(screen.connector);
    };
    if (!std::ranges::all_of(screens, stayed))
        return refresh([this, screens] { readAll(screens, {}, m_changes); });
    notePlaces(now); // some may have gone, or another is the main one
    refresh([] {});
}

/// Asks for the pictures of the screens one by one, and then fits them.
void DesktopWallpaper::readAll(const QList<ScreenInfo>& screens, const QStringList& shown, int changes)
{
    if (screens != m_host.screens())
        return; // fitScreens() was called again for that, or will be
    if (changes != m_changes)
        return fitScreens();
    if (shown.size() == screens.size())
        return fit(screens, shown);
    m_picture.read(screens.at(shown.size()).connector,
        [this, screens, shown, changes](const QString& file) { readAll(screens, shown + QStringList{file}, changes); });
}

/// Gives the screens that came, moved or changed their size of what they show, where that is ours.
void DesktopWallpaper::fit(const QList<ScreenInfo>& screens, const QStringList& shown)
{
    const Places now = places(screens);
    const Places before = m_places;
    notePlaces(now);
    const QList<ScreenPicture> asked = m_asked.value_or(QList<ScreenPicture>());
    const auto isPainted = [this](const QString& file) { return isOurs(file) && Wallpaper::skinOf(file); };
    if (m_asked && (asked.isEmpty() || !std::ranges::all_of(asked, [](const ScreenPicture& picture) {
            return Wallpaper::skinOf(picture.file).has_value();
        })))
        return; // no wallpaper of a skin is about to show

    Sizes sizes;
    QList<ScreenPicture> pictures;
    bool isWanted = false;
    QString main;
    for (qsizetype i = 0; i < screens.size(); ++i) {
        const QString& connector = screens[i].connector;
        const std::optional<QString> coming = fileFor(asked, connector);
        QString file = coming.value_or(shown[i]);
        // Some desktops tell of a screen that was never seen what another one shows.
        const bool isNew = !before.contains(connector) && (!isPainted(file) || shown.count(file) > 1);
        // It came back, and its picture has been forgotten.
        const bool isForgotten = file.isEmpty() && m_painted.contains(connector) && before.value(connector) == Place{};
        if (i == 0)
            main = file = file.isEmpty() && !before.contains(connector) ? m_current : file;
        else if (isNew || isForgotten)
            file = main;
        const bool hasChanged = before.value(connector) != now.value(connector);
        // The main screen leads in any case: a desktop with one picture for all takes the first.
        if (isPainted(file) && (i == 0 || hasChanged || coming)) {
            pictures.append(ordered(*Wallpaper::skinOf(file), screens[i], sizes));
            isWanted |= hasChanged;
        }
    }
    if (isWanted && pictures != asked)
        paint(pictures, sizes, {}, {});
}

DesktopWallpaper::Places DesktopWallpaper::places(const QList<ScreenInfo>& screens) const
{
    Places places;
    for (const ScreenInfo& screen : screens)
        places.insert(screen.connector, {m_host.toolkitRect(screen.frame), screen.pixelRatio});
    return places;
}

/// Screens that have gone stay known, as being nowhere.
void DesktopWallpaper::notePlaces(const Places& now)
{
    for (Place& place : m_places)
        place = {};
    m_places.insert(now);
}

} // namespace ambrelle
