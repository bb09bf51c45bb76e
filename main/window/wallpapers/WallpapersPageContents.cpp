// SPDX-License-Identifier: MIT

// What the page shows, taken from what it is about.

#include "foundation/ForeignText.h"
#include "foundation/Wording.h"
#include "model/AppSettings.h"
#include "placement/ScreenNames.h"
#include "window/cards/CardLayout.h"
#include "window/cards/CardView.h"
#include "window/cards/PictureShelf.h"
#include "window/look/AppLook.h"
#include "window/look/Button.h"
#include "window/look/EmptyState.h"
#include "window/look/Measures.h"
#include "window/look/Segments.h"
#include "window/wallpapers/ScreenStrip.h"
#include "window/wallpapers/WallpapersPage.h"

#include <QBoxLayout>
#include <QFileInfo>

#include <algorithm>

namespace ambrelle {

using namespace Qt::StringLiterals;

namespace {

constexpr int longestSearchShown = 40; // letters

void setWords(Button& button, bool shown)
{
    const QString words = button.accessibleName();
    if (button.title().isEmpty() == !shown)
        return;
    button.setText(shown ? words : QString());
    button.setToolTip(shown ? QString() : words);
    button.updateGeometry();
}

} // namespace

/// A screen that has gone is no target any more.
void WallpapersPage::checkTarget()
{
    const QString& target = m_with.model.wallpaperTarget();
    const QList<ScreenInfo> screens = m_with.host.screens();
    if (!target.isEmpty() && std::ranges::find(screens, target, &ScreenInfo::id) == screens.end())
        m_with.model.setWallpaperTarget({});
}

void WallpapersPage::refresh()
{
    m_model.setShelf(shelf());
    m_segments->setChosen(static_cast<int>(m_scopes.indexOf(scope())));
    m_segments->setCount(1, static_cast<int>(allCases<Skin>().size()));
    const QStringList own = m_with.settings.customWallpapers();
    m_segments->setCount(2, static_cast<int>(QSet<QString>(own.begin(), own.end()).size()));
    if (m_scopes.size() > 3)
        m_segments->setCount(3, static_cast<int>(m_photographs.size()));
    m_bringBack->setVisible(m_with.wallpaper.hasPrevious());
    showStrip();
    arrange();
}

WallpapersScope WallpapersPage::scope() const
{
    const WallpapersScope scope = m_with.model.wallpapersScope();
    return m_scopes.contains(scope) ? scope : WallpapersScope::all;
}

WallpaperShelf WallpapersPage::shelf() const
{
    const bool several = m_with.host.screens().size() > 1 && m_with.wallpaper.isPerScreen();
    const std::optional<WallpaperWork>& work = m_actions.working();
    return {.scope = scope(),
        .search = m_with.model.search(MainTab::wallpapers),
        .own = m_with.settings.customWallpapers(),
        .photographs = m_photographs,
        .facts = m_files.known(),
        .withoutPreview = withoutPreview(),
        .shown = shown(),
        .working = work ? std::optional(work->wallpaper) : std::nullopt,
        .screens = work ? work->screens : 1,
        .isForOneScreen = several && !m_with.model.wallpaperTarget().isEmpty()};
}

/// Pictures that failed, maybe while the window was open earlier.
QSet<QString> WallpapersPage::withoutPreview() const
{
    QList<PictureKey> keys;
    for (const Skin skin : allCases<Skin>())
        keys.append(PictureKey::wallpaper(skin));
    for (const QString& path : m_with.settings.customWallpapers() + m_photographs)
        keys.append(PictureKey::file(path, m_files.known().value(path).time));
    QSet<QString> names;
    for (const PictureKey& key : std::as_const(keys)) {
        if (m_with.shelf.hasFailed(key))
            names.insert(key.name);
    }
    return names;
}

/// What the screens show, as far as it is one of those in the grid.
QList<WallpaperChoice> WallpapersPage::shown() const
{
    const DesktopWallpaper& wallpaper = m_with.wallpaper;
    QStringList files{wallpaper.currentURL()};
    for (const ScreenInfo& screen : m_with.host.screens())
        files.append(wallpaper.currentURL(screen));
    files.removeAll(QString());
    files.removeDuplicates();
    QList<WallpaperChoice> shown;
    for (const QString& file : std::as_const(files)) {
        if (const std::optional<Skin> skin = Wallpaper::skinOf(file))
            shown.append(*skin);
        else
            shown.append(WallpaperShuffle::Custom{file});
        for (const QString& extra : m_photographs) {
            if (file == extra || file == wallpaper.installedURL(extra))
                shown.append(WallpaperShuffle::Extra{extra});
        }
    }
    return shown;
}

ScreenSight WallpapersPage::sightOf(const ScreenInfo& screen, const QString& name, bool isMain) const
{
    const DesktopWallpaper& wallpaper = m_with.wallpaper;
    QString file = wallpaper.currentURL(screen);
    if (file.isEmpty() && isMain)
        file = wallpaper.currentURL();
    ScreenSight sight{.name = name, .points = screen.frame.size()};
    if (const std::optional<Skin> skin = Wallpaper::skinOf(file)) {
        sight.shows = title(*skin);
        sight.picture = PictureKey::wallpaper(*skin);
        return sight;
    }
    if (file.isEmpty()) {
        sight.shows = Wording::tr("Unknown picture");
        return sight;
    }
    const auto extra =
        std::ranges::find_if(m_photographs, [&](const QString& path) { return wallpaper.installedURL(path) == file; });
    sight.shows = foreignText(QFileInfo(extra == m_photographs.end() ? file : *extra).fileName());
    if (const std::optional<PictureFiles::Facts> facts = m_files.facts(file); facts && facts->isThere)
        sight.picture = PictureKey::file(file, facts->time);
    return sight;
}

void WallpapersPage::showStrip()
{
    const QList<ScreenInfo> screens = m_with.host.screens();
    const QStringList names = screenNames(screens);
    ScreenRow row{.isPerScreen = m_with.wallpaper.isPerScreen()};
    for (qsizetype i = 0; i < screens.size(); ++i)
        row.screens.append(sightOf(screens[i], names[i], i == 0));
    const auto target = std::ranges::find(screens, m_with.model.wallpaperTarget(), &ScreenInfo::id);
    row.target = target == screens.end() ? -1 : static_cast<int>(std::distance(screens.begin(), target));
    m_strip->setRow(row);
    m_strip->setVisible(!screens.isEmpty());
}

/// Fits the row of controls to the width, and places what stands where nothing was found.
void WallpapersPage::arrange()
{
    const int margin = std::max(measures::margin(width()), (width() - CardLayout::mostWidth) / 2); // as the cards
    QLayout* row = m_scope->layout();
    row->setContentsMargins(margin, 0, margin, 0);
    m_scope->setMinimumHeight(AppLook::shared().scaled(measures::scopeHeight));
    setWords(*m_add, width() >= measures::wideWindow);
    setWords(*m_bringBack, true);
    const int gaps = 2 * margin + 3 * row->spacing();
    const int wanted = m_segments->sizeHint().width() + m_bringBack->sizeHint().width() + m_add->sizeHint().width();
    if (m_bringBack->isVisibleTo(m_scope) && wanted + gaps > width())
        setWords(*m_bringBack, false);

    const QString search = m_with.model.search(MainTab::wallpapers).simplified();
    const bool none = m_model.rowCount() == 0;
    m_nothing->setVisible(none);
    if (!none)
        return;
    const QString shown = search.size() > longestSearchShown ? search.first(longestSearchShown) + u'…' : search;
    m_nothing->setSearch(Wording::tr("No wallpapers match “%1”").arg(shown), m_model.hasHitsElsewhere());
    const int room = width() - 2 * margin;
    const int top = m_scope->height() + m_strip->heightForWidth(room);
    const QSize size(room, std::max(m_nothing->sizeHint().height(), m_nothing->heightForWidth(room)));
    const int spare = std::max(0, height() - top - size.height());
    m_nothing->setGeometry(QRect(QPoint(margin, top + spare / 2), size));
    m_nothing->raise();
}

} // namespace ambrelle
